#pragma once

#include "core/CGui.h"

#include <memory>

class CFileDialogs;
class CMessageBoxes;
class CPopupMenu;
class frmEditNumUnit;
class frmEditTextUnit;
class frmFullScreen;
class frmGameProps;
class frmMapProps;
class frmNewGame;
class frmNewMap;
class frmProgress;
class frmSplash;
class frmSplitUnit;
class mdiMain;

// The program's windows and dialogs, made together when the root is built
// and kept for the program's whole life. The dialogs are children of the main
// window, which owns them; the about box stands on its own.
class CWidgetGui : public CGui
{
public:
    CWidgetGui();
    ~CWidgetGui() override;

    FMainMdi* MainMdi() override;
    mdiMain* MainWindow() const { return m_main.get(); }
    FMessageBox* Messages() override;
    FPopupMenu* PopupMenu() override;
    FNewGameDlg* NewGameDlg() override;
    FNewMapDlg* NewMapDlg() override;
    FEditUnitNumDlg* EditUnitNumDlg() override;
    FEditUnitTextDlg* EditUnitTextDlg() override;
    FMapPropsDlg* MapPropsDlg() override;
    FGamePropsDlg* GamePropsDlg() override;
    FSaveFileDlg* SaveFileDlg() override;
    FOpenFileDlg* OpenFileDlg() override;
    FFullScreenDlg* FullScreenDlg() override;
    FProgressWin* ProgressWin() override;
    FAboutDlg* AboutDlg() override;
    FSplitUnitDlg* SplitUnitDlg() override;

private:
    // In the order of creation.
    std::unique_ptr<mdiMain> m_main;
    std::unique_ptr<CMessageBoxes> m_messages;
    std::unique_ptr<CPopupMenu> m_popup;
    frmNewGame* m_newGame;
    frmNewMap* m_newMap;
    frmEditNumUnit* m_editNum;
    frmEditTextUnit* m_editText;
    frmMapProps* m_mapProps;
    frmGameProps* m_gameProps;
    std::unique_ptr<CFileDialogs> m_fileDialogs;
    frmFullScreen* m_fullScreen;
    frmProgress* m_progress;
    std::unique_ptr<frmSplash> m_about;
    frmSplitUnit* m_split;
};
