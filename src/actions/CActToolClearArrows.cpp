#include "CActToolClearArrows.h"

#include "actions/CActionClearArrows.h"
#include "actions/CActionHelper.h"
#include "actions/CActionMgr.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CMap.h"

void CActToolClearArrows::Invoke()
{
    CTraceScope scope("Invoke", "CActToolClearArrows");
    const std::shared_ptr<CMap> map = CActionHelper::CurrentMap();
    if (!map || !map->Arrows() || map->Arrows()->Count() == 0)
        return;
    auto action = std::make_shared<CActionClearArrows>();
    action->SetMapId(map->Id());
    Root().ActionMgr().Execute(std::move(action));
}
