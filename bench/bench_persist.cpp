// Saving and opening a game of 200 maps with 300 units each, against the work
// no implementation can avoid, measured alternately in the same iterations:
// - save: the persistence manager's save to a file, against the same records
//   encoded into a plain byte buffer and compressed with compress2 level 9;
// - load: the persistence manager's load of that file, against uncompress of
//   the same body decoded into plain structs with freshly generated ids;
// - resave: a load followed by a save of the loaded game, as korvane-tool
//   resave does, against zlib's inflate plus level-9 deflate of the same body.
#include "BenchSession.h"
#include "ThreadCpuClock.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "persist/CAnsiCodec.h"
#include "persist/CGameFile.h"
#include "persist/CPersistMgr.h"
#include "support/TestContext.h"
#include "tokens/IToken.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <chrono>
#include <cstring>
#include <ctime>
#include <random>
#include <vector>

namespace {

constexpr int groupCount = 2;
constexpr int mapsPerGroup = 100;
constexpr int unitsPerMap = 300;
constexpr int arrowsPerMap = 8;
constexpr int tokenCount = 60;

using Clock = ThreadCpuClock;

double milliseconds(Clock::duration d)
{
    return std::chrono::duration<double, std::milli>(d).count();
}

// Sixty tokens of every kind; every twelfth is an arrow token, whose units
// keep their ids in the file.
// The benchmarks' context: plain token kinds on a large board.
std::shared_ptr<TestContext> makeBenchContext()
{
    auto context =
        std::make_shared<TestContext>(QStringLiteral("x"), QStringLiteral("krm_bench_v1"));
    context->SetBoardSize(6000, 4000);
    const char* kinds[] = {"CQuantityToken", "CEmptyToken",    "CNumericToken",
                           "CTextToken",     "CQuantityToken", "CEmptyToken"};
    for (int i = 1; i <= tokenCount; ++i) {
        const QString kind = QLatin1String(i % 12 == 0 ? "CArrowToken" : kinds[i % 6]);
        context->AddToken(kind, QStringLiteral("TK%1").arg(i * 37));
    }
    return context;
}

// Deterministic content: the same game in every run.
class Content
{
public:
    int number(int lower, int upper)
    {
        return std::uniform_int_distribution<int>(lower, upper)(m_random);
    }
    QString word() { return words().at(number(0, static_cast<int>(words().size()) - 1)); }
    QString words(int count)
    {
        QStringList list;
        for (int i = 0; i < count; ++i)
            list << word();
        return list.join(QLatin1Char(' '));
    }
    // A paragraph of map text, 60 to 110 words in sentences.
    QString paragraph()
    {
        QString text;
        const int sentences = number(6, 11);
        for (int i = 0; i < sentences; ++i) {
            QString sentence = words(number(6, 14));
            sentence[0] = sentence[0].toUpper();
            text += sentence + QStringLiteral(". ");
        }
        return text.trimmed();
    }

private:
    static const QStringList& words()
    {
        static const QStringList list =
            QStringLiteral(
                "the of armoured infantry division corps advance retreat bridge river north south "
                "east west flank supply line reserve attack defend hold artillery barrage weather "
                "clear mud snow turn phase movement combat railway port convoy fleet air strike "
                "panzer guards rifle mountain cavalry headquarters marshal front army group sector "
                "counterattack encirclement pocket breakout fortress city village forest marsh "
                "ridge pass crossing ferry depot fuel ammunition losses reinforcements arrive "
                "from into across towards behind under pressure falls holds collapses regroups")
                .split(QLatin1Char(' '));
        return list;
    }

