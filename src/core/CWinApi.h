#pragma once

#include <QPoint>
#include <QString>

#include <array>
#include <cstdint>

class IScrollClient;

// The platform helpers used by the board and the main window: opening an
// address, the digit keys held down, scrolling the board, the pointer.
class CWinApi
{
public:
    // Opens url with the desktop's handler; false when none took it.
    bool LauchUrl(const QString& url) const;

    // The board reports its digit key presses and releases here (qtKey is a
    // Qt::Key, keypad whether it came from the numeric pad); other keys are
    // ignored. ReleaseAllKeys forgets them all, as when focus is lost.
    void KeyDown(int qtKey, bool keypad);
    void KeyUp(int qtKey, bool keypad);
    void ReleaseAllKeys();
    // The digit held: "1", pad 1, "2", pad 2, ... "9", pad 9, "0", pad 0 are
    // checked in this order and the first held one counts; 1 to 9, 10 for
    // either zero key, 0 when no digit is held.
    std::int32_t GetPressedNumeric() const;

    // The main window sets the board's scroller here, and null when it goes;
    // without one the scroll calls do nothing.
    void SetScrollClient(IScrollClient* client) { m_scrollClient = client; }
    void WndScrollDown() const;
    void WndScrollDownLarge() const;
    void WndScrollUp() const;
    void WndScrollUpLarge() const;
    void WndScrollLeft() const;
    void WndScrollLeftLarge() const;
    void WndScrollRight() const;
    void WndScrollRightLarge() const;

    // The pointer in global screen pixels. Some platforms refuse to move it.
    QPoint GetCursorPos() const;
    void SetCursorPos(const QPoint& position) const;

private:
    void setKey(int qtKey, bool keypad, bool held);
    void lines(int dx, int dy) const;
    void pages(int dx, int dy) const;

    // Held digits, indexed [digit][keypad].
    std::array<std::array<bool, 2>, 10> m_held{};
    IScrollClient* m_scrollClient = nullptr; // not owned
};
