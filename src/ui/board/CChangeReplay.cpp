#include "CChangeReplay.h"

#include "actions/CArrowHandles.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "review/CMapComparison.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CChangeUnits.h"
#include "ui/board/CMapState.h"
#include "ui/board/CUnitGhostItem.h"
#include "ui/board/CUnitItem.h"
#include "ui/board/arcArrows.h"
#include "ui/board/mdcBoard.h"

#include <QGraphicsScene>
#include <QSet>
#include <QVariantAnimation>

#include <cmath>

namespace {

// Over the counters, under the arrows, like a counter being dragged.
constexpr double replayLayer = 0.6;
// The replay's arrows over its stand-ins, as the board's are over counters.
constexpr double arrowsInLayer = 1;

QPointF between(QPointF from, QPointF to, double progress)
{
    return from + (to - from) * progress;
}

std::int32_t rounded(double v)
{
    return static_cast<std::int32_t>(std::lround(v));
}

} // namespace

CChangeReplay::CChangeReplay(mdcBoard& board, const CMapComparison& comparison, QObject* parent)
    : QObject(parent), m_board(&board), m_pictures(board.Scene()->Pictures()),
      m_glide(new QVariantAnimation(this))
{
    m_glide->setDuration(GlideMilliseconds);
    m_glide->setEasingCurve(QEasingCurve::InOutQuad);
    const std::shared_ptr<const CBoardRenderer> renderer = board.Scene()->Renderer();
    if (!renderer)
        return;
    m_layer = new CBoardLayer(replayLayer);
    board.scene()->addItem(m_layer);
    m_arrows = new arcArrows(m_layer);
    m_arrows->setZValue(arrowsInLayer);
    m_arrows->SetRenderer(renderer);
    m_arrows->CopyArrowsOf(CMapState::ActiveMap().get());
    std::vector<QString> changedArrows;
    for (const CMapChange& change : comparison.Changes) {
        if (change.IsArrow()) {
            if (change.HasTo())
                changedArrows.push_back(change.IdAfter);
            addArrowStep(change, renderer);
            continue;
        }
        Step step;
        step.Before = CChangeUnits::Before(change);
        step.After = CChangeUnits::After(change);
        const std::shared_ptr<const CUnit>& first = step.Before ? step.Before : step.After;
        if (!first)
            continue;
        step.Item = new CUnitGhostItem(first, renderer, m_pictures, m_layer);
        m_hidden.push_back(change.IdAfter);
        showState(step, false);
        m_steps.push_back(std::move(step));
    }
    hideBoardItems(board, changedArrows);
    if (board.Arrows())
        board.Arrows()->hide();
}

CChangeReplay::~CChangeReplay()
{
    m_glide->stop();
    delete m_layer.data();
    if (!m_board)
        return;
    for (const QString& id : m_hidden) {
        if (CUnitItem* own = m_board->ItemFor(id))
            own->show();
    }
    if (m_board->Arrows())
        m_board->Arrows()->show();
}

void CChangeReplay::addArrowStep(const CMapChange& change,
                                 const std::shared_ptr<const CBoardRenderer>& renderer)
{
    Step step;
    step.Arrow = change;
    step.ArrowId = change.HasTo() ? change.IdAfter : change.IdBefore;
    const QPoint tail = change.HasFrom() ? change.From : change.To;
    const QPoint head = change.HasFrom() ? change.FromHead : change.ToHead;
    if (std::shared_ptr<const CUnit> handle = CChangeUnits::Handle(change, tail))
        step.Tail = new CUnitGhostItem(handle, renderer, m_pictures, m_layer);
    if (std::shared_ptr<const CUnit> handle = CChangeUnits::Handle(change, head))
        step.Head = new CUnitGhostItem(handle, renderer, m_pictures, m_layer);
    showArrow(step, false);
    m_steps.push_back(std::move(step));
}

