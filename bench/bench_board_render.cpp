// Drawing a busy map (a 1600 x 1200 board, 500 counters with labels, 30
// arrows) through the board renderer. The baseline, measured in the same run,
// draws only the board and the 500 counter pictures with plain QPainter calls:
// the least any drawing of that map must do.
#include "BenchSession.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "tokens/CTokenFactory.h"
#include "tokens/IToken.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

constexpr int unitCount = 500;

void BM_RenderBusyMap(benchmark::State& state)
{
    const auto context = MakeBoardContext(QSize(1600, 1200), false);
    CMap map(CUtility::GenerateId(), CUtility::GenerateId());
    map.AquireLock();
    for (int i = 0; i < unitCount; ++i) {
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(),
                                            context->Tokens().Item(i % BoardTokenCount + 1));
        unit->SetX(i * 37 % 1560);
        unit->SetY(i * 53 % 1140);
        unit->SetCaption(QStringLiteral("x%1").arg(i % 12 + 1));
        unit->SetHasMoved(i % 5 == 0);
        map.Units()->AddItem(unit);
    }
    for (int i = 0; i < 30; ++i) {
        auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
        arrow->SetTailX(i * 50);
        arrow->SetTailY(100 + i * 30);
        arrow->SetHeadX(i * 50 + 80);
        arrow->SetHeadY(140 + i * 30);
        arrow->SetColor(0x0000FF);
        map.Arrows()->AddItem(arrow);
    }
    const CBoardRenderer renderer(context);
    QImage target(1600, 1200, QImage::Format_ARGB32_Premultiplied);
    const QImage board = context->MapPicture();
    std::vector<std::pair<QPoint, QImage>> pictures;
    for (const auto& unit : *map.Units())
        pictures.emplace_back(QPoint(unit->x(), unit->y()),
                              context->UnitImgLst()->Image(unit->Token()->UnitImage()));

    using clock = std::chrono::steady_clock;
    clock::duration rendering{}, plain{};
    for (auto _ : state) {
        const auto t0 = clock::now();
        {
            QPainter painter(&target);
            renderer.PaintMap(painter, map);
        }
        const auto t1 = clock::now();
        {
            QPainter painter(&target);
            painter.drawImage(QPoint(0, 0), board);
            for (const auto& [at, picture] : pictures)
                painter.drawImage(at, picture);
        }
        const auto t2 = clock::now();
        rendering += t1 - t0;
        plain += t2 - t1;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["render_ms"] = Seconds(rendering) / n * 1e3;
    state.counters["plain_ms"] = Seconds(plain) / n * 1e3;
    state.counters["ratio"] = Seconds(rendering) / Seconds(plain);
}
BENCHMARK(BM_RenderBusyMap)->Unit(benchmark::kMillisecond)->MinTime(2.0);

} // namespace

int main(int argc, char** argv)
{
    // Labels need fonts, so a QGuiApplication, which needs no display here.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir home;
    qputenv("KORVANE_HOME", home.path().toLocal8Bit());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
