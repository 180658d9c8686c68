#pragma once

#include <QImage>

// Shows a picture of the board over the whole screen until Escape or a click.
class FFullScreenDlg
{
public:
    virtual ~FFullScreenDlg() = default;

    virtual void Display(const QImage& snapshot) = 0;
};
