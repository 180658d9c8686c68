#include "CArrowHandles.h"

#include "actions/CActionHelper.h"
#include "core/CKorvane.h"
#include "model/CArrow.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QColor>

#include <algorithm>

namespace {

const QLatin1String headName("HEAD");
const QLatin1String tailName("TAIL");
const QLatin1String arrowTokenClass("CArrowToken");

// Takes the items that match off a list, last first, and returns them with
// their positions in ascending order.
template <typename T, typename Match>
std::vector<std::pair<std::int32_t, std::shared_ptr<T>>> takeMatching(CVector<T>& list,
                                                                      const Match& match)
{
    std::vector<std::pair<std::int32_t, std::shared_ptr<T>>> taken;
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        if (match(*list.Item(i)))
            taken.emplace_back(i, list.Item(i));
    }
    for (auto it = taken.rbegin(); it != taken.rend(); ++it)
        list.DeleteItem(it->first);
    return taken;
}

// Inserting in ascending order of the former positions rebuilds the list as
// it was, since every earlier item is back before a later one goes in.
template <typename T>
void putBack(CVector<T>& list,
             const std::vector<std::pair<std::int32_t, std::shared_ptr<T>>>& items)
{
    for (const auto& [position, item] : items)
        list.InsertItem(item, std::clamp(position, 1, list.Count() + 1));
}

} // namespace

QString CArrowHandles::HandleData(const QString& arrowId, End end)
{
    return arrowId + QLatin1Char('|') + (end == End::Head ? headName : tailName);
}

bool CArrowHandles::Parse(const QString& data, QString& arrowId, End& end)
{
    const qsizetype bar = data.lastIndexOf(QLatin1Char('|'));
    if (bar <= 0)
        return false;
    const QStringView name = QStringView(data).mid(bar + 1);
    if (name == headName)
        end = End::Head;
    else if (name == tailName)
        end = End::Tail;
    else
        return false;
    arrowId = data.left(bar);
    return true;
}

bool CArrowHandles::IsArrowToken(const IToken& token)
{
    return token.Class() == arrowTokenClass;
}

bool CArrowHandles::IsHandle(const CUnit& unit, const QString& arrowId)
{
    if (!IsArrowToken(*unit.Token()))
        return false;
    QString named;
    End end;
    return Parse(unit.Data(), named, end) && (arrowId.isEmpty() || named == arrowId);
}

std::int32_t CArrowHandles::ColorFromHtml(const QString& text)
{
    const QColor color = QColor::fromString(text.trimmed());
    if (!color.isValid())
        return FallbackColor;
    return color.red() | (color.green() << 8) | (color.blue() << 16);
}

CArrowHandles::Removal CArrowHandles::Take(CMap& map, const QString& arrowId, const char* source)
{
    CVector<CArrow>& arrows = CActionHelper::Arrows(map, source);
    CVector<CUnit>& units = CActionHelper::Units(map, source);
    Removal removal;
    removal.Arrows = takeMatching(
        arrows, [&](const CArrow& arrow) { return arrowId.isEmpty() || arrow.Id() == arrowId; });
    removal.Units = takeMatching(units, [&](const CUnit& unit) { return IsHandle(unit, arrowId); });
    return removal;
}

void CArrowHandles::PutBack(CMap& map, const Removal& removal, const char* source)
{
    CVector<CArrow>& arrows = CActionHelper::Arrows(map, source);
    CVector<CUnit>& units = CActionHelper::Units(map, source);
    putBack(arrows, removal.Arrows);
    putBack(units, removal.Units);
}

void CArrowHandles::Announce(const Removal& removal, bool restored, const void* notifySource)
{
    CGameEventMgr& events = Root().EventMgr();
    for (const auto& arrow : removal.Arrows) {
        if (restored)
            events.NotifyOfArrowAdd(arrow.second->Id(), notifySource);
        else
            events.NotifyOfArrowDelete(arrow.second->Id(), notifySource);
    }
    for (const auto& unit : removal.Units) {
        if (restored)
            events.NotifyOfUnitAdd(unit.second->Id(), notifySource);
        else
            events.NotifyOfUnitDelete(unit.second->Id(), notifySource);
    }
}
