#include "CMapSnapshot.h"

#include "actions/CArrowHandles.h"
#include "actions/CMapLock.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QHash>

#include <optional>

namespace {

void copyLists(const CMap& map, CMapSnapshot& snapshot)
{
    // An arrow's token is the one its handles were placed with.
    QHash<QString, const IToken*> arrowTokens;
    if (const CVector<CUnit>* units = map.Units()) {
        snapshot.Units.reserve(static_cast<std::size_t>(units->Count()));
        for (const auto& unit : *units) {
            const IToken& token = *unit->Token();
            QString arrowId;
            CArrowHandles::End end;
            if (CArrowHandles::IsArrowToken(token) &&
                CArrowHandles::Parse(unit->Data(), arrowId, end)) {
                arrowTokens.insert(arrowId, &token);
                continue;
            }
            snapshot.Units.push_back({unit->Id(), token.Id(), token.Caption(), unit->x(), unit->y(),
                                      unit->Caption(), unit->Data()});
        }
    }
    if (const CVector<CArrow>* arrows = map.Arrows()) {
        snapshot.Arrows.reserve(static_cast<std::size_t>(arrows->Count()));
        for (const auto& arrow : *arrows) {
            CMapSnapshot::Arrow copy{arrow->Id(),    QString(),      QString(),
                                     arrow->TailX(), arrow->TailY(), arrow->HeadX(),
                                     arrow->HeadY(), arrow->Color()};
            if (const IToken* token = arrowTokens.value(arrow->Id())) {
                copy.TokenId = token->Id();
                copy.TokenCaption = token->Caption();
            }
            snapshot.Arrows.push_back(std::move(copy));
        }
    }
}

} // namespace

CMapSnapshot CMapSnapshot::Of(const std::shared_ptr<CMap>& map)
{
    CMapSnapshot snapshot;
    if (!map)
        return snapshot;
    snapshot.Name = map->Name();
    snapshot.Text = map->Text();
    // A locked map is read where it is; any other is locked for the copy
    // only, so one that was swapped out goes back to its swap file.
    std::optional<CMapLock> lock;
    if (map->LockCount() <= 0)
        lock.emplace(map);
    copyLists(*map, snapshot);
    return snapshot;
}
