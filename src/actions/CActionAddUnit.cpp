#include "CActionAddUnit.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QCoreApplication>

void CActionAddUnit::Execute()
{
    CTraceScope scope("IAction_Execute", "CActionAddUnit");
    const char* source = "CActionAddUnit.Execute";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    CVector<CUnit>& units = CActionHelper::Units(*map, source);
    const std::shared_ptr<IToken> token = CActionHelper::Game(source).TokenById(m_tokenId);
    if (!token)
        throw KorvaneError(
            91, QLatin1String(source),
            QCoreApplication::translate("IAction",
                                        "The counter \"%1\" is not part of the active game module")

                .arg(m_tokenId));
    if (m_unitId.isEmpty())
        m_unitId = CUtility::GenerateId();
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);

    auto unit = std::make_shared<CUnit>(m_unitId, token);
    unit->SetX(m_x);
    unit->SetY(m_y);
    unit->SetCaption(token->DefaultCaption());
    unit->SetData(token->DefaultData());
    units.AddItem(std::move(unit));
    CActionHelper::AddDirty(1);
    Root().EventMgr().NotifyOfUnitAdd(m_unitId, this);
}

void CActionAddUnit::Reverse()
{
    CTraceScope scope("IAction_Reverse", "CActionAddUnit");
    const char* source = "CActionAddUnit.Reverse";
    const auto map = CActionHelper::EnterMap(m_mapId, this, source);
    scope.Denote(QStringLiteral("UnitId=") + m_unitId);
    CVector<CUnit>& units = CActionHelper::Units(*map, source);
    const std::int32_t position = CActionHelper::UnitPosition(units, m_unitId);
    if (position == 0)
        throw KorvaneError(91, QLatin1String(source),
                           QCoreApplication::translate("IAction", "The unit %1 is not on map %2")
                               .arg(m_unitId, m_mapId));
    units.DeleteItem(position);
    CActionHelper::AddDirty(-1);
    Root().EventMgr().NotifyOfUnitDelete(m_unitId, this);
}
