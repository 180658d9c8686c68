// Switching between two maps of 1,000 units each: every switch writes the
// old map's swap file and reads the new one's. The baseline, measured in the
// same run, writes and reads the same number of bytes as one plain file.
#include "BenchSession.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "support/TestContext.h"
#include "tokens/IToken.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

constexpr int unitsPerMap = 1000;

// Only the token list matters here.
// The benchmarks' context: plain token kinds on a large board.
std::shared_ptr<TestContext> makeBenchContext()
{
    auto context =
        std::make_shared<TestContext>(QStringLiteral("x"), QStringLiteral("krm_bench_v1"));
    context->SetBoardSize(2000, 2000);
    const char* kinds[] = {"CQuantityToken", "CEmptyToken", "CNumericToken", "CArrowToken"};
    for (int i = 1; i <= 40; ++i)
        context->AddToken(QLatin1String(kinds[i % 4]), QStringLiteral("TOKEN%1").arg(i));
    return context;
}

std::shared_ptr<CMap> filledMap(const CMapGroup& group)
{
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group.Id());
    map->AquireLock();
    const CVector<IToken>& tokens = Root().Context()->Tokens();
    for (int i = 0; i < unitsPerMap; ++i) {
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), tokens.Item(i % 40 + 1));
        unit->SetX(i * 7 % 2000);
        unit->SetY(i * 13 % 2000);
        unit->SetCaption(QStringLiteral("x%1").arg(i % 12 + 1));
        unit->SetData(QString::number(i % 12 + 1));
        map->Units()->AddItem(unit);
    }
    for (int i = 0; i < 20; ++i) {
        auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
        arrow->SetHeadX(i);
        map->Arrows()->AddItem(arrow);
    }
    return map;
}

// Writes and reads back one plain file. Cutting a file to nothing before
// rewriting it makes ext4 flush it to disk on close; the swap files are
// overwritten in place instead, so both ways are measured.
void plainRoundTrip(const QString& path, const QByteArray& bytes, bool truncate)
{
    QFile out(path);
    out.open(truncate ? QIODevice::WriteOnly | QIODevice::Truncate : QIODevice::ReadWrite);
    out.write(bytes);
    out.close();
    QFile in(path);
    in.open(QIODevice::ReadOnly);
    benchmark::DoNotOptimize(in.readAll());
}

void BM_SwitchTwoMaps(benchmark::State& state)
{
    auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    auto a = filledMap(*group);
    auto b = filledMap(*group);
    group->Maps().AddItem(a);
    group->Maps().AddItem(b);
    group->SwitchTo(a);
    a->ReleaseLock();
    b->ReleaseLock();
    // One round so that both swap files exist and their sizes are known.
    group->SwitchTo(b);
    group->SwitchTo(a);
    const qint64 bytesPerRound = QFileInfo(a->SwapFile()).size() + QFileInfo(b->SwapFile()).size();
    // A round writes two swap files and reads two: the baselines do the same
    // with plain files of half the bytes each.
    const QByteArray plain(bytesPerRound / 2, 'k');
    const QString plainFile = CUtility::GetCacheDir() + QStringLiteral("plain.bin");

    using clock = std::chrono::steady_clock;
    clock::duration switching{}, inPlace{}, truncated{};
    for (auto _ : state) {
        const auto t0 = clock::now();
        group->SwitchTo(b);
        group->SwitchTo(a);
        const auto t1 = clock::now();
        plainRoundTrip(plainFile, plain, false);
        plainRoundTrip(plainFile, plain, false);
        const auto t2 = clock::now();
        plainRoundTrip(plainFile, plain, true);
        plainRoundTrip(plainFile, plain, true);
        const auto t3 = clock::now();
        switching += t1 - t0;
        inPlace += t2 - t1;
        truncated += t3 - t2;
    }
    QFile::remove(plainFile);
    const double n = static_cast<double>(state.iterations());
    state.counters["bytes"] = static_cast<double>(bytesPerRound);
    state.counters["switch_ms"] = Seconds(switching) / n * 1e3;
    state.counters["plain_ms"] = Seconds(inPlace) / n * 1e3;
    state.counters["plain_trunc_ms"] = Seconds(truncated) / n * 1e3;
    state.counters["ratio"] = Seconds(switching) / Seconds(inPlace);
    state.counters["ratio_trunc"] = Seconds(switching) / Seconds(truncated);
}
BENCHMARK(BM_SwitchTwoMaps)->Unit(benchmark::kMillisecond)->MinTime(2.0);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarksWithRoot(argc, argv,
                                 [] { return std::shared_ptr<IGameContext>(makeBenchContext()); });
}
