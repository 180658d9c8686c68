// The board window on a large map: a 10,000 x 10,000 board picture, 2,000
// counters with labels and 100 arrows, seen through a 1,920 x 1,080 view.
// Measures showing the map (the board's rebuild and its first paint), one
// drag step (the counter follows the pointer and the exposed region is
// painted), and the process's resident memory. The baseline, in the same
// run, draws the same map with the board renderer into a picture of the
// view's size: what showing the map costs without a scene. The same full
// repaint and drag step are measured zoomed out and in (25 %, 50 %, 200 %,
// 400 %), where most counters are in view or each is large. Those counters
// are the process's CPU time (the painter's helper threads included), which
// other work on a shared machine does not inflate as it does wall-clock time.
#include "BoardViewBench.h"
#include "ThreadCpuClock.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "tokens/CTokenFactory.h"
#include "tokens/IToken.h"
#include "ui/board/mdcBoard.h"

#include <QFile>
#include <QMouseEvent>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>

namespace {

constexpr int unitCount = 2000;
constexpr int arrowCount = 100;
const QSize viewSize(1920, 1080);

// The game of one map that every benchmark shows; the first unit stands in
// the view's top-left part, where the drag takes it.
std::shared_ptr<CMap> makeGame(const IGameContext& context)
{
    const auto [game, map] = OneMapGame();
    for (int i = 0; i < unitCount; ++i) {
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(),
                                            context.Tokens().Item(i % BoardTokenCount + 1));
        unit->SetX(i == 0 ? 400 : i * 4937 % (BoardViewSide - BoardUnitSize));
        unit->SetY(i == 0 ? 400 : i * 7919 % (BoardViewSide - BoardUnitSize));
        unit->SetCaption(QStringLiteral("x%1").arg(i % 12 + 1));
        unit->SetData(QString::number(i % 12 + 1));
        unit->SetHasMoved(i % 5 == 0);
        map->Units()->AddItem(unit);
    }
    for (int i = 0; i < arrowCount; ++i) {
        auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
        arrow->SetTailX(i * 97 % BoardViewSide);
        arrow->SetTailY(i * 89 % BoardViewSide);
        arrow->SetHeadX(arrow->TailX() + 120);
        arrow->SetHeadY(arrow->TailY() + 60);
        arrow->SetColor(0x0000FF);
        map->Arrows()->AddItem(arrow);
    }
    Root().SetGame(game);
    return map;
}

// Resident memory of the process, in megabytes (0 where it cannot be read).
double residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    }
    return 0;
}

struct Scene
{
    std::shared_ptr<CMap> Map;
    std::unique_ptr<mdcBoard> Board;
};

Scene& scene()
{
    static Scene shown = [] {
        Scene made;
        made.Map = makeGame(*Root().Context());
        made.Board = std::make_unique<mdcBoard>();
        made.Board->setFrameShape(QFrame::NoFrame);
        made.Board->resize(viewSize);
        made.Board->show();
        made.Board->NotifyOfNewGame();
        QCoreApplication::processEvents();
        return made;
    }();
    return shown;
}

