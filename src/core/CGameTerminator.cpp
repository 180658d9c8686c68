#include "CGameTerminator.h"

#include "core/CClock.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

CGameTerminator::CGameTerminator(TimeSource now) : m_now(std::move(now))
{
    if (!m_now)
        m_now = [] { return std::chrono::steady_clock::now(); };
}

void CGameTerminator::Start(std::shared_ptr<CGame> game, TimeSource now)
{
    std::make_shared<CGameTerminator>(std::move(now))->UnloadGame(std::move(game));
}

void CGameTerminator::UnloadGame(std::shared_ptr<CGame> game)
{
    CTraceScope scope("UnloadGame", "CGameTerminator");
    m_game = std::move(game);
    if (m_game && m_game->MapGroups().Count() > 0)
        Root().Clock().InvokeAfter(SliceIntervalMs, shared_from_this());
}

void CGameTerminator::Invoke(std::int32_t, const QString&)
{
    if (!m_game)
        return;
    if (runSlice())
        Root().Clock().InvokeAfter(SliceIntervalMs, shared_from_this());
    else
        m_game.reset();
}

bool CGameTerminator::runSlice()
{
    const auto start = m_now();
    CVector<CMapGroup>& groups = m_game->MapGroups();
    while (groups.Count() > 0) {
        CVector<CMap>& maps = groups.Item(groups.Count())->Maps();
        bool timeUp = false;
        while (maps.Count() > 0 && !timeUp) {
            // Gives up the list's reference: the map and its units end here
            // unless something else still holds them.
            maps.DeleteItem(maps.Count());
            timeUp = m_now() - start >= SliceLength;
        }
        if (maps.Count() == 0)
            groups.DeleteItem(groups.Count());
        if (timeUp)
            break;
    }
    return groups.Count() > 0;
}
