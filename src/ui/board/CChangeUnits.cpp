#include "CChangeUnits.h"

#include "model/CGame.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "review/CMapChange.h"
#include "ui/board/CMapState.h"

#include <QRectF>

namespace {

std::shared_ptr<const CUnit> detached(const CMapChange& change, const QString& id, QPoint at,
                                      const QString& caption, const QString& data)
{
    const std::shared_ptr<CGame> game = CMapState::OpenGame();
    auto token = game ? game->TokenById(change.TokenId) : nullptr;
    if (!token)
        return nullptr;
    auto unit = std::make_shared<CUnit>(id, std::move(token));
    unit->SetX(at.x());
    unit->SetY(at.y());
    unit->SetCaption(caption);
    unit->SetData(data);
    return unit;
}

} // namespace

std::shared_ptr<const CUnit> CChangeUnits::Before(const CMapChange& change)
{
    if (change.IsArrow() || !change.HasFrom())
        return nullptr;
    return detached(change, change.IdBefore, change.From, change.CaptionBefore, change.DataBefore);
}

std::shared_ptr<const CUnit> CChangeUnits::After(const CMapChange& change)
{
    if (change.IsArrow() || !change.HasTo())
        return nullptr;
    return detached(change, change.IdAfter, change.To, change.CaptionAfter, change.DataAfter);
}

std::shared_ptr<const CUnit> CChangeUnits::Handle(const CMapChange& change, QPoint at)
{
    if (!change.IsArrow() || change.TokenId.isEmpty())
        return nullptr;
    return detached(change, QString(), at, QString(), QString());
}

QPointF CChangeUnits::Centre(const CBoardRenderer& renderer, const CUnit& unit)
{
    return QRectF(renderer.PictureRect(unit)).center();
}
