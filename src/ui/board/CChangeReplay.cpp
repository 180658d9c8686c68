#include "CChangeReplay.h"

#include "model/CUnit.h"
#include "review/CMapComparison.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CChangeUnits.h"
#include "ui/board/CUnitGhostItem.h"
#include "ui/board/CUnitItem.h"
#include "ui/board/mdcBoard.h"

#include <QGraphicsScene>
#include <QVariantAnimation>

namespace {

// Over the counters, under the arrows, like a counter being dragged.
constexpr double replayLayer = 0.6;

} // namespace

CChangeReplay::CChangeReplay(mdcBoard& board, const CMapComparison& comparison, QObject* parent)
    : QObject(parent), m_board(&board), m_glide(new QVariantAnimation(this))
{
    m_glide->setDuration(GlideMilliseconds);
    m_glide->setEasingCurve(QEasingCurve::InOutQuad);
    const std::shared_ptr<const CBoardRenderer> renderer = board.Scene()->Renderer();
    if (!renderer)
        return;
    m_layer = new CBoardLayer(replayLayer);
    board.scene()->addItem(m_layer);
    for (const CMapChange& change : comparison.Changes) {
        Step step{CChangeUnits::Before(change), CChangeUnits::After(change), change.IdAfter};
        const std::shared_ptr<const CUnit>& first = step.Before ? step.Before : step.After;
        if (!first)
            continue;
        step.Item = new CUnitGhostItem(first, renderer, m_layer);
        if (CUnitItem* own = board.ItemFor(step.BoardItemId))
            own->hide();
        showState(step, false);
        m_steps.push_back(std::move(step));
    }
}

CChangeReplay::~CChangeReplay()
{
    m_glide->stop();
    delete m_layer.data();
    if (!m_board)
        return;
    for (const Step& step : m_steps) {
        if (CUnitItem* own = m_board->ItemFor(step.BoardItemId))
            own->show();
    }
}

CUnitGhostItem* CChangeReplay::StandIn(int step) const
{
    return m_layer && step >= 0 && step < Steps() ? m_steps[step].Item : nullptr;
}

void CChangeReplay::showState(Step& step, bool played)
{
    const std::shared_ptr<const CUnit>& unit = played ? step.After : step.Before;
    step.Item->setVisible(unit != nullptr);
    if (!unit)
        return;
    step.Item->SetUnit(unit);
    step.Item->setPos(step.Item->HomeOf(*unit));
}

void CChangeReplay::FinishGlide()
{
    if (m_glide->state() == QAbstractAnimation::Running)
        m_glide->setCurrentTime(m_glide->duration());
}

bool CChangeReplay::Forward()
{
    FinishGlide();
    if (!m_layer || m_position >= Steps())
        return false;
    Step& step = m_steps[m_position++];
    if (step.Before && step.After &&
        (step.Before->x() != step.After->x() || step.Before->y() != step.After->y())) {
        // The new caption shows at once; the picture glides to its place.
        CUnitGhostItem* item = step.Item;
        step.Item->SetUnit(step.After);
        m_glide->disconnect();
        m_glide->setStartValue(item->pos());
        m_glide->setEndValue(item->HomeOf(*step.After));
        connect(m_glide, &QVariantAnimation::valueChanged, this, [this, item](const QVariant& at) {
            if (m_layer)
                item->setPos(at.toPointF());
        });
        m_glide->start();
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
