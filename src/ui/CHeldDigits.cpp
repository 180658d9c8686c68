#include "CHeldDigits.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>

CHeldDigits::CHeldDigits(QObject* parent) : QObject(parent)
{
    if (QCoreApplication* app = QCoreApplication::instance())
        app->installEventFilter(this);
}

int CHeldDigits::slot(int qtKey, bool keypad)
{
    if (qtKey < Qt::Key_0 || qtKey > Qt::Key_9)
        return -1;
    // Slots in the order keys are checked: "1", pad 1, "2", pad 2, ... "0", pad 0.
    const int digit = qtKey == Qt::Key_0 ? 10 : qtKey - Qt::Key_0;
    return (digit - 1) * 2 + (keypad ? 1 : 0);
}

void CHeldDigits::KeyDown(int qtKey, bool keypad)
{
    if (const int at = slot(qtKey, keypad); at >= 0)
        m_held[static_cast<std::size_t>(at)] = true;
}

void CHeldDigits::KeyUp(int qtKey, bool keypad)
{
    if (const int at = slot(qtKey, keypad); at >= 0)
        m_held[static_cast<std::size_t>(at)] = false;
}

int CHeldDigits::GetPressedNumeric() const
{
    for (std::size_t at = 0; at < m_held.size(); ++at) {
        if (m_held[at])
            return static_cast<int>(at / 2 + 1);
    }
    return 0;
}

bool CHeldDigits::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->isAutoRepeat())
            break;
        const bool keypad = key->modifiers().testFlag(Qt::KeypadModifier);
        if (event->type() == QEvent::KeyPress)
            KeyDown(key->key(), keypad);
        else
            KeyUp(key->key(), keypad);
        break;
    }
    case QEvent::ApplicationDeactivate:
        ReleaseAllKeys();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
