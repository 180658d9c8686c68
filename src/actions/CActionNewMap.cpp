#include "CActionNewMap.h"

#include "actions/CActionHelper.h"
#include "actions/CMapLock.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"

#include <QCoreApplication>

void CActionNewMap::CopyContents(const CMap& source, CMap& target, QStringList& unitIds,
                                 const char* errorSource)
{
    const CVector<CUnit>& fromUnits = CActionHelper::Units(source, errorSource);
    const CVector<CArrow>& fromArrows = CActionHelper::Arrows(source, errorSource);
    CVector<CUnit>& toUnits = CActionHelper::Units(target, errorSource);
    CVector<CArrow>& toArrows = CActionHelper::Arrows(target, errorSource);

    const std::int32_t count = fromUnits.Count();
    unitIds.reserve(count);
    for (std::int32_t i = 1; i <= count; ++i) {
        if (unitIds.size() < i)
            unitIds.append(CUtility::GenerateId());
        const CUnit& from = *fromUnits.Item(i);
        auto unit = std::make_shared<CUnit>(unitIds.at(i - 1), from.Token());
        unit->SetX(from.x());
        unit->SetY(from.y());
        unit->SetCaption(from.Caption());
        unit->SetData(from.Data());
        unit->SetHasMoved(from.HasMoved());
        toUnits.AddItem(std::move(unit));
    }
    for (const auto& from : fromArrows) {
        auto arrow = std::make_shared<CArrow>(from->Id());
        arrow->SetHeadX(from->HeadX());
        arrow->SetHeadY(from->HeadY());
        arrow->SetTailX(from->TailX());
        arrow->SetTailY(from->TailY());
        arrow->SetColor(from->Color());
        toArrows.AddItem(std::move(arrow));
    }
}

void CActionNewMap::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionNewMap");
    const char* source = "CActionNewMap.Execute";
    CGame& game = CActionHelper::Game(source);
    const std::shared_ptr<CMapGroup> group = game.ActiveMapGroup();
    if (!group)
        throw KorvaneError(
            91, QLatin1String(source),
            QCoreApplication::translate("IAction", "The game has no archive to add a map to"));
    if (m_mapId.isEmpty())
        m_mapId = CUtility::GenerateId();
    scope.Denote(QStringLiteral("MapId=") + m_mapId);

    auto map = std::make_shared<CMap>(m_mapId, group->Id());
    map->SetName(m_name);
    map->SetRemarks(m_remarks);
    // Held until the map is active, so its lists are never written out on the way.
    CMapLock mapLock(map);
    if (group->Maps().Count() > 0) {
        CMapLock sourceLock(group->Maps().Item(group->Maps().Count()));
        CopyContents(*group->Maps().Item(group->Maps().Count()), *map, m_unitIds, source);
        sourceLock.Release();
    }

    CActionHelper::AddDirty(1);
    group->Maps().AddItem(map);
    CGameEventMgr& events = Root().EventMgr();
    events.NotifyOfMapAdd(m_mapId, this);
    const std::shared_ptr<CMap> previous = group->ActiveMap();
    group->SwitchTo(map);
    mapLock.Release();
    events.NotifyOfMapSwitch(previous ? previous->Id() : QString(), m_mapId, this);
}

void CActionNewMap::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionNewMap");
    const char* source = "CActionNewMap.Reverse";
    scope.Denote(QStringLiteral("MapId=") + m_mapId);
    CGame& game = CActionHelper::Game(source);
    const std::shared_ptr<CMapGroup> group = game.GroupByMapId(m_mapId);
    if (!group)
        throw KorvaneError(
            91, QLatin1String(source),
            QCoreApplication::translate("IAction", "The map %1 is not part of the open game")
                .arg(m_mapId));
    const std::shared_ptr<CMap> map =
        group->Maps().Item(CUtility::SearchById(group->Maps(), m_mapId));

    CGameEventMgr& events = Root().EventMgr();
    if (group->ActiveMap() == map) {
        // The group's last remaining map takes its place on the board.
        std::shared_ptr<CMap> other;
        for (std::int32_t i = group->Maps().Count(); i >= 1 && !other; --i) {
            if (group->Maps().Item(i) != map)
                other = group->Maps().Item(i);
        }
        group->SwitchTo(other);
        if (group == game.ActiveMapGroup())
            events.NotifyOfMapSwitch(m_mapId, other ? other->Id() : QString(), this);
    }
    group->Maps().RemoveItem(map);
    events.NotifyOfMapDelete(m_mapId, this);
    CActionHelper::AddDirty(-1);
}
