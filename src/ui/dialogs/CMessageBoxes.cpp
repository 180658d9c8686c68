#include "CMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>

namespace {

QMessageBox::Icon toIcon(FMessageBox::Icon icon)
{
    switch (icon) {
    case FMessageBox::Icon::Information:
        return QMessageBox::Information;
    case FMessageBox::Icon::Question:
        return QMessageBox::Question;
    case FMessageBox::Icon::Exclamation:
        return QMessageBox::Warning;
    case FMessageBox::Icon::Critical:
        return QMessageBox::Critical;
    case FMessageBox::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton toButton(FMessageBox::Answer answer)
{
    switch (answer) {
    case FMessageBox::Answer::Yes:
        return QMessageBox::Yes;
    case FMessageBox::Answer::No:
        return QMessageBox::No;
    case FMessageBox::Answer::Cancel:
        break;
    }
    return QMessageBox::Cancel;
}

} // namespace

FMessageBox::Answer CMessageBoxes::Question(const QString& title, const QString& text,
                                            Buttons buttons, Icon icon, Answer defaultButton)
{
    QMessageBox box(toIcon(icon), title, text, QMessageBox::Yes | QMessageBox::No, m_parent);
    box.setObjectName(QStringLiteral("msgQuestion"));
    if (buttons == Buttons::YesNoCancel)
        box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(toButton(defaultButton));
    box.setEscapeButton(buttons == Buttons::YesNoCancel ? QMessageBox::Cancel : QMessageBox::No);
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int chosen = box.exec();
    QApplication::restoreOverrideCursor();
    if (chosen == QMessageBox::Yes)
        return Answer::Yes;
    if (chosen == QMessageBox::No)
        return Answer::No;
    return buttons == Buttons::YesNoCancel ? Answer::Cancel : Answer::No;
}

void CMessageBoxes::Information(const QString& title, const QString& text, Icon icon)
{
    QMessageBox box(toIcon(icon), title, text, QMessageBox::Ok, m_parent);
    box.setObjectName(QStringLiteral("msgInformation"));
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    box.exec();
    QApplication::restoreOverrideCursor();
}
