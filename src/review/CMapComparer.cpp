#include "CMapComparer.h"

#include "review/CMapSnapshot.h"
#include "review/CPairing.h"

#include <QHash>

#include <unordered_map>

namespace {

using Unit = CMapSnapshot::Unit;
using Arrow = CMapSnapshot::Arrow;

// What a unit is apart from its id; identical units pair first.
std::size_t identityOf(const Unit& unit)
{
    return qHashMulti(0, unit.X, unit.Y, unit.Caption, unit.Data);
}
bool identical(const Unit& a, const Unit& b)
{
    return a.X == b.X && a.Y == b.Y && a.Caption == b.Caption && a.Data == b.Data;
}
std::size_t identityOf(const Arrow& arrow)
{
    return qHashMulti(0, arrow.TailX, arrow.TailY, arrow.HeadX, arrow.HeadY);
}
bool identical(const Arrow& a, const Arrow& b)
{
    return a.TailX == b.TailX && a.TailY == b.TailY && a.HeadX == b.HeadX && a.HeadY == b.HeadY;
}

// Units pair within their token; arrows within their token and colour.
QString groupOf(const Unit& unit)
{
    return unit.TokenId;
}
QString groupOf(const Arrow& arrow)
{
    return arrow.TokenId + QLatin1Char('#') + QString::number(arrow.Color);
}

CPairing::Item itemOf(const Unit& unit)
{
    return {static_cast<double>(unit.X), static_cast<double>(unit.Y), 0, 0,
            static_cast<std::uint64_t>(qHashMulti(0, unit.Caption, unit.Data))};
}
CPairing::Item itemOf(const Arrow& arrow)
{
    return {static_cast<double>(arrow.TailX), static_cast<double>(arrow.TailY),
            static_cast<double>(arrow.HeadX), static_cast<double>(arrow.HeadY), 0};
}

// Fills olderPartner/newerPartner (index into the other list, or -1).
template <typename T>
void pairLists(const std::vector<T>& older, const std::vector<T>& newer,
               std::vector<int>& olderPartner, std::vector<int>& newerPartner)
{
    olderPartner.assign(older.size(), -1);
    newerPartner.assign(newer.size(), -1);
    QHash<QString, std::vector<int>> olderGroups;
    QHash<QString, std::vector<int>> newerGroups;
    for (std::size_t i = 0; i < older.size(); ++i)
        olderGroups[groupOf(older[i])].push_back(static_cast<int>(i));
    for (std::size_t i = 0; i < newer.size(); ++i)
        newerGroups[groupOf(newer[i])].push_back(static_cast<int>(i));

    for (auto group = newerGroups.cbegin(); group != newerGroups.cend(); ++group) {
        const auto olderGroup = olderGroups.constFind(group.key());
        if (olderGroup == olderGroups.cend())
            continue;
        // Identical ones first, in list order, so that swaps and reorders
        // of like items vanish.
        std::unordered_map<std::size_t, std::vector<int>> byIdentity;
        for (auto it = olderGroup->crbegin(); it != olderGroup->crend(); ++it)
            byIdentity[identityOf(older[static_cast<std::size_t>(*it)])].push_back(*it);
        std::vector<int> restNewer;
        for (const int n : group.value()) {
            const T& item = newer[static_cast<std::size_t>(n)];
            auto found = byIdentity.find(identityOf(item));
            bool paired = false;
            if (found != byIdentity.end()) {
                auto& candidates = found->second;
                for (auto it = candidates.rbegin(); it != candidates.rend(); ++it) {
                    if (identical(older[static_cast<std::size_t>(*it)], item)) {
                        olderPartner[static_cast<std::size_t>(*it)] = n;
                        newerPartner[static_cast<std::size_t>(n)] = *it;
                        candidates.erase(std::next(it).base());
                        paired = true;
                        break;
                    }
                }
            }
            if (!paired)
                restNewer.push_back(n);
        }
        std::vector<int> restOlder;
        for (const int o : *olderGroup) {
            if (olderPartner[static_cast<std::size_t>(o)] < 0)
                restOlder.push_back(o);
        }
        if (restOlder.empty() || restNewer.empty())
            continue;

        std::vector<CPairing::Item> olderItems, newerItems;
        olderItems.reserve(restOlder.size());
        newerItems.reserve(restNewer.size());
        for (const int o : restOlder)
            olderItems.push_back(itemOf(older[static_cast<std::size_t>(o)]));
        for (const int n : restNewer)
            newerItems.push_back(itemOf(newer[static_cast<std::size_t>(n)]));
        const std::vector<int> partner =
            CPairing::Pair(olderItems, newerItems, CMapComparer::ExactLimit);
        for (std::size_t k = 0; k < partner.size(); ++k) {
            if (partner[k] < 0)
                continue;
            const int o = restOlder[k];
            const int n = restNewer[static_cast<std::size_t>(partner[k])];
            olderPartner[static_cast<std::size_t>(o)] = n;
            newerPartner[static_cast<std::size_t>(n)] = o;
        }
    }
}

CMapChange unitChange(CMapChange::ChangeKind kind, const Unit* before, const Unit* after)
{
    CMapChange change;
    change.Kind = kind;
    change.Subject = CMapChange::ChangeSubject::Unit;
    const Unit& either = after ? *after : *before;
    change.TokenId = either.TokenId;
    change.TokenCaption = either.TokenCaption;
    if (before) {
        change.CaptionBefore = before->Caption;
        change.DataBefore = before->Data;
        change.From = QPoint(before->X, before->Y);
        change.IdBefore = before->Id;
    }
    if (after) {
        change.CaptionAfter = after->Caption;
        change.DataAfter = after->Data;
        change.To = QPoint(after->X, after->Y);
        change.IdAfter = after->Id;
    }
    return change;
}

CMapChange arrowChange(CMapChange::ChangeKind kind, const Arrow* before, const Arrow* after)
{
    CMapChange change;
    change.Kind = kind;
    change.Subject = CMapChange::ChangeSubject::Arrow;
    const Arrow& either = after ? *after : *before;
    change.TokenId = either.TokenId;
    change.TokenCaption = either.TokenCaption;
    change.Color = either.Color;
    if (before) {
        change.From = QPoint(before->TailX, before->TailY);
        change.FromHead = QPoint(before->HeadX, before->HeadY);
        change.IdBefore = before->Id;
    }
    if (after) {
        change.To = QPoint(after->TailX, after->TailY);
        change.ToHead = QPoint(after->HeadX, after->HeadY);
        change.IdAfter = after->Id;
    }
    return change;
}

void compareUnits(const CMapSnapshot& older, const CMapSnapshot& newer, CMapComparison& result)
{
    std::vector<int> olderPartner, newerPartner;
    pairLists(older.Units, newer.Units, olderPartner, newerPartner);
    using Kind = CMapChange::ChangeKind;
    for (std::size_t n = 0; n < newer.Units.size(); ++n) {
        const Unit& after = newer.Units[n];
        if (newerPartner[n] < 0) {
            result.Changes.push_back(unitChange(Kind::Added, nullptr, &after));
            ++result.Count.Added;
            continue;
        }
        const Unit& before = older.Units[static_cast<std::size_t>(newerPartner[n])];
        if (before.X != after.X || before.Y != after.Y) {
            result.Changes.push_back(unitChange(Kind::Moved, &before, &after));
            ++result.Count.Moved;
        } else if (before.Caption != after.Caption || before.Data != after.Data) {
            result.Changes.push_back(unitChange(Kind::Changed, &before, &after));
            ++result.Count.Changed;
        }
    }
    for (std::size_t o = 0; o < older.Units.size(); ++o) {
        if (olderPartner[o] >= 0)
            continue;
        result.Changes.push_back(unitChange(Kind::Removed, &older.Units[o], nullptr));
        ++result.Count.Removed;
    }
}

void compareArrows(const CMapSnapshot& older, const CMapSnapshot& newer, CMapComparison& result)
{
    std::vector<int> olderPartner, newerPartner;
    pairLists(older.Arrows, newer.Arrows, olderPartner, newerPartner);
    using Kind = CMapChange::ChangeKind;
    for (std::size_t n = 0; n < newer.Arrows.size(); ++n) {
        const Arrow& after = newer.Arrows[n];
        if (newerPartner[n] < 0) {
            result.Changes.push_back(arrowChange(Kind::Added, nullptr, &after));
            ++result.Count.ArrowsAdded;
            continue;
        }
        const Arrow& before = older.Arrows[static_cast<std::size_t>(newerPartner[n])];
        if (!identical(before, after)) {
            result.Changes.push_back(arrowChange(Kind::Moved, &before, &after));
            ++result.Count.ArrowsMoved;
        }
    }
    for (std::size_t o = 0; o < older.Arrows.size(); ++o) {
        if (olderPartner[o] >= 0)
            continue;
        result.Changes.push_back(arrowChange(Kind::Removed, &older.Arrows[o], nullptr));
        ++result.Count.ArrowsRemoved;
    }
}

} // namespace

CMapComparison CMapComparer::Compare(const std::shared_ptr<CMap>& older,
                                     const std::shared_ptr<CMap>& newer)
{
    // Each map is copied and let go before the next is read, so at most one
    // swapped-out map is in memory at a time.
    const CMapSnapshot before = CMapSnapshot::Of(older);
    const CMapSnapshot after = CMapSnapshot::Of(newer);
    return Compare(before, after);
}

CMapComparison CMapComparer::Compare(const CMapSnapshot& older, const CMapSnapshot& newer)
{
    CMapComparison result;
    result.NameBefore = older.Name;
    result.NameAfter = newer.Name;
    result.NameChanged = older.Name != newer.Name;
    result.TextChanged = older.Text != newer.Text;
    compareUnits(older, newer, result);
    compareArrows(older, newer, result);
    return result;
}
