#include "CActionAddArrow.h"

#include "actions/CActionHelper.h"
#include "actions/CArrowHandles.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QCoreApplication>

namespace {

// Toward the middle: forward when at most half way across, else back.
std::int32_t headCoordinate(std::int32_t tail, std::int32_t boardSize)
{
    const std::int64_t t = tail;
    const std::int64_t offset = CActionAddArrow::HeadOffset;
    return CActionHelper::Clamp32(2 * t <= boardSize ? t + offset : t - offset);
}

} // namespace

void CActionAddArrow::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionAddArrow");
    const char* source = "CActionAddArrow.Execute";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    CVector<CArrow>& arrows = CActionHelper::Arrows(*map, source);
    CVector<CUnit>& units = CActionHelper::Units(*map, source);
    const std::shared_ptr<IToken> token = CActionHelper::Game(source).TokenById(m_tokenId);
    const std::shared_ptr<IGameContext>& context = Root().Context();
    if (!token || !context)
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate(
                               "IAction", "The arrow \"%1\" is not part of the active game module")

                               .arg(m_tokenId));
    if (m_arrowId.isEmpty()) {
        m_arrowId = CUtility::GenerateId();
        m_headUnitId = CUtility::GenerateId();
        m_tailUnitId = CUtility::GenerateId();
    }
    scope.Denote(QStringLiteral("ArrowId=") + m_arrowId);

    auto arrow = std::make_shared<CArrow>(m_arrowId);
    arrow->SetTailX(m_x);
    arrow->SetTailY(m_y);
    arrow->SetHeadX(headCoordinate(m_x, context->MapWidth()));
    arrow->SetHeadY(headCoordinate(m_y, context->MapHeight()));
    arrow->SetColor(CArrowHandles::ColorFromHtml(token->Custom()));

    const auto handle = [&](const QString& id, CArrowHandles::End end, std::int32_t x,
                            std::int32_t y) {
        auto unit = std::make_shared<CUnit>(id, token);
        unit->SetX(x);
        unit->SetY(y);
        unit->SetCaption(token->DefaultCaption());
        unit->SetData(CArrowHandles::HandleData(m_arrowId, end));
        return unit;
    };
    auto head = handle(m_headUnitId, CArrowHandles::End::Head, arrow->HeadX(), arrow->HeadY());
    auto tail = handle(m_tailUnitId, CArrowHandles::End::Tail, arrow->TailX(), arrow->TailY());
    arrows.AddItem(std::move(arrow));
    units.AddItem(std::move(head));
    units.AddItem(std::move(tail));

    CActionHelper::AddDirty(1);
    CGameEventMgr& events = Root().EventMgr();
    events.NotifyOfArrowAdd(m_arrowId, this);
    events.NotifyOfUnitAdd(m_headUnitId, this);
    events.NotifyOfUnitAdd(m_tailUnitId, this);
}

void CActionAddArrow::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionAddArrow");
    const char* source = "CActionAddArrow.Reverse";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("ArrowId=") + m_arrowId);
    if (CUtility::SearchById(CActionHelper::Arrows(*map, source), m_arrowId) == 0)
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate("IAction", "The arrow %1 is not on map %2")
                               .arg(m_arrowId, m_mapId));
    const CArrowHandles::Removal removed = CArrowHandles::Take(*map, m_arrowId, source);

    CActionHelper::AddDirty(-1);
    CGameEventMgr& events = Root().EventMgr();
    events.NotifyOfArrowDelete(m_arrowId, this);
    for (const auto& unit : removed.Units)
        events.NotifyOfUnitDelete(unit.second->Id(), this);
}
