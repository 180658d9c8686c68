#pragma once

#include "ui/menus/CMenuHandler.h"

class CReviewWindows;
class QAction;
class QMenu;
class QWidget;
class mdcBoard;

// "&File": new, open, save, save as, print, the recent games and exit.
class CFileMenu : public CMenuHandler
{
    Q_OBJECT

public:
    // Prints and exports what board shows; Exit closes window, which also
    // parents the print dialog. review compares with another file.
    CFileMenu(QMenu* menu, mdcBoard* board, QWidget* window, CReviewWindows* review);

    void Print();
    // The shown map as a PNG picture, at 100 % or at the board's zoom.
    void ExportPicture();
    // Saves what has changed, then hands the game file to the mail program.
    void SendToOpponent();

protected:
    void Refresh() override;

private:
    void fillRecent();
    void openRecent(const QString& path);

    mdcBoard* m_board;
    QWidget* m_window;
    CReviewWindows* m_review;
    QAction* m_save = nullptr;
    QAction* m_saveAs = nullptr;
    QAction* m_print = nullptr;
    QAction* m_export = nullptr;
    QAction* m_send = nullptr;
    QAction* m_compareFile = nullptr;
    QMenu* m_recent = nullptr;
};