    std::mt19937 m_random{20240611};
};

QString captionFor(const IToken& token, Content& content, QString& data)
{
    const int n = content.number(1, 12);
    const QString kind = token.Class();
    if (kind == QLatin1String("CQuantityToken")) {
        data = QString::number(n);
        return QStringLiteral("x") + data;
    }
    if (kind == QLatin1String("CNumericToken")) {
        data = QString::number(content.number(0, 200));
        return data;
    }
    if (kind == QLatin1String("CTextToken")) {
        data = content.words(content.number(3, 8));
        return content.words(2);
    }
    if (kind == QLatin1String("CArrowToken")) {
        data = QStringLiteral("%1|%2").arg(content.number(0, 6000)).arg(content.number(0, 4000));
        return QString();
    }
    data.clear();
    static const char* const ordinals[] = {"st", "nd", "rd", "th"};
    return QString::number(n) + QLatin1String(ordinals[std::min(n, 4) - 1]) + QLatin1Char(' ') +
           content.word();
}

std::shared_ptr<CGame> buildGame()
{
    Content content;
    const CVector<IToken>& tokens = Root().Context()->Tokens();
    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    game->SetName(QStringLiteral("Eastern Front 1943"));
    game->SetRemarks(QStringLiteral("Turn by turn, both players"));
    int turn = 0;
    for (int g = 0; g < groupCount; ++g) {
        auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        group->SetFrozen(g + 1 < groupCount);
        game->MapGroups().AddItem(group);
        for (int m = 0; m < mapsPerGroup; ++m) {
            auto map = std::make_shared<CMap>(CUtility::GenerateId(), group->Id());
            map->SetName(QStringLiteral("Turn %1").arg(++turn));
            map->SetRemarks(content.words(content.number(2, 6)));
            map->SetText(content.paragraph());
            map->SetFrozen(g + 1 < groupCount);
            map->AquireLock();
            for (int u = 0; u < unitsPerMap; ++u) {
                const auto& token = tokens.Item(content.number(1, tokenCount));
                auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), token);
                QString data;
                unit->SetCaption(captionFor(*token, content, data));
                unit->SetData(data);
                unit->SetX(content.number(0, 6000));
                unit->SetY(content.number(0, 4000));
                unit->SetHasMoved(content.number(0, 3) == 0);
                map->Units()->AddItem(unit);
            }
            for (int a = 0; a < arrowsPerMap; ++a) {
                auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
                arrow->SetHeadX(content.number(0, 6000));
                arrow->SetHeadY(content.number(0, 4000));
                arrow->SetTailX(content.number(0, 6000));
                arrow->SetTailY(content.number(0, 4000));
                arrow->SetColor(content.number(0, 0xFFFFFF));
                map->Arrows()->AddItem(arrow);
            }
            group->Maps().AddItem(map);
            // Inactive maps live in their swap files, as in normal use.
            map->ReleaseLock();
        }
        game->SwitchTo(group);
    }
    return game;
}

// The same records as plain structs, strings already in the code page.
struct PlainUnit
{
    std::int16_t tokenIndex;
    QByteArray tokenId;
    bool keepsId;
    QByteArray id;
    std::int32_t x, y;
    QByteArray caption, data;
    bool moved;
};
struct PlainArrow
{
    QByteArray id;
    std::int32_t values[5];
};
struct PlainMap
{
    QByteArray name, remarks, text;
    bool frozen;
    std::vector<PlainUnit> units;
    std::vector<PlainArrow> arrows;
};
struct PlainGroup
{
    QByteArray id;
    bool frozen;
    std::vector<PlainMap> maps;
};
struct PlainGame
{
    QByteArray id, name, remarks;
    std::vector<PlainGroup> groups;
};

PlainGame plainCopy(const CGame& game)
{
    const auto ansi = [](const QString& s) { return CAnsiCodec::Encode(s); };
    PlainGame plain{ansi(game.Id()), ansi(game.Name()), ansi(game.Remarks()), {}};
    for (const auto& group : game.MapGroups()) {
        PlainGroup& g =
            plain.groups.emplace_back(PlainGroup{ansi(group->Id()), group->Frozen(), {}});
        for (const auto& map : group->Maps()) {
            map->AquireLock();
            PlainMap& m = g.maps.emplace_back(PlainMap{
                ansi(map->Name()), ansi(map->Remarks()), ansi(map->Text()), map->Frozen(), {}, {}});
            for (const auto& u : *map->Units())
                m.units.push_back({u->Token()->Index(), ansi(u->Token()->Id()),
                                   u->Token()->PersistId(), ansi(u->Id()), u->x(), u->y(),
                                   ansi(u->Caption()), ansi(u->Data()), u->HasMoved()});
            for (const auto& a : *map->Arrows())
                m.arrows.push_back(
                    {ansi(a->Id()), {a->HeadX(), a->HeadY(), a->TailX(), a->TailY(), a->Color()}});
            map->ReleaseLock();
        }
    }
    return plain;
}

