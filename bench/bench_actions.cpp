// The cost of the undo machinery: 10,000 unit moves executed through the
// action manager (merged into one entry, and as separate entries), with
// undo and redo of the whole history; and New Map on a map of 2,000 units,
// against copying the same units' fields into plain structs in the same run.
#include "BenchSession.h"
#include "actions/CActionMgr.h"
#include "actions/CActionMoveUnit.h"
#include "actions/CActionNewMap.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "support/TestContext.h"
#include "tokens/IToken.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

namespace {

constexpr int moveCount = 10000;
constexpr int unitsOnMap = 2000;

// Only the token list and the board size matter here.
// The benchmarks' context: plain token kinds on a large board.
std::shared_ptr<TestContext> makeBenchContext()
{
    auto context =
        std::make_shared<TestContext>(QStringLiteral("x"), QStringLiteral("krm_bench_v1"));
    context->SetBoardSize(2000, 2000);
    const char* kinds[] = {"CQuantityToken", "CEmptyToken", "CNumericToken", "CTextToken"};
    for (int i = 1; i <= 40; ++i)
        context->AddToken(QLatin1String(kinds[i % 4]), QStringLiteral("TOKEN%1").arg(i));
    return context;
}

// A game of one group holding one active map with unitsOnMap units and 20 arrows.
std::shared_ptr<CGame> filledGame()
{
    const auto [game, map] = OneMapGame();
    const CVector<IToken>& tokens = Root().Context()->Tokens();
    for (int i = 0; i < unitsOnMap; ++i) {
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), tokens.Item(i % 40 + 1));
        unit->SetX(i * 7 % 2000);
        unit->SetY(i * 13 % 2000);
        unit->SetCaption(QStringLiteral("x%1").arg(i % 12 + 1));
        unit->SetData(QString::number(i % 12 + 1));
        unit->SetHasMoved(i % 3 == 0);
        map->Units()->AddItem(unit);
    }
    for (int i = 0; i < 20; ++i) {
        auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
        arrow->SetHeadX(i);
        map->Arrows()->AddItem(arrow);
    }
    return game;
}

using Clock = std::chrono::steady_clock;

double micro(Clock::duration d)
{
    return std::chrono::duration<double, std::micro>(d).count();
}

// chained: every move is of the same unit and merges into one entry;
// otherwise each move is of the next unit and is an entry of its own (the
// history keeps the last 25).
void runMoves(benchmark::State& state, bool chained)
{
    Root().SetGame(filledGame());
    const auto map = Root().Game()->ActiveMapGroup()->ActiveMap();
    const QString mapId = map->Id();
    std::vector<QString> unitIds;
    for (const auto& unit : *map->Units())
        unitIds.push_back(unit->Id());
    CActionMgr& mgr = Root().ActionMgr();

    Clock::duration executing{}, undoing{}, redoing{};
    std::int64_t undone = 0;
    for (auto _ : state) {
        mgr.Clear();
        const auto t0 = Clock::now();
        for (int i = 0; i < moveCount; ++i) {
            auto move = std::make_shared<CActionMoveUnit>();
            move->SetMapId(mapId);
            move->SetUnitId(unitIds[chained ? 0 : i % unitsOnMap]);
            move->SetPosition(static_cast<float>(i % 1999), static_cast<float>(i % 1777));
            mgr.Execute(std::move(move));
        }
        const auto t1 = Clock::now();
        const std::int32_t entries = mgr.UndoPos();
        for (std::int32_t i = 0; i < entries; ++i)
            mgr.Undo();
        const auto t2 = Clock::now();
        for (std::int32_t i = 0; i < entries; ++i)
            mgr.Redo();
        const auto t3 = Clock::now();
        executing += t1 - t0;
        undoing += t2 - t1;
        redoing += t3 - t2;
        undone += entries;
    }
    mgr.Clear();
    Root().SetGame(nullptr);
    const double n = static_cast<double>(state.iterations());
    state.counters["history"] = static_cast<double>(undone) / n;
    state.counters["execute_us_per_move"] = micro(executing) / n / moveCount;
    state.counters["undo_us_per_entry"] = micro(undoing) / static_cast<double>(undone);
    state.counters["redo_us_per_entry"] = micro(redoing) / static_cast<double>(undone);
}

void BM_ChainedMoves(benchmark::State& state)
{
    runMoves(state, true);
}
BENCHMARK(BM_ChainedMoves)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_UnchainedMoves(benchmark::State& state)
{
    runMoves(state, false);
}
BENCHMARK(BM_UnchainedMoves)->Unit(benchmark::kMillisecond)->MinTime(1.0);

// The baseline: the fields New Map copies, into plain structs.
struct PlainUnit
{
    QString Id;
    std::shared_ptr<IToken> Token;
    std::int32_t X;
    std::int32_t Y;
    QString Caption;
    QString Data;
    bool HasMoved;
};

void BM_NewMapOf2000Units(benchmark::State& state)
{
    Root().SetGame(filledGame());
    const auto group = Root().Game()->ActiveMapGroup();
    const auto source = group->ActiveMap();
    CActionMgr& mgr = Root().ActionMgr();

    Clock::duration fresh{}, undo{}, redo{}, plain{};
    for (auto _ : state) {
        mgr.Clear();
        const auto t0 = Clock::now();
        mgr.Execute(std::make_shared<CActionNewMap>());
        const auto t1 = Clock::now();
        mgr.Undo();
        const auto t2 = Clock::now();
        mgr.Redo();
        const auto t3 = Clock::now();
        mgr.Undo();

        const auto t4 = Clock::now();
        std::vector<PlainUnit> copy;
        copy.reserve(static_cast<std::size_t>(source->Units()->Count()));
        for (const auto& u : *source->Units())
            copy.push_back({CUtility::GenerateId(), u->Token(), u->x(), u->y(), u->Caption(),
                            u->Data(), u->HasMoved()});
        benchmark::DoNotOptimize(copy.data());
        const auto t5 = Clock::now();
        fresh += t1 - t0;
        undo += t2 - t1;
        redo += t3 - t2;
        plain += t5 - t4;
    }
    mgr.Clear();
    Root().SetGame(nullptr);
    const double n = static_cast<double>(state.iterations());
    state.counters["new_map_us"] = micro(fresh) / n;
    state.counters["undo_us"] = micro(undo) / n;
    state.counters["redo_us"] = micro(redo) / n;
    state.counters["plain_copy_us"] = micro(plain) / n;
    state.counters["ratio"] = micro(fresh) / micro(plain);
    state.counters["ratio_redo"] = micro(redo) / micro(plain);
}
BENCHMARK(BM_NewMapOf2000Units)->Unit(benchmark::kMillisecond)->MinTime(2.0);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarksWithRoot(argc, argv,
                                 [] { return std::shared_ptr<IGameContext>(makeBenchContext()); });
}
