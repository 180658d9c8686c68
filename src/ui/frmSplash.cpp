#include "frmSplash.h"

#include <QApplication>

frmSplash::frmSplash()
{
    setObjectName(QStringLiteral("frmSplash"));
    QPixmap picture(420, 220);
    picture.fill(QColor(40, 60, 40));
    setPixmap(picture);
}

void frmSplash::Show()
{
    show();
    QApplication::processEvents();
}

void frmSplash::UpdateStatus(const QString& text, float)
{
    showMessage(text, Qt::AlignBottom | Qt::AlignLeft, Qt::white);
    QApplication::processEvents();
}
