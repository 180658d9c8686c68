#include "CFocusReturn.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>

CFocusReturn::CFocusReturn(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool CFocusReturn::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide) {
        const auto* dialog = qobject_cast<QDialog*>(watched);
        QWidget* owner = dialog && dialog->isModal() && dialog->parentWidget()
                             ? dialog->parentWidget()->window()
                             : nullptr;
        // Once the dialog is gone; a window that has the focus already keeps it.
        if (owner)
            QTimer::singleShot(0, owner, [owner] {
                if (owner->isVisible() && !QApplication::activeModalWidget() &&
                    !QApplication::activeWindow())
                    owner->activateWindow();
            });
    }
    return QObject::eventFilter(watched, event);
}
