#include "CToolsMenu.h"

#include "actions/IActionTool.h"
#include "contexts/CModuleInstaller.h"
#include "contexts/IGameContext.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/FMessageBox.h"
#include "core/FOpenFileDlg.h"

#include <QAction>
#include <QMenu>

CToolsMenu::CToolsMenu(QMenu* menu) : CMenuHandler(menu, QStringLiteral("mnuTools"), tr("&Tools"))
{
    AddSeparator(QStringLiteral("mnuToolsBar1"));
    AddItem(QStringLiteral("mnuToolsInstallModule"), tr("&Install Module..."),
            [this] { installModule(); });
    AddSeparator(QStringLiteral("mnuToolsBar2"));
    AddModuleItems(m_custom, QStringLiteral("mnuToolsCustom"), [](int i) { runCustom(i); });
}

void CToolsMenu::Refresh()
{
    EnableModuleItems(m_custom);
}

void CToolsMenu::rebuildCustom()
{
    ShowEntries(m_custom, ModuleEntries<&IGameContext::CustomTools>());
}

void CToolsMenu::runCustom(int index)
{
    if (const auto tool = ModuleEntry(ModuleEntries<&IGameContext::CustomTools>(), index))
        tool->Invoke();
}

void CToolsMenu::installModule()
{
    CGui* gui = Root().Gui();
    FOpenFileDlg* dialog = gui ? gui->OpenFileDlg() : nullptr;
    FMessageBox* messages = gui ? gui->Messages() : nullptr;
    if (!dialog || !messages)
        return;
    if (!dialog->Display(CModuleInstaller::FileFilter(), CModuleInstaller::DefaultPattern(),
                         CUtility::GetCurrentPath()))
        return;
    CModuleInstaller::Install(
        CUtility::JoinPath(dialog->SelDir(), dialog->SelFile(), dialog->SelExt()), *messages);
}