void CChangeReplay::hideBoardItems(const mdcBoard& board, const std::vector<QString>& changedArrows)
{
    // The handles of the arrows the replay draws itself.
    const QSet<QString> arrowIds(changedArrows.begin(), changedArrows.end());
    const std::shared_ptr<CMap> shown = CMapState::ActiveMap();
    const CVector<CUnit>* units = shown ? shown->Units() : nullptr;
    if (units && !arrowIds.isEmpty()) {
        for (const auto& unit : *units) {
            QString arrowId;
            CArrowHandles::End end;
            if (CArrowHandles::Parse(unit->Data(), arrowId, end) && arrowIds.contains(arrowId))
                m_hidden.push_back(unit->Id());
        }
    }
    for (const QString& id : m_hidden) {
        if (CUnitItem* own = board.ItemFor(id))
            own->hide();
    }
}

CUnitGhostItem* CChangeReplay::StandIn(int step) const
{
    return m_layer && step >= 0 && step < Steps() ? m_steps[step].Item : nullptr;
}

const arcArrows* CChangeReplay::Arrows() const
{
    return m_layer ? m_arrows : nullptr;
}

void CChangeReplay::showState(Step& step, bool played)
{
    if (step.Arrow) {
        showArrow(step, played);
        return;
    }
    const std::shared_ptr<const CUnit>& unit = played ? step.After : step.Before;
    step.Item->setVisible(unit != nullptr);
    if (!unit)
        return;
    step.Item->SetUnit(unit);
    step.Item->setPos(step.Item->HomeOf(*unit));
}

void CChangeReplay::showArrow(Step& step, bool played)
{
    const CMapChange& change = *step.Arrow;
    if (!(played ? change.HasTo() : change.HasFrom())) {
        m_arrows->Delete(step.ArrowId);
        for (CUnitGhostItem* handle : {step.Tail, step.Head})
            if (handle)
                handle->hide();
        return;
    }
    placeArrow(step, played ? change.To : change.From, played ? change.ToHead : change.FromHead);
}

void CChangeReplay::placeArrow(Step& step, QPointF tail, QPointF head)
{
    m_arrows->Replace(step.ArrowId, rounded(head.x()), rounded(head.y()), rounded(tail.x()),
                      rounded(tail.y()), step.Arrow->Color);
    // A handle's picture has its corner at the arrow's end, as on the board.
    if (step.Tail) {
        step.Tail->setPos(tail);
        step.Tail->show();
    }
    if (step.Head) {
        step.Head->setPos(head);
        step.Head->show();
    }
}

void CChangeReplay::FinishGlide()
{
    if (m_glide->state() == QAbstractAnimation::Running)
        m_glide->setCurrentTime(m_glide->duration());
}

void CChangeReplay::glide(std::function<void(double)> at)
{
    m_glide->disconnect();
    m_glide->setStartValue(0.0);
    m_glide->setEndValue(1.0);
    connect(m_glide, &QVariantAnimation::valueChanged, this,
            [this, at = std::move(at)](const QVariant& progress) {
                if (m_layer)
                    at(progress.toDouble());
            });
    m_glide->start();
}

bool CChangeReplay::Forward()
{
    FinishGlide();
    if (!m_layer || m_position >= Steps())
        return false;
    Step& step = m_steps[m_position++];
    const CMapChange* arrow = step.Arrow ? &*step.Arrow : nullptr;
    if (arrow && arrow->Kind == CMapChange::ChangeKind::Moved) {
        glide([this, &step, arrow](double progress) {
            placeArrow(step, between(arrow->From, arrow->To, progress),
                       between(arrow->FromHead, arrow->ToHead, progress));
        });
    } else if (step.Before && step.After &&
               (step.Before->x() != step.After->x() || step.Before->y() != step.After->y())) {
        // The new caption shows at once; the picture glides to its place.
        CUnitGhostItem* item = step.Item;
        step.Item->SetUnit(step.After);
        const QPointF from = item->pos();
        const QPointF to = item->HomeOf(*step.After);
        glide([item, from, to](double progress) { item->setPos(between(from, to, progress)); });
    } else {
        showState(step, true);
    }
    Q_EMIT Moved(m_position, Steps());
    return true;
}

bool CChangeReplay::Back()
{
    FinishGlide();
    if (!m_layer || m_position <= 0)
        return false;
    showState(m_steps[--m_position], false);
    Q_EMIT Moved(m_position, Steps());
    return true;
}
