#include "CDigitKeyWatcher.h"

#include "core/CKorvane.h"
#include "core/CWinApi.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>

CDigitKeyWatcher::CDigitKeyWatcher(QObject* parent) : QObject(parent)
{
    if (QCoreApplication* app = QCoreApplication::instance())
        app->installEventFilter(this);
}

bool CDigitKeyWatcher::eventFilter(QObject* watched, QEvent* event)
{
    // Every event of the application passes here: the cheap test comes first.
    const QEvent::Type type = event->type();
    const bool key = type == QEvent::KeyPress || type == QEvent::KeyRelease;
    CKorvane* root = key || type == QEvent::ApplicationDeactivate ? RootOrNull() : nullptr;
    const auto* press = key ? static_cast<QKeyEvent*>(event) : nullptr;
    if (root && !press) {
        root->WinApi().ReleaseAllKeys();
    } else if (root && !press->isAutoRepeat()) {
        const bool keypad = press->modifiers().testFlag(Qt::KeypadModifier);
        if (type == QEvent::KeyPress)
            root->WinApi().KeyDown(press->key(), keypad);
        else
            root->WinApi().KeyUp(press->key(), keypad);
    }
    return QObject::eventFilter(watched, event);
}
