#include "CActionMenu.h"

#include "actions/CActionMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"

#include <QAction>
#include <QMenu>

CActionMenu::CActionMenu(QMenu* menu)
    : CMenuHandler(menu, QStringLiteral("mnuAction"), QStringLiteral("&Action"))
{
    m_undo = AddItem(QStringLiteral("mnuActionUndo"), QStringLiteral("Can't Undo"),
                     [] { Root().ActionMgr().Undo(); });
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo = AddItem(QStringLiteral("mnuActionRedo"), QStringLiteral("Can't Redo"),
                     [] { Root().ActionMgr().Redo(); });
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    AddSeparator(QStringLiteral("mnuActionBar1"));
    for (int i = 0; i < CustomCount; ++i) {
        m_custom[i] = AddItem(QStringLiteral("mnuActionCustom%1").arg(i + 1), QString(),
                              [this, i] { runCustom(i); });
        m_custom[i]->setVisible(false);
    }
    Refresh();
}

void CActionMenu::Refresh()
{
    const CActionMgr& manager = Root().ActionMgr();
    const auto undo = manager.NextUndoAction();
    const auto redo = manager.NextRedoAction();
    SetCaption(m_undo,
               undo ? QStringLiteral("&Undo ") + undo->Caption() : QStringLiteral("Can't Undo"));
    SetCaption(m_redo,
               redo ? QStringLiteral("&Redo ") + redo->Caption() : QStringLiteral("Can't Redo"));
    // Custom actions change the map, which a frozen group or map refuses.
    for (QAction* item : m_custom)
        item->setEnabled(ModuleCommandsUsable());
}

void CActionMenu::rebuildCustom()
{
    const std::shared_ptr<IGameContext>& context = Root().Context();
    ShowEntries(m_custom, context ? &context->CustomActions() : nullptr);
}

void CActionMenu::runCustom(int index)
{
    const std::shared_ptr<IGameContext>& context = Root().Context();
    if (!context || !ModuleCommandsUsable() || index >= context->CustomActions().Count())
        return;
    Root().ActionMgr().Execute(context->CustomActions().Item(index + 1));
}
