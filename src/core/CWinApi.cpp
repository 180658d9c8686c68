#include "CWinApi.h"

#include "core/IScrollClient.h"

#include <QCursor>
#include <QDesktopServices>
#include <QUrl>

bool CWinApi::LauchUrl(const QString& url) const
{
    return QDesktopServices::openUrl(QUrl(url));
}

void CWinApi::KeyDown(int qtKey, bool keypad)
{
    setKey(qtKey, keypad, true);
}

void CWinApi::KeyUp(int qtKey, bool keypad)
{
    setKey(qtKey, keypad, false);
}

void CWinApi::ReleaseAllKeys()
{
    m_held = {};
}

void CWinApi::setKey(int qtKey, bool keypad, bool held)
{
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)
        m_held[qtKey - Qt::Key_0][keypad ? 1 : 0] = held;
}

std::int32_t CWinApi::GetPressedNumeric() const
{
    for (std::int32_t digit = 1; digit <= 10; ++digit) {
        const auto& keys = m_held[digit % 10];
        if (keys[0] || keys[1])
            return digit;
    }
    return 0;
}

void CWinApi::lines(int dx, int dy) const
{
    if (m_scrollClient)
        m_scrollClient->ScrollLines(dx, dy);
}

void CWinApi::pages(int dx, int dy) const
{
    if (m_scrollClient)
        m_scrollClient->ScrollPages(dx, dy);
}

void CWinApi::WndScrollDown() const
{
    lines(0, 1);
}
void CWinApi::WndScrollDownLarge() const
{
    pages(0, 1);
}
void CWinApi::WndScrollUp() const
{
    lines(0, -1);
}
void CWinApi::WndScrollUpLarge() const
{
    pages(0, -1);
}
void CWinApi::WndScrollLeft() const
{
    lines(-1, 0);
}
void CWinApi::WndScrollLeftLarge() const
{
    pages(-1, 0);
}
void CWinApi::WndScrollRight() const
{
    lines(1, 0);
}
void CWinApi::WndScrollRightLarge() const
{
    pages(1, 0);
}

QPoint CWinApi::GetCursorPos() const
{
    return QCursor::pos();
}

void CWinApi::SetCursorPos(const QPoint& position) const
{
    QCursor::setPos(position);
}
