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

CToolsMenu::CToolsMenu(QMenu* menu)
    : CMenuHandler(menu, QStringLiteral("mnuTools"), QStringLiteral("&Tools"))
{
    AddSeparator(QStringLiteral("mnuToolsBar1"));
    AddItem(QStringLiteral("mnuToolsInstallModule"), QStringLiteral("&Install Module..."),
            [this] { installModule(); });
    AddSeparator(QStringLiteral("mnuToolsBar2"));
    for (int i = 0; i < CustomCount; ++i) {
        m_custom[i] = AddItem(QStringLiteral("mnuToolsCustom%1").arg(i + 1), QString(),
                              [this, i] { runCustom(i); });
        m_custom[i]->setVisible(false);
    }
}

void CToolsMenu::Refresh()
{
    for (QAction* item : m_custom)
        item->setEnabled(ModuleCommandsUsable());
}

void CToolsMenu::rebuildCustom()
{
    const std::shared_ptr<IGameContext>& context = Root().Context();
    ShowEntries(m_custom, context ? &context->CustomTools() : nullptr);
}

void CToolsMenu::runCustom(int index)
{
    const std::shared_ptr<IGameContext>& context = Root().Context();
    if (!context || !ModuleCommandsUsable() || index >= context->CustomTools().Count())
        return;
    context->CustomTools().Item(index + 1)->Invoke();
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
    QString path = dialog->SelDir() + dialog->SelFile();
    if (!dialog->SelExt().isEmpty())
        path += QLatin1Char('.') + dialog->SelExt();
    CModuleInstaller::Install(path, *messages);
}
