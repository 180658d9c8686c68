// Typed stream round trip against plain byte appends and copies, and the cost
// of trace guards while tracing is off. Each ratio compares two loops timed
// alternately within the same iterations, so both see the same machine state.

#include "BenchSession.h"
#include "ThreadCpuClock.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/IHasUniqueId.h"
#include "persist/CAnsiCodec.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <ctime>
#include <vector>

namespace {

using Clock = ThreadCpuClock;

constexpr std::int32_t targetBytes = 4 * 1024 * 1024;

struct Record
{
    std::int32_t number;
    std::int16_t small;
    QString text;
    QByteArray bytes; // text in the code page, for the baseline
};

// Longs, Integers and SmallStrings of 0..40 characters until the encoded
// size reaches 4 MiB. Deterministic, so every run measures the same data.
const std::vector<Record>& records()
{
    static const std::vector<Record> all = [] {
        std::vector<Record> result;
        const QString alphabet = QStringLiteral("Panzer Division 7th Armoured 12/3 \u00E9\u00E8");
        std::uint32_t seed = 12345;
        std::int32_t size = 0;
        while (size < targetBytes) {
            seed = seed * 1103515245u + 12345u;
            const int length = static_cast<int>((seed >> 16) % 41);
            const QString text = alphabet.repeated(2).mid(static_cast<int>(seed % 7), length);
            result.push_back({static_cast<std::int32_t>(seed), static_cast<std::int16_t>(seed >> 8),
                              text, CAnsiCodec::Encode(text)});
            size += 4 + 2 + 1 + static_cast<std::int32_t>(text.size());
        }
        return result;
    }();
    return all;
}

std::int32_t encodedSize()
{
    std::int32_t size = 0;
    for (const Record& r : records())
        size += 7 + static_cast<std::int32_t>(r.text.size());
    return size;
}

// Writes every record, hands the bytes to an input stream, reads them back.
std::int64_t streamRoundTrip()
{
    COutputStream out;
    for (const Record& r : records()) {
        out.WriteLong(r.number);
        out.WriteInteger(r.small);
        out.WriteSmallString(r.text);
    }
    CInputStream in;
    in.Constructor(out.Offset(), QString());
    std::memcpy(in.Address(), out.Address(), static_cast<std::size_t>(out.Offset()));

    std::int64_t check = 0;
    for (std::size_t i = 0; i < records().size(); ++i) {
        check += in.ReadLong();
        check += in.ReadInteger();
        const QString text = in.ReadSmallString();
        check += text.size();
        benchmark::DoNotOptimize(text.constData());
    }
    return check;
}

// The same bytes appended to a std::vector, copied once, and copied out value by value.
std::int64_t baselineRoundTrip()
{
    std::vector<unsigned char> buffer;
    const auto append = [&buffer](const void* data, std::size_t n) {
        const auto* bytes = static_cast<const unsigned char*>(data);
        buffer.insert(buffer.end(), bytes, bytes + n);
    };
    for (const Record& r : records()) {
        append(&r.number, 4);
        append(&r.small, 2);
        const auto length = static_cast<unsigned char>(r.bytes.size());
        append(&length, 1);
        append(r.bytes.constData(), length);
    }
    std::vector<unsigned char> copy(buffer.size());
    std::memcpy(copy.data(), buffer.data(), buffer.size());

    std::int64_t check = 0;
    const unsigned char* at = copy.data();
    char text[256];
    for (std::size_t i = 0; i < records().size(); ++i) {
        std::int32_t number;
        std::int16_t small;
        std::memcpy(&number, at, 4);
        std::memcpy(&small, at + 4, 2);
        const unsigned char length = at[6];
        std::memcpy(text, at + 7, length);
        at += 7 + length;
        check += number + small + length;
        benchmark::DoNotOptimize(text);
    }
    return check;
}

void BM_StreamRoundTripVsBaseline(benchmark::State& state)
{
    const std::int32_t bytes = encodedSize();
    if (streamRoundTrip() != baselineRoundTrip())
        state.SkipWithError("the two round trips read different values");
    Clock::duration streamTime{}, baselineTime{};
    for (auto _ : state) {
        auto start = Clock::now();
        benchmark::DoNotOptimize(streamRoundTrip());
        streamTime += Clock::now() - start;
        start = Clock::now();
        benchmark::DoNotOptimize(baselineRoundTrip());
        baselineTime += Clock::now() - start;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["MiB"] = bytes / 1048576.0;
    state.counters["stream_ms"] = Seconds(streamTime) * 1000 / n;
    state.counters["baseline_ms"] = Seconds(baselineTime) * 1000 / n;
    state.counters["ratio_to_baseline"] = Seconds(streamTime) / Seconds(baselineTime);
}
BENCHMARK(BM_StreamRoundTripVsBaseline)->Unit(benchmark::kMillisecond)->MinTime(3.0);

// A root in a temporary home with tracing off, as in normal use.
struct QuietRoot
{
    QuietRoot()
    {
        qputenv("KORVANE_HOME", home.path().toLocal8Bit());
        qunsetenv("KORVANE_TRACE");
        InstallRoot(std::make_shared<CKorvane>());
        Root().Constructor(nullptr);
    }
    ~QuietRoot() { ReleaseRoot(); }
    QTemporaryDir home;
};

constexpr int loopLength = 100000;

void BM_TraceGuardsOffVsNone(benchmark::State& state)
{
    QuietRoot root;
    Clock::duration guarded{}, plain{};
    for (auto _ : state) {
        auto start = Clock::now();
        for (int i = 0; i < loopLength; ++i) {
            CTraceScope scope("Operation", "CBench");
            benchmark::DoNotOptimize(i);
        }
        guarded += Clock::now() - start;
        start = Clock::now();
        for (int i = 0; i < loopLength; ++i)
            benchmark::DoNotOptimize(i);
        plain += Clock::now() - start;
    }
    const double calls = static_cast<double>(state.iterations()) * loopLength;
    state.counters["guarded_ns"] = Seconds(guarded) * 1e9 / calls;
    state.counters["plain_ns"] = Seconds(plain) * 1e9 / calls;
    state.counters["guard_cost_ns"] = Seconds(guarded - plain) * 1e9 / calls;
}
BENCHMARK(BM_TraceGuardsOffVsNone)->Unit(benchmark::kMicrosecond)->MinTime(1.0);

struct Unit : IHasUniqueId
{
    QString id = CUtility::GenerateId();
    QString UniqueId() const override { return id; }
};

// A typical small public operation, once bare and once with its guard.
[[gnu::noinline]] std::int32_t unitByIdPlain(const CVector<Unit>& units, const QString& id)
{
    return CUtility::SearchById(units, id);
}

[[gnu::noinline]] std::int32_t unitByIdTraced(const CVector<Unit>& units, const QString& id)
{
    CTraceScope scope("UnitById", "CMap");
    return CUtility::SearchById(units, id);
}

void BM_TracedLookupOffVsPlain(benchmark::State& state)
{
    QuietRoot root;
    CVector<Unit> units;
    for (int i = 0; i < 20; ++i)
        units.AddItem(std::make_shared<Unit>());
    Clock::duration traced{}, plain{};
    std::int64_t found = 0;
    for (auto _ : state) {
        auto start = Clock::now();
        for (int i = 0; i < loopLength / 10; ++i)
            found += unitByIdTraced(units, units.Item(i % 20 + 1)->id);
        traced += Clock::now() - start;
        start = Clock::now();
        for (int i = 0; i < loopLength / 10; ++i)
            found += unitByIdPlain(units, units.Item(i % 20 + 1)->id);
        plain += Clock::now() - start;
    }
    benchmark::DoNotOptimize(found);
    const double calls = static_cast<double>(state.iterations()) * (loopLength / 10);
    state.counters["traced_ns"] = Seconds(traced) * 1e9 / calls;
    state.counters["plain_ns"] = Seconds(plain) * 1e9 / calls;
    state.counters["ratio_traced_to_plain"] = Seconds(traced) / Seconds(plain);
}
BENCHMARK(BM_TracedLookupOffVsPlain)->Unit(benchmark::kMicrosecond)->MinTime(1.0);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv);
}
