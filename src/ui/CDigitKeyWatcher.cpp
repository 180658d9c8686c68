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
    CKorvane* root = RootOrNull();
    const QEvent::Type type = event->type();
    if (root && (type == QEvent::KeyPress || type == QEvent::KeyRelease)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!key->isAutoRepeat()) {
            const bool keypad = key->modifiers().testFlag(Qt::KeypadModifier);
            if (type == QEvent::KeyPress)
                root->WinApi().KeyDown(key->key(), keypad);
            else
                root->WinApi().KeyUp(key->key(), keypad);
        }
    } else if (root && type == QEvent::ApplicationDeactivate) {
        root->WinApi().ReleaseAllKeys();
    }
    return QObject::eventFilter(watched, event);
}
