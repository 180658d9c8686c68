#include "CGameMenu.h"

#include "actions/CActionEditGame.h"
#include "actions/CActionEditMap.h"
#include "actions/CActionMgr.h"
#include "actions/CActionNewMap.h"
#include "actions/CActionNewMapGroup.h"
#include "actions/CActionRemoveMap.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FGamePropsDlg.h"
#include "core/FMapPropsDlg.h"
#include "core/FMessageBox.h"
#include "core/FNewMapDlg.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "ui/board/CMapState.h"

#include <QAction>
#include <QMenu>

CGameMenu::CGameMenu(QMenu* menu) : CMenuHandler(menu, QStringLiteral("mnuGame"), tr("&Game"))
{
    m_props = AddItem(QStringLiteral("mnuGameProps"), tr("Game &Properties..."),
                      [this] { gameProperties(); });
    AddSeparator(QStringLiteral("mnuGameBar1"));
    m_add = AddItem(QStringLiteral("mnuGameAddMap"), tr("Can't Add Map"), [this] { addMap(); });
    m_add->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
    m_remove = AddItem(QStringLiteral("mnuGameRemoveMap"), tr("Can't Remove Map"),
                       [this] { removeMap(); });
    AddSeparator(QStringLiteral("mnuGameBar2"));
    m_mapProps = AddItem(QStringLiteral("mnuGameMapProps"), tr("&Map Properties..."),
                         [this] { mapProperties(); });
    Refresh();
}

bool CGameMenu::CanAddMap()
{
    const auto group = CMapState::ActiveGroup();
    return Root().Context() && group && !group->Frozen() && group->Maps().Count() > 0;
}

bool CGameMenu::CanRemoveMap()
{
    const auto group = CMapState::ActiveGroup();
    return Root().Context() && group && !group->Frozen() && group->ActiveMap() &&
           group->Maps().Count() > 1;
}

void CGameMenu::Refresh()
{
    const bool hasGame = Root().Game() != nullptr;
    m_props->setEnabled(hasGame);
    // A map of a closed archive keeps its properties; a protected map itself
    // can still be opened again here.
    const auto group = CMapState::ActiveGroup();
    m_mapProps->setEnabled(group && !group->Frozen() && group->ActiveMap());
    const bool canAdd = CanAddMap();
    SetCaption(m_add, canAdd ? tr("&Add Map...") : tr("Can't Add Map"), canAdd);
    const bool canRemove = CanRemoveMap();
    SetCaption(m_remove,
               canRemove ? tr("&Remove '%1'").arg(CMapState::ActiveMap()->Name())
                         : tr("Can't Remove Map"),
               canRemove);
}

void CGameMenu::gameProperties()
{
    const std::shared_ptr<CGame>& game = Root().Game();
    FGamePropsDlg* dialog = Root().Gui() ? Root().Gui()->GamePropsDlg() : nullptr;
    if (!game || !dialog || !dialog->Display(game->Name(), game->Remarks()))
        return;
    if (dialog->Name() == game->Name() && dialog->Remarks() == game->Remarks())
        return;
    auto action = std::make_shared<CActionEditGame>();
    action->SetName(dialog->Name());
    action->SetRemarks(dialog->Remarks());
    Root().ActionMgr().Execute(action);
}

void CGameMenu::addMap()
{
    if (!CanAddMap())
        return;
    FNewMapDlg* dialog = Root().Gui() ? Root().Gui()->NewMapDlg() : nullptr;
    const auto group = CMapState::ActiveGroup();
    const QString proposed = tr("Turn %1").arg(Root().Game()->GetMapCount() + 1);
    if (!dialog || !dialog->Display(proposed))
        return;
    const auto execute = [dialog](auto action) {
        action->SetName(dialog->Name());
        action->SetRemarks(dialog->Remarks());
        Root().ActionMgr().Execute(std::move(action));
    };
    // A full archive is closed and the map starts the next one; that cannot
    // be undone, as closing an archive never can.
    if (group->Maps().Count() >= MapsPerArchive)
        execute(std::make_shared<CActionNewMapGroup>());
    else
        execute(std::make_shared<CActionNewMap>());
}

void CGameMenu::removeMap()
{
    if (!CanRemoveMap())
        return;
    const auto group = CMapState::ActiveGroup();
    const std::shared_ptr<CMap> map = group->ActiveMap();
    FMessageBox* messages = Root().Gui() ? Root().Gui()->Messages() : nullptr;
    const QString question =
        tr("Removal of '%1' cannot be undone.\n\nDo you want to continue ?").arg(map->Name());
    if (!messages || messages->Question(CKorvane::Name(), question, FMessageBox::Buttons::YesNo,
                                        FMessageBox::Icon::Question,
                                        FMessageBox::Answer::No) != FMessageBox::Answer::Yes)
        return;
    auto action = std::make_shared<CActionRemoveMap>();
    action->SetMapId(map->Id());
    Root().ActionMgr().Execute(action);
}

void CGameMenu::mapProperties()
{
    const auto group = CMapState::ActiveGroup();
    if (!group || group->Frozen())
        return;
    const std::shared_ptr<CMap> map = group->ActiveMap();
    FMapPropsDlg* dialog = Root().Gui() ? Root().Gui()->MapPropsDlg() : nullptr;
    if (!map || !dialog || !dialog->Display(map))
        return;
    if (dialog->Name() == map->Name() && dialog->Remarks() == map->Remarks() &&
        dialog->Protected() == map->Frozen())
        return;
    auto action = std::make_shared<CActionEditMap>();
    action->SetMapId(map->Id());
    action->SetName(dialog->Name());
    action->SetRemarks(dialog->Remarks());
    action->SetFrozen(dialog->Protected());
    Root().ActionMgr().Execute(action);
}
