#include "CDigitKeyWatcher.h"

#include "core/CKorvane.h"
#include "core/CWinApi.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>

CDigitKeyWatcher::CDigitKeyWatcher(QObject* parent)
    : CDigitKeyWatcher(parent, QGuiApplication::platformName())
{}

CDigitKeyWatcher::CDigitKeyWatcher(QObject* parent, const QString& platform)
    : QObject(parent), m_platform(platform)
{
    if (QCoreApplication* app = QCoreApplication::instance())
        app->installEventFilter(this);
}

std::optional<int> CDigitKeyWatcher::topRowDigit(quint32 scanCode, const QString& platform)
{
    // The keys 1, 2, ... 9, 0 of the top row have consecutive codes: X11
    // and Wayland give the evdev code plus 8 (10 to 19), Windows its scan
    // code set 1 (2 to 11). Other platforms (macOS) give no scan codes.
    quint32 first = 0;
    if (platform == QLatin1String("xcb") || platform == QLatin1String("wayland"))
        first = 10;
    else if (platform == QLatin1String("windows"))
        first = 2;
    // Events made by the program itself carry no code.
    if (first == 0 || scanCode == 0)
        return std::nullopt;
    if (scanCode < first || scanCode > first + 9)
        return -1;
    return static_cast<int>((scanCode - first + 1) % 10);
}

std::optional<CDigitKeyWatcher::DigitKey> CDigitKeyWatcher::DigitOf(const QKeyEvent& event,
                                                                    const QString& platform)
{
    const int key = event.key();
    const bool digitCharacter = key >= Qt::Key_0 && key <= Qt::Key_9;
    // The number pad gives digits in every layout (with Num Lock on).
    if (event.modifiers().testFlag(Qt::KeypadModifier))
        return digitCharacter ? std::optional<DigitKey>({key, true}) : std::nullopt;
    const std::optional<int> place = topRowDigit(event.nativeScanCode(), platform);
    if (place)
        return *place < 0 ? std::nullopt : std::optional<DigitKey>({Qt::Key_0 + *place, false});
    return digitCharacter ? std::optional<DigitKey>({key, false}) : std::nullopt;
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
        if (const std::optional<DigitKey> digit = DigitOf(*press, m_platform)) {
            if (type == QEvent::KeyPress)
                root->WinApi().KeyDown(digit->QtKey, digit->Keypad);
            else
                root->WinApi().KeyUp(digit->QtKey, digit->Keypad);
        }
    }
    return QObject::eventFilter(watched, event);
}
