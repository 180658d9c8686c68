#include "CActionMenu.h"

#include "actions/CActionMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"

#include <QAction>
#include <QMenu>

CActionMenu::CActionMenu(QMenu* menu)
    : CMenuHandler(menu, QStringLiteral("mnuAction"), tr("&Action"))
{
    m_undo = AddItem(QStringLiteral("mnuActionUndo"), tr("Can't Undo"),
                     [] { Root().ActionMgr().Undo(); });
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo = AddItem(QStringLiteral("mnuActionRedo"), tr("Can't Redo"),
                     [] { Root().ActionMgr().Redo(); });
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    AddSeparator(QStringLiteral("mnuActionBar1"));
    AddModuleItems(m_custom, QStringLiteral("mnuActionCustom"), [](int i) { runCustom(i); });
    Refresh();
}

void CActionMenu::Refresh()
{
    const CActionMgr& manager = Root().ActionMgr();
    const auto undo = manager.NextUndoAction();
    const auto redo = manager.NextRedoAction();
    SetCaption(m_undo, undo ? tr("&Undo %1").arg(undo->Caption()) : tr("Can't Undo"),
               undo != nullptr);
    SetCaption(m_redo, redo ? tr("&Redo %1").arg(redo->Caption()) : tr("Can't Redo"),
               redo != nullptr);
    // Custom actions change the map, which a frozen group or map refuses.
    EnableModuleItems(m_custom);
}

void CActionMenu::rebuildCustom()
{
    ShowEntries(m_custom, ModuleEntries<&IGameContext::CustomActions>());
}

void CActionMenu::runCustom(int index)
{
    if (auto action = ModuleEntry(ModuleEntries<&IGameContext::CustomActions>(), index))
        Root().ActionMgr().Execute(std::move(action));
}
