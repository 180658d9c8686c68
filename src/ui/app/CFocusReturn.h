#pragma once

#include <QObject>

// Gives the keyboard back to the window a modal dialog belonged to when the
// dialog closes. Desktops whose window manager leaves the focus nowhere after
// a dialog (no focus handed to the dialog's parent) would otherwise swallow
// the player's next shortcut, such as Ctrl+M right after New Game.
class CFocusReturn : public QObject
{
public:
    explicit CFocusReturn(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