class PlainWriter
{
public:
    void i16(std::int16_t v) { raw(&v, 2); }
    void i32(std::int32_t v) { raw(&v, 4); }
    void flag(bool v) { i16(v ? -1 : 0); }
    void small(const QByteArray& s)
    {
        const auto n = static_cast<unsigned char>(s.size());
        raw(&n, 1);
        raw(s.constData(), n);
    }
    void text(const QByteArray& s)
    {
        i16(static_cast<std::int16_t>(s.size()));
        raw(s.constData(), s.size());
    }
    std::vector<unsigned char> bytes;

private:
    void raw(const void* data, qsizetype n)
    {
        const auto* p = static_cast<const unsigned char*>(data);
        bytes.insert(bytes.end(), p, p + n);
    }
};

std::vector<unsigned char> encodePlain(const PlainGame& game)
{
    PlainWriter out;
    out.i16(2);
    out.small(game.id);
    out.small(game.name);
    out.small(game.remarks);
    out.i16(static_cast<std::int16_t>(game.groups.size()));
    for (const PlainGroup& g : game.groups) {
        out.small(g.id);
        out.i16(1);
        out.flag(g.frozen);
        out.i16(static_cast<std::int16_t>(g.maps.size()));
        for (const PlainMap& m : g.maps) {
            out.i16(1);
            out.small(m.name);
            out.small(m.remarks);
            out.text(m.text);
            out.flag(m.frozen);
            out.i16(static_cast<std::int16_t>(m.units.size()));
            for (const PlainUnit& u : m.units) {
                out.i16(u.tokenIndex);
                out.small(u.tokenId);
                out.i16(2);
                if (u.keepsId)
                    out.small(u.id);
                out.i32(u.x);
                out.i32(u.y);
                out.small(u.caption);
                out.small(u.data);
                out.flag(u.moved);
            }
            out.i16(static_cast<std::int16_t>(m.arrows.size()));
            for (const PlainArrow& a : m.arrows) {
                out.i16(1);
                out.small(a.id);
                for (const std::int32_t v : a.values)
                    out.i32(v);
            }
        }
    }
    return std::move(out.bytes);
}

std::vector<unsigned char> compressPlain(const std::vector<unsigned char>& body)
{
    uLongf length = compressBound(static_cast<uLong>(body.size()));
    std::vector<unsigned char> packed(length);
    compress2(packed.data(), &length, body.data(), static_cast<uLong>(body.size()), 9);
    packed.resize(length);
    return packed;
}

// What a reader must produce at the least: every field decoded, new ids
// for maps and for units whose ids are not stored.
struct DecodedUnit
{
    QString id, tokenId, caption, data;
    std::int16_t tokenIndex;
    std::int32_t x, y;
    bool moved;
};
struct DecodedMap
{
    QString id, name, remarks, text;
    bool frozen;
    std::vector<DecodedUnit> units;
    std::vector<PlainArrow> arrows;
};

class PlainReader
{
public:
    explicit PlainReader(const unsigned char* at) : m_at(at) {}
    std::int16_t i16() { return fixed<std::int16_t>(); }
    std::int32_t i32() { return fixed<std::int32_t>(); }
    QString small()
    {
        const int n = *m_at++;
        return text(n);
    }
    QString text() { return text(i16()); }

private:
    template <typename T> T fixed()
    {
        T v;
        std::memcpy(&v, m_at, sizeof v);
        m_at += sizeof v;
        return v;
    }
    QString text(int n)
    {
        const QString s = QString::fromLatin1(reinterpret_cast<const char*>(m_at), n);
        m_at += n;
        return s;
    }
    const unsigned char* m_at;
};

