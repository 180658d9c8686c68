#pragma once

#include "core/CGui.h"

#include <memory>

class CFileDialogs;
class CMessageBoxes;
class CPopupMenu;
class mdiMain;

// The program's windows and dialogs, made together when the root is built
// and kept for the program's whole life.
class CWidgetGui : public CGui
{
public:
    CWidgetGui();
    ~CWidgetGui() override;

    FMainMdi* MainMdi() override;
    mdiMain* MainWindow() const { return m_main.get(); }
    FMessageBox* Messages() override;
    FPopupMenu* PopupMenu() override;
    FSaveFileDlg* SaveFileDlg() override;
    FOpenFileDlg* OpenFileDlg() override;

private:
    std::unique_ptr<mdiMain> m_main;
    std::unique_ptr<CMessageBoxes> m_messages;
    std::unique_ptr<CPopupMenu> m_popup;
    std::unique_ptr<CFileDialogs> m_fileDialogs;
};
