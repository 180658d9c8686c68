#pragma once

// What scrolls the board: a line is the scroll bar's single step, a page its
// page step. Positive dx scrolls right, positive dy down.
class IScrollClient
{
public:
    virtual ~IScrollClient() = default;
    virtual void ScrollLines(int dx, int dy) = 0;
    virtual void ScrollPages(int dx, int dy) = 0;
};
