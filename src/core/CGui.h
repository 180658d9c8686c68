#pragma once

class FAboutDlg;
class FEditUnitNumDlg;
class FEditUnitTextDlg;
class FFullScreenDlg;
class FGamePropsDlg;
class FMainMdi;
class FMapPropsDlg;
class FMessageBox;
class FNewGameDlg;
class FNewMapDlg;
class FPopupMenu;
class FSplitUnitDlg;
class FOpenFileDlg;
class FProgressWin;
class FSaveFileDlg;

// The windows and dialogs of the program, created together when the root is
// constructed. The engine reaches them only through these interfaces; the
// widget library, the tests and the command-line tool each supply their own.
class CGui
{
public:
    virtual ~CGui() = default;

    // Null when there is no main window (a program without windows).
    virtual FMainMdi* MainMdi() = 0;
    // The message boxes; null when nobody can answer them.
    virtual FMessageBox* Messages() { return nullptr; }

    // The shared right-click menu and the unit dialogs; null when the GUI
    // has none, and then the token handlers show nothing and change nothing.
    virtual FPopupMenu* PopupMenu() { return nullptr; }
    virtual FEditUnitNumDlg* EditUnitNumDlg() { return nullptr; }
    virtual FEditUnitTextDlg* EditUnitTextDlg() { return nullptr; }
    virtual FSplitUnitDlg* SplitUnitDlg() { return nullptr; }
    // The file dialogs and the progress window; null when there are none. A
    // missing dialog counts as cancelled.
    virtual FSaveFileDlg* SaveFileDlg() { return nullptr; }
    virtual FOpenFileDlg* OpenFileDlg() { return nullptr; }
    virtual FProgressWin* ProgressWin() { return nullptr; }
    // The dialogs of the menus; null when there are none (counted as cancelled).
    virtual FNewGameDlg* NewGameDlg() { return nullptr; }
    virtual FNewMapDlg* NewMapDlg() { return nullptr; }
    virtual FMapPropsDlg* MapPropsDlg() { return nullptr; }
    virtual FGamePropsDlg* GamePropsDlg() { return nullptr; }
    virtual FFullScreenDlg* FullScreenDlg() { return nullptr; }
    virtual FAboutDlg* AboutDlg() { return nullptr; }
};
