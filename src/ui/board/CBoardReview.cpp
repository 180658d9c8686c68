#include "CBoardReview.h"

#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "render/CBoardRenderer.h"
#include "review/CMapComparer.h"
#include "review/CMapHistory.h"
#include "ui/board/CBoardScene.h"
#include "ui/board/CChangeReplay.h"
#include "ui/board/CChangeUnits.h"
#include "ui/board/CMapState.h"
#include "ui/board/mdcBoard.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace {

// The comparison of base and shown; none when a map cannot be read.
CMapComparison compare(const std::shared_ptr<CMap>& base, const std::shared_ptr<CMap>& shown)
{
    if (!base || !shown)
        return CMapComparison();
    try {
        return CMapComparer::Compare(base, shown);
    } catch (const KorvaneError&) {
        return CMapComparison();
    }
}

} // namespace

CBoardReview::CBoardReview(mdcBoard* board)
    : QObject(board), m_board(board), m_progress(new QLabel(board->viewport()))
{
    m_progress->setObjectName(QStringLiteral("lblReplay"));
    m_progress->setAutoFillBackground(true);
    m_progress->setMargin(6);
    m_progress->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_progress->setToolTip(tr("Space or Right: next change. Left: back. Escape: end."));
    m_progress->hide();
    connect(board->Scene(), &CBoardScene::Rebuilt, this, &CBoardReview::boardRebuilt);
    connect(board->Scene(), &CBoardScene::ModelFollowed, this, &CBoardReview::modelChanged);
}

CBoardReview::~CBoardReview()
{
    m_replay.reset();
}

std::shared_ptr<CMap> CBoardReview::Base() const
{
    const std::shared_ptr<CGame> game = CMapState::OpenGame();
    const std::shared_ptr<CMap> shown = CMapState::ActiveMap();
    if (!game || !shown)
        return nullptr;
    if (!m_chosenBaseId.isEmpty()) {
        std::shared_ptr<CMap> chosen = game->MapById(m_chosenBaseId);
        if (chosen && chosen != shown)
            return chosen;
    }
    return CMapHistory::MapBefore(*game, *shown);
}

void CBoardReview::SetShown(bool shown)
{
    if (shown == m_shown)
        return;
    m_shown = shown;
    RefreshNow();
}

void CBoardReview::CompareWith(const std::shared_ptr<CMap>& base)
{
    m_chosenBaseId = base ? base->Id() : QString();
    m_shown = true;
    RefreshNow();
}

QString CBoardReview::Summary() const
{
    if (!m_shown || !Base())
        return QString();
    return tr("%1 → %2: %3")
        .arg(m_comparison.NameBefore, m_comparison.NameAfter, m_comparison.Summary());
}

void CBoardReview::RefreshNow()
{
    m_refreshDue = false;
    const std::shared_ptr<const CBoardRenderer> renderer =
        m_board ? m_board->Scene()->Renderer() : nullptr;
    const std::shared_ptr<CMap> base = m_shown ? Base() : nullptr;
    m_comparison = compare(base, CMapState::ActiveMap());
    if (base && renderer)
        m_overlay.Show(*m_board->Scene(), m_comparison);
    else
        m_overlay.Clear();
    // The replay draws the changes in its own way.
    m_overlay.SetVisible(!m_replay);
    Q_EMIT ComparisonChanged();
}

void CBoardReview::boardRebuilt()
{
    // A chosen base gone with its game gives way to the map before; the
    // replay lost its drawings with the board's old scene.
    const std::shared_ptr<CGame> game = CMapState::OpenGame();
    if (!m_chosenBaseId.isEmpty() && (!game || !game->MapById(m_chosenBaseId)))
        m_chosenBaseId.clear();
    EndReplay();
    RefreshNow();
}

void CBoardReview::modelChanged()
{
    EndReplay();
    if (!m_shown || m_refreshDue)
        return;
    // A burst of notifications (a merge, an undo of many) compares once.
    m_refreshDue = true;
    QTimer::singleShot(0, this, [this] {
        if (m_refreshDue)
            RefreshNow();
    });
}

QPointF CBoardReview::PlaceOf(int index) const
{
    const std::shared_ptr<const CBoardRenderer> renderer =
        m_board ? m_board->Scene()->Renderer() : nullptr;
    if (index < 0 || index >= static_cast<int>(m_comparison.Changes.size()) || !renderer)
        return QPointF();
    const CMapChange& change = m_comparison.Changes[static_cast<std::size_t>(index)];
    if (change.IsArrow())
        return QPointF(change.HasTo() ? change.ToHead : change.FromHead) + renderer->ArrowOrigin();
    const std::shared_ptr<const CUnit> unit =
        change.HasTo() ? CChangeUnits::After(change) : CChangeUnits::Before(change);
    return unit ? CChangeUnits::Centre(*renderer, *unit)
                : QPointF(change.HasTo() ? change.To : change.From);
}

void CBoardReview::ScrollTo(int index)
{
    if (m_board && index >= 0 && index < static_cast<int>(m_comparison.Changes.size()))
        m_board->centerOn(PlaceOf(index));
}

QImage CBoardReview::Picture(double scale) const
{
    if (!m_board)
        return QImage();
    if (qFuzzyCompare(scale, 1.0))
        return m_board->PaintToPbox();
    const QRectF area = m_board->scene()->sceneRect();
    QImage image((area.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    m_board->scene()->render(&painter, QRectF(image.rect()), area);
    return image;
}

bool CBoardReview::StartReplay()
{
    EndReplay();
    const std::shared_ptr<CMap> base = Base();
    if (!m_board || !base)
        return false;
    const CMapComparison comparison = compare(base, CMapState::ActiveMap());
    m_replay = std::make_unique<CChangeReplay>(*m_board, comparison);
    connect(m_replay.get(), &CChangeReplay::Moved, this, &CBoardReview::showProgress);
    m_overlay.SetVisible(false);
    m_board->installEventFilter(this);
    showProgress(0, m_replay->Steps());
    m_board->setFocus();
    Q_EMIT ReplayChanged();
    return true;
}

void CBoardReview::EndReplay()
{
    if (!m_replay)
        return;
    m_replay.reset();
    if (m_board)
        m_board->removeEventFilter(this);
    m_progress->hide();
    m_overlay.SetVisible(true);
    Q_EMIT ReplayChanged();
}

void CBoardReview::showProgress(int position, int steps)
{
    m_progress->setText(tr("%1 of %2").arg(position).arg(steps));
    m_progress->adjustSize();
    // Bottom right of the view, where it hides the least of the board's top
    // left corner, which most maps fill first.
    const QSize room = m_progress->parentWidget()->size() - m_progress->size();
    m_progress->move(std::max(0, room.width() - 8), std::max(0, room.height() - 8));
    m_progress->show();
    m_progress->raise();
}

bool CBoardReview::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_replay || watched != m_board || event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Space:
    case Qt::Key_Right:
        m_replay->Forward();
        return true;
    case Qt::Key_Left:
        m_replay->Back();
        return true;
    case Qt::Key_Escape:
        EndReplay();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}
