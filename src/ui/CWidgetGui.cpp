#include "CWidgetGui.h"

#include "ui/CFileDialogs.h"
#include "ui/CMessageBoxes.h"
#include "ui/CPopupMenu.h"
#include "ui/mdiMain.h"

CWidgetGui::CWidgetGui()
    : m_main(std::make_unique<mdiMain>()),
      m_messages(std::make_unique<CMessageBoxes>(m_main.get())),
      m_popup(std::make_unique<CPopupMenu>(m_main.get())),
      m_fileDialogs(std::make_unique<CFileDialogs>(m_main.get()))
{}

// The dialogs go before the main window that parents them.
CWidgetGui::~CWidgetGui()
{
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

FSaveFileDlg* CWidgetGui::SaveFileDlg()
{
    return m_fileDialogs.get();
}

FOpenFileDlg* CWidgetGui::OpenFileDlg()
{
    return m_fileDialogs.get();
}