std::size_t decodePlain(const std::vector<unsigned char>& packed, std::int32_t bodyLength,
                        const std::vector<bool>& keepsId)
{
    std::vector<unsigned char> body(static_cast<std::size_t>(bodyLength));
    uLongf length = static_cast<uLongf>(bodyLength);
    uncompress(body.data(), &length, packed.data(), static_cast<uLong>(packed.size()));
    PlainReader in(body.data());
    in.i16();
    const QString gameId = in.small(), name = in.small(), remarks = in.small();
    std::vector<std::vector<DecodedMap>> groups(static_cast<std::size_t>(in.i16()));
    for (auto& maps : groups) {
        in.small();
        in.i16();
        in.i16();
        maps.resize(static_cast<std::size_t>(in.i16()));
        for (DecodedMap& m : maps) {
            m.id = CUtility::GenerateId();
            in.i16();
            m.name = in.small();
            m.remarks = in.small();
            m.text = in.text();
            m.frozen = in.i16() != 0;
            m.units.resize(static_cast<std::size_t>(in.i16()));
            for (DecodedUnit& u : m.units) {
                u.tokenIndex = in.i16();
                u.tokenId = in.small();
                in.i16();
                u.id = keepsId[static_cast<std::size_t>(u.tokenIndex)] ? in.small()
                                                                       : CUtility::GenerateId();
                u.x = in.i32();
                u.y = in.i32();
                u.caption = in.small();
                u.data = in.small();
                u.moved = in.i16() != 0;
            }
            m.arrows.resize(static_cast<std::size_t>(in.i16()));
            for (PlainArrow& a : m.arrows) {
                in.i16();
                a.id = in.small().toLatin1();
                for (std::int32_t& v : a.values)
                    v = in.i32();
            }
        }
    }
    std::size_t units = 0;
    for (const auto& maps : groups)
        for (const DecodedMap& m : maps)
            units += m.units.size();
    return units;
}

