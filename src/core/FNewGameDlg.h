#pragma once

#include <QString>

// Chooses the game module a new game is made with.
class FNewGameDlg
{
public:
    virtual ~FNewGameDlg() = default;

    // Lists the installed contexts in the context manager's order; true when
    // the user chose one.
    virtual bool Display() = 0;
    // The id of the context chosen in the last confirmed Display.
    virtual QString SelectedGameId() const = 0;
};