void BM_ShowMap(benchmark::State& state)
{
    Scene& shown = scene();
    const CBoardRenderer renderer(Root().Context());
    QImage target(viewSize, QImage::Format_ARGB32_Premultiplied);
    using clock = std::chrono::steady_clock;
    clock::duration rebuilding{}, rendering{};
    for (auto _ : state) {
        const auto t0 = clock::now();
        shown.Board->NotifyOfNewGame();
        shown.Board->viewport()->repaint();
        const auto t1 = clock::now();
        {
            QPainter painter(&target);
            renderer.PaintMap(painter, *shown.Map);
        }
        rendering += clock::now() - t1;
        rebuilding += t1 - t0;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["rebuild_ms"] = Seconds(rebuilding) / n * 1e3;
    state.counters["render_ms"] = Seconds(rendering) / n * 1e3;
    state.counters["ratio"] = Seconds(rebuilding) / Seconds(rendering);
    state.counters["rss_mb"] = residentMegabytes();
}
BENCHMARK(BM_ShowMap)->Unit(benchmark::kMillisecond)->MinTime(2.0);

void send(QWidget* viewport, QEvent::Type type, QPoint at, Qt::MouseButtons held)
{
    QMouseEvent event(type, QPointF(at), viewport->mapToGlobal(QPointF(at)),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &event);
}

// To and fro across 200 pixels, 7 pixels a step: a quick hand.
QPoint dragOffset(int step)
{
    const int offset = 7 * (step % 60 < 30 ? step % 30 : 30 - step % 30);
    return QPoint(offset, offset / 2);
}

void BM_DragStep(benchmark::State& state)
{
    Scene& shown = scene();
    QWidget* viewport = shown.Board->viewport();
    const QPoint grip(420, 420);
    send(viewport, QEvent::MouseButtonPress, grip, Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        send(viewport, QEvent::MouseMove, grip + dragOffset(step++), Qt::LeftButton);
        // Paints what the move exposed, as the next frame would.
        QCoreApplication::processEvents();
    }
    // Released outside the view: the counter goes back, nothing is recorded.
    send(viewport, QEvent::MouseButtonRelease, QPoint(-50, -50), Qt::NoButton);
    state.counters["rss_mb"] = residentMegabytes();
}
BENCHMARK(BM_DragStep)->Unit(benchmark::kMillisecond)->MinTime(2.0);

// The board at percent of full size, the first counter in the middle of the
// view (or as near as the board's edge allows); returns where it is grabbed.
QPoint zoomTo(mdcBoard& board, int percent)
{
    const double scale = percent / 100.0;
    board.ZoomReset();
    while (board.Zoom() > scale + 1e-9)
        board.ZoomOut();
    while (board.Zoom() < scale - 1e-9)
        board.ZoomIn();
    board.centerOn(QPointF(420, 420));
    QCoreApplication::processEvents();
    return board.mapFromScene(QPointF(420, 420));
}

// One full repaint of the view (as when the map scrolls by a page) or one
// drag step (the exposed region painted) per iteration, with the board at
// state.range(0) percent; the mean CPU time is the counter
// zoom<percent>_paint_ms or zoom<percent>_drag_ms.
void zoomed(benchmark::State& state, bool drag)
{
    Scene& shown = scene();
    const int percent = static_cast<int>(state.range(0));
    const QPoint grip = zoomTo(*shown.Board, percent);
    QWidget* viewport = shown.Board->viewport();
    if (drag)
        send(viewport, QEvent::MouseButtonPress, grip, Qt::LeftButton);
    ProcessCpuClock::duration spent{};
    int step = 0;
    for (auto _ : state) {
        const auto t0 = ProcessCpuClock::now();
        if (drag) {
            send(viewport, QEvent::MouseMove, grip + dragOffset(step++), Qt::LeftButton);
            QCoreApplication::processEvents();
        } else {
            viewport->repaint();
        }
        spent += ProcessCpuClock::now() - t0;
    }
    if (drag)
        send(viewport, QEvent::MouseButtonRelease, QPoint(-50, -50), Qt::NoButton);
    shown.Board->ZoomReset();
    const std::string name = "zoom" + std::to_string(percent) + (drag ? "_drag_ms" : "_paint_ms");
    state.counters[name] = Seconds(spent) / static_cast<double>(state.iterations()) * 1e3;
    state.counters["rss_mb"] = residentMegabytes();
}

void zoomSteps(benchmark::internal::Benchmark* run)
{
    run->Arg(25)->Arg(50)->Arg(200)->Arg(400)->Unit(benchmark::kMillisecond)->MinTime(2.0);
}

void BM_ZoomPaint(benchmark::State& state)
{
    zoomed(state, false);
}
BENCHMARK(BM_ZoomPaint)->Apply(zoomSteps);

void BM_ZoomDrag(benchmark::State& state)
{
    zoomed(state, true);
}
BENCHMARK(BM_ZoomDrag)->Apply(zoomSteps);

} // namespace

int main(int argc, char** argv)
{
    return RunBoardViewBenchmarks(argc, argv, [] { scene().Board.reset(); });
}