void BM_SaveAndLoadAgainstBaselines(benchmark::State& state)
{
    CKorvane& root = Root();
    const std::shared_ptr<CGame> game = buildGame();
    const QString directory = CUtility::GetAppPath() + QStringLiteral("games/");
    CUtility::BuildDirectory(directory);
    game->SetDirectory(directory);
    game->SetFile(QStringLiteral("eastern front"));
    game->SetExtension(QStringLiteral("krf"));
    const QString path = directory + QStringLiteral("eastern front.krf");
    root.SetGame(game);

    const PlainGame plain = plainCopy(*game);
    std::vector<bool> keepsId(tokenCount + 1, false);
    for (const auto& token : root.Context()->Tokens())
        keepsId[static_cast<std::size_t>(token->Index())] = token->PersistId();

    // Both sides must handle the same bytes before they are compared.
    if (!root.PersistMgr().SaveCurrentGame()) {
        state.SkipWithError("the game could not be saved");
        return;
    }
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray saved = file.readAll();
    file.close();
    CGameFile::Header header;
    CGameFile::ReadHeader(saved, header, nullptr);
    const std::vector<unsigned char> plainBody = encodePlain(plain);
    std::vector<unsigned char> savedBody(static_cast<std::size_t>(header.BodyLength));
    uLongf bodyLength = savedBody.size();
    uncompress(savedBody.data(), &bodyLength,
               reinterpret_cast<const Bytef*>(saved.constData()) + header.BodyOffset,
               static_cast<uLong>(saved.size() - header.BodyOffset));
    if (savedBody != plainBody) {
        state.SkipWithError("the baseline does not encode the same records");
        return;
    }
    const std::vector<unsigned char> packed = compressPlain(plainBody);
    const std::size_t unitTotal = std::size_t(groupCount) * mapsPerGroup * unitsPerMap;
    if (decodePlain(packed, header.BodyLength, keepsId) != unitTotal) {
        state.SkipWithError("the baseline does not decode every unit");
        return;
    }

    Clock::duration save{}, saveBase{}, load{}, loadBase{};
    for (auto _ : state) {
        auto t = Clock::now();
        benchmark::DoNotOptimize(root.PersistMgr().SaveCurrentGame());
        save += Clock::now() - t;
        t = Clock::now();
        benchmark::DoNotOptimize(compressPlain(encodePlain(plain)));
        saveBase += Clock::now() - t;

        t = Clock::now();
        benchmark::DoNotOptimize(root.PersistMgr().LoadGameFromFile(path));
        load += Clock::now() - t;
        t = Clock::now();
        benchmark::DoNotOptimize(decodePlain(packed, header.BodyLength, keepsId));
        loadBase += Clock::now() - t;

        // The loaded game goes away outside the timing, as the baseline's does.
        state.PauseTiming();
        root.SetGame(game);
        state.ResumeTiming();
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["body_MiB"] = header.BodyLength / 1048576.0;
    state.counters["file_KiB"] = saved.size() / 1024.0;
    state.counters["save_ms"] = milliseconds(save) / n;
    state.counters["save_base_ms"] = milliseconds(saveBase) / n;
    state.counters["save_ratio"] = milliseconds(save) / milliseconds(saveBase);
    state.counters["load_ms"] = milliseconds(load) / n;
    state.counters["load_base_ms"] = milliseconds(loadBase) / n;
    state.counters["load_ratio"] = milliseconds(load) / milliseconds(loadBase);
}
BENCHMARK(BM_SaveAndLoadAgainstBaselines)->Unit(benchmark::kMillisecond)->Iterations(8);

void BM_ResaveAgainstInflateDeflate(benchmark::State& state)
{
    CKorvane& root = Root();
    const std::shared_ptr<CGame> game = buildGame();
    const QString directory = CUtility::GetAppPath() + QStringLiteral("games/");
    CUtility::BuildDirectory(directory);
    const QString path = directory + QStringLiteral("resave.krf");
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    const QByteArray saved = CGameFile::ToBytes(*game, root.Context()->Id());
    file.write(saved);
    file.close();
    CGameFile::Header header;
    CGameFile::ReadHeader(saved, header, nullptr);
    const auto* packed = reinterpret_cast<const Bytef*>(saved.constData()) + header.BodyOffset;
    const auto packedLength = static_cast<uLong>(saved.size() - header.BodyOffset);

    // Thread CPU time for the ratio; wall time besides, which also holds the
    // wait for the disk when the save is flushed.
    Clock::duration resave{}, base{};
    std::chrono::steady_clock::duration resaveWall{};
    for (auto _ : state) {
        const auto wall = std::chrono::steady_clock::now();
        auto t = Clock::now();
        if (!root.PersistMgr().LoadGameFromFile(path) || !root.PersistMgr().SaveCurrentGame()) {
            state.SkipWithError("the game could not be resaved");
            return;
        }
        resave += Clock::now() - t;
        resaveWall += std::chrono::steady_clock::now() - wall;

        t = Clock::now();
        std::vector<unsigned char> body(static_cast<std::size_t>(header.BodyLength));
        uLongf length = body.size();
        uncompress(body.data(), &length, packed, packedLength);
        benchmark::DoNotOptimize(compressPlain(body));
        base += Clock::now() - t;

        state.PauseTiming();
        root.SetGame(nullptr);
        state.ResumeTiming();
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["resave_ms"] = milliseconds(resave) / n;
    state.counters["resave_wall_ms"] =
        std::chrono::duration<double, std::milli>(resaveWall).count() / n;
    state.counters["base_ms"] = milliseconds(base) / n;
    state.counters["resave_ratio"] = milliseconds(resave) / milliseconds(base);
}
BENCHMARK(BM_ResaveAgainstInflateDeflate)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarksWithRoot(argc, argv,
                                 [] { return std::shared_ptr<IGameContext>(makeBenchContext()); });
}
