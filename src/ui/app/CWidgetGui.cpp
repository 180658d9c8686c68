#include "CWidgetGui.h"

#include "ui/dialogs/CFileDialogs.h"
#include "ui/dialogs/CMessageBoxes.h"
#include "ui/board/CPopupMenu.h"
#include "ui/dialogs/frmEditNumUnit.h"
#include "ui/dialogs/frmEditTextUnit.h"
#include "ui/board/frmFullScreen.h"
#include "ui/dialogs/frmGameProps.h"
#include "ui/dialogs/frmMapProps.h"
#include "ui/dialogs/frmNewGame.h"
#include "ui/dialogs/frmNewMap.h"
#include "ui/dialogs/frmProgress.h"
#include "ui/dialogs/frmSplash.h"
#include "ui/dialogs/frmSplitUnit.h"
#include "ui/app/mdiMain.h"

CWidgetGui::CWidgetGui()
    : m_main(std::make_unique<mdiMain>()),
      m_messages(std::make_unique<CMessageBoxes>(m_main.get())),
      m_popup(std::make_unique<CPopupMenu>(m_main.get())), m_newGame(new frmNewGame(m_main.get())),
      m_newMap(new frmNewMap(m_main.get())), m_editNum(new frmEditNumUnit(m_main.get())),
      m_editText(new frmEditTextUnit(m_main.get())), m_mapProps(new frmMapProps(m_main.get())),
      m_gameProps(new frmGameProps(m_main.get())),
      m_fileDialogs(std::make_unique<CFileDialogs>(m_main.get())),
      m_fullScreen(new frmFullScreen(m_main.get())), m_progress(new frmProgress(m_main.get())),
      m_about(std::make_unique<frmSplash>()), m_split(new frmSplitUnit(m_main.get()))
{}

// The helpers go before the main window that parents them; the dialogs go
// with it.
CWidgetGui::~CWidgetGui()
{
    m_about.reset();
    m_fileDialogs.reset();
    m_popup.reset();
    m_messages.reset();
    m_main.reset();
}

FMainMdi* CWidgetGui::MainMdi()
{
    return m_main.get();
}

FMessageBox* CWidgetGui::Messages()
{
    return m_messages.get();
}

FPopupMenu* CWidgetGui::PopupMenu()
{
    return m_popup.get();
}

FNewGameDlg* CWidgetGui::NewGameDlg()
{
    return m_newGame;
}

FNewMapDlg* CWidgetGui::NewMapDlg()
{
    return m_newMap;
}

FEditUnitNumDlg* CWidgetGui::EditUnitNumDlg()
{
    return m_editNum;
}

FEditUnitTextDlg* CWidgetGui::EditUnitTextDlg()
{
    return m_editText;
}

FMapPropsDlg* CWidgetGui::MapPropsDlg()
{
    return m_mapProps;
}

FGamePropsDlg* CWidgetGui::GamePropsDlg()
{
    return m_gameProps;
}

FSaveFileDlg* CWidgetGui::SaveFileDlg()
{
    return m_fileDialogs.get();
}

FOpenFileDlg* CWidgetGui::OpenFileDlg()
{
    return m_fileDialogs.get();
}

FFullScreenDlg* CWidgetGui::FullScreenDlg()
{
    return m_fullScreen;
}

FProgressWin* CWidgetGui::ProgressWin()
{
    return m_progress;
}

FAboutDlg* CWidgetGui::AboutDlg()
{
    return m_about.get();
}

FSplitUnitDlg* CWidgetGui::SplitUnitDlg()
{
    return m_split;
}
