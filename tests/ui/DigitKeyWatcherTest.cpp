#include "core/CWinApi.h"
#include "support/RootFixture.h"
#include "ui/board/CDigitKeyWatcher.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QObject>

namespace {

class DigitKeys : public RootFixture
{
protected:
    // A key event as the platform delivers it, sent to some object of the
    // program: the watcher sees every event of the application.
    void send(QEvent::Type type, int key, quint32 scanCode, const QString& text,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(type, key, modifiers, scanCode, 0, 0, text);
        QCoreApplication::sendEvent(&target, &event);
    }
    static std::int32_t held() { return Root().WinApi().GetPressedNumeric(); }

    QObject target;
};

TEST_F(DigitKeys, TheTopRowOfAFrenchKeyboardHoldsItsDigitsByPlace)
{
    const CDigitKeyWatcher watcher(nullptr, QStringLiteral("xcb"));
    // What an AZERTY top row gives unshifted, from the key in the place of 1
    // to the key in the place of 0, with the codes X11 gives those keys.
    const std::pair<int, const char*> azerty[] = {
        {Qt::Key_Ampersand, "&"},   {Qt::Key_Eacute, "\u00e9"}, {Qt::Key_QuoteDbl, "\""},
        {Qt::Key_Apostrophe, "'"},  {Qt::Key_ParenLeft, "("},   {Qt::Key_Minus, "-"},
        {Qt::Key_Egrave, "\u00e8"}, {Qt::Key_Underscore, "_"},  {Qt::Key_Ccedilla, "\u00e7"},
        {Qt::Key_Agrave, "\u00e0"}};
    for (int i = 0; i < 10; ++i) {
        const auto [key, text] = azerty[i];
        SCOPED_TRACE(text);
        send(QEvent::KeyPress, key, 10 + i, QString::fromUtf8(text));
        EXPECT_EQ(held(), i + 1);
        // Shift on the same key gives the digit itself; the place is the same.
        send(QEvent::KeyRelease, Qt::Key_1 + (i + 1) % 10, 10 + i, QString());
        EXPECT_EQ(held(), 0);
    }

    // A key elsewhere is no digit, whatever character it gives; the pad
    // gives its digits, and an event made by the program its character.
    send(QEvent::KeyPress, Qt::Key_4, 38, QStringLiteral("4"));
    EXPECT_EQ(held(), 0);
    send(QEvent::KeyPress, Qt::Key_7, 79, QStringLiteral("7"), Qt::KeypadModifier);
    EXPECT_EQ(held(), 7);
    send(QEvent::KeyRelease, Qt::Key_7, 79, QStringLiteral("7"), Qt::KeypadModifier);
    send(QEvent::KeyPress, Qt::Key_3, 0, QStringLiteral("3"));
    EXPECT_EQ(held(), 3);
    send(QEvent::KeyRelease, Qt::Key_3, 0, QStringLiteral("3"));
    EXPECT_EQ(held(), 0);
}

} // namespace
