// Comparing two turns of one map: 2,000 units and 20,000 units over ten
// tokens, a fifth of them moved, a few added, removed and changed; and the
// worst case of every unit moved. The baseline, measured in the same run,
// copies both maps' units out of the model and sorts each copy by token and
// position: the least any comparison of the two lists has to do.
#include "BenchSession.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "review/CMapComparer.h"
#include "support/TestContext.h"
#include "tokens/IToken.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <tuple>
#include <vector>

namespace {

constexpr int tokenCount = 10;

std::shared_ptr<TestContext> makeReviewContext()
{
    auto context =
        std::make_shared<TestContext>(QStringLiteral("x"), QStringLiteral("krm_bench_v1"));
    for (int i = 1; i <= tokenCount; ++i)
        context->AddToken(QStringLiteral("CQuantityToken"), QStringLiteral("T%1").arg(i));
    return context;
}

struct Turn
{
    std::shared_ptr<CMapGroup> Group;
    std::shared_ptr<CMap> Before;
    std::shared_ptr<CMap> After;
};

void addUnit(CMap& map, int token, int x, int y, int count)
{
    auto unit =
        std::make_shared<CUnit>(CUtility::GenerateId(), Root().Context()->Tokens().Item(token + 1));
    unit->SetX(x);
    unit->SetY(y);
    unit->SetCaption(QStringLiteral("x%1").arg(count));
    unit->SetData(QString::number(count));
    map.Units()->AddItem(unit);
}

// Both maps stay locked, as the shown map and the one before it are while
// changes are shown. movedPercent of the units move up to 120 pixels; of the
// rest, one in fifty is removed, one in fifty gains strength, and one in
// fifty new units arrives.
Turn makeTurn(int units, int movedPercent)
{
    Turn turn;
    turn.Group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    turn.Before = std::make_shared<CMap>(CUtility::GenerateId(), turn.Group->Id());
    turn.After = std::make_shared<CMap>(CUtility::GenerateId(), turn.Group->Id());
    turn.Before->AquireLock();
    turn.After->AquireLock();
    std::uint32_t seed = 7;
    const auto next = [&seed](std::uint32_t below) {
        seed = seed * 1103515245u + 12345u;
        return static_cast<int>((seed >> 8) % below);
    };
    const int side = units <= 2000 ? 4000 : 12000;
    for (int i = 0; i < units; ++i) {
        const int token = i % tokenCount;
        const int x = next(side), y = next(side), count = next(12) + 1;
        addUnit(*turn.Before, token, x, y, count);
        const int roll = next(100);
        if (roll < movedPercent)
            addUnit(*turn.After, token, x + next(241) - 120, y + next(241) - 120, count);
        else if (roll < movedPercent + 2)
            continue;
        else if (roll < movedPercent + 4)
            addUnit(*turn.After, token, x, y, count + 1);
        else
            addUnit(*turn.After, token, x, y, count);
        if (next(50) == 0)
            addUnit(*turn.After, token, next(side), next(side), 1);
    }
    return turn;
}

// The baseline: both unit lists copied out and sorted.
void copyAndSort(const CMap& map)
{
    std::vector<std::tuple<QString, int, int, QString>> copy;
    copy.reserve(static_cast<std::size_t>(map.Units()->Count()));
    for (const auto& unit : *map.Units())
        copy.emplace_back(unit->Token()->Id(), unit->x(), unit->y(), unit->Caption());
    std::sort(copy.begin(), copy.end());
    benchmark::DoNotOptimize(copy.data());
}

void BM_CompareTurn(benchmark::State& state)
{
    const Turn turn = makeTurn(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    using clock = std::chrono::steady_clock;
    clock::duration comparing{}, baseline{};
    int changes = 0;
    for (auto _ : state) {
        const auto t0 = clock::now();
        const CMapComparison result = CMapComparer::Compare(turn.Before, turn.After);
        const auto t1 = clock::now();
        copyAndSort(*turn.Before);
        copyAndSort(*turn.After);
        const auto t2 = clock::now();
        changes = result.Count.Total();
        comparing += t1 - t0;
        baseline += t2 - t1;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["changes"] = changes;
    state.counters["compare_ms"] = Seconds(comparing) / n * 1e3;
    state.counters["copy_sort_ms"] = Seconds(baseline) / n * 1e3;
    state.counters["ratio"] = Seconds(comparing) / Seconds(baseline);
}
BENCHMARK(BM_CompareTurn)
    ->Args({2000, 20})
    ->Args({20000, 20})
    ->Args({2000, 100})
    ->Args({20000, 100})
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1.0);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarksWithRoot(argc, argv,
                                 [] { return std::shared_ptr<IGameContext>(makeReviewContext()); });
}
