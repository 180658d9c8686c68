#include "CArrowToken.h"

#include "actions/CActionAddArrow.h"
#include "actions/CActionDeleteArrow.h"
#include "actions/CActionMoveArrow.h"
#include "actions/CArrowHandles.h"
#include "core/CTraceScope.h"
#include "model/CUnit.h"

#include <QCoreApplication>

QString CArrowToken::Class() const
{
    return QStringLiteral("CArrowToken");
}

void CArrowToken::HandleRightClick(const std::shared_ptr<CUnit>& unit)
{
    CTraceScope scope("HandleRightClick", "CArrowToken");
    const QString mapId = CurrentMapId();
    if (!unit || mapId.isEmpty())
        return;
    if (ShowMenu({{QCoreApplication::translate("CTokenBase", "&Delete"),
                   QStringLiteral("DELETE")}}) != QLatin1String("DELETE"))
        return;
    QString arrowId;
    CArrowHandles::End end;
    if (!CArrowHandles::Parse(unit->Data(), arrowId, end)) {
        // A handle that names no arrow goes by itself.
        DeleteUnit(unit);
        return;
    }
    auto action = std::make_shared<CActionDeleteArrow>();
    action->SetMapId(mapId);
    action->SetArrowId(arrowId);
    Execute(std::move(action));
}

void CArrowToken::HandleMove(std::int32_t x, std::int32_t y, const std::shared_ptr<CUnit>& unit)
{
    CTraceScope scope("HandleMove", "CArrowToken");
    const QString mapId = CurrentMapId();
    if (!unit || mapId.isEmpty())
        return;
    auto action = std::make_shared<CActionMoveArrow>();
    action->SetMapId(mapId);
    action->SetPosition(x, y);
    action->SetUnitId(unit->Id());
    action->SetData(unit->Data());
    Execute(std::move(action));
}

void CArrowToken::HandleDrop(std::int32_t x, std::int32_t y)
{
    CTraceScope scope("HandleDrop", "CArrowToken");
    const QString mapId = CurrentMapId();
    if (mapId.isEmpty())
        return;
    auto action = std::make_shared<CActionAddArrow>();
    action->SetMapId(mapId);
    action->SetTokenId(Id());
    action->SetPosition(x, y);
    Execute(std::move(action));
}
