#include "CActToolResetMoved.h"

#include "actions/CActionHelper.h"
#include "actions/CActionMgr.h"
#include "actions/CActionResetAllMoved.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CMap.h"
#include "model/CUnit.h"

void CActToolResetMoved::Invoke()
{
    CTraceScope scope("Invoke", "CActToolResetMoved");
    const std::shared_ptr<CMap> map = CActionHelper::CurrentMap();
    if (!map || !map->Units())
        return;
    auto action = std::make_shared<CActionResetAllMoved>();
    action->SetMapId(map->Id());
    for (const auto& unit : *map->Units()) {
        if (unit->HasMoved())
            action->Add(unit->Id());
    }
    if (action->UnitIds().isEmpty())
        return;
    Root().ActionMgr().Execute(std::move(action));
}
