#include "tool/ToolTestSupport.h"

#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"
#include "support/ResourceUse.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtEndian>

#include <zlib.h>

namespace {

// The game file image file with its body followed by zeros up to
// bodyLength bytes, declared exactly; packedLength receives the length of
// the new compressed stream. Compressed a piece at a time, as zeros.
QByteArray withZerosAfterTheGame(const QByteArray& file, std::int32_t bodyLength,
                                 qint64& packedLength)
{
    CGameFile::Header header;
    EXPECT_TRUE(CGameFile::ReadHeader(file, header, nullptr));
    QByteArray prefixed(4, '\0');
    qToBigEndian<quint32>(static_cast<quint32>(header.BodyLength), prefixed.data());
    const QByteArray body = qUncompress(prefixed + file.mid(header.BodyOffset));
    const QByteArray zeros(1 << 20, '\0');
    QByteArray packed(1 << 20, '\0');
    z_stream stream{};
    deflateInit(&stream, 9);
    qint64 left = bodyLength - body.size();
    auto feed = [&](const QByteArray& bytes, qint64 length, int flush) {
        stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData()));
        stream.avail_in = static_cast<uInt>(length);
        do {
            const qint64 done = static_cast<qint64>(stream.total_out);
            if (packed.size() - done < 65536)
                packed.resize(packed.size() * 2);
            stream.next_out = reinterpret_cast<Bytef*>(packed.data() + done);
            stream.avail_out = static_cast<uInt>(packed.size() - done);
            deflate(&stream, flush);
        } while (stream.avail_in > 0 || (flush == Z_FINISH && stream.avail_out == 0));
    };
    feed(body, body.size(), Z_NO_FLUSH);
    for (; left > 0; left -= zeros.size())
        feed(zeros, std::min<qint64>(left, zeros.size()), Z_NO_FLUSH);
    feed(zeros, 0, Z_FINISH);
    packed.resize(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    packedLength = packed.size();

    QByteArray length(4, '\0');
    qToLittleEndian<qint32>(bodyLength, length.data());
    QByteArray image = file.left(header.BodyOffset - 4) + length + packed;
    return image + QByteArray((4 - image.size() % 4) % 4, '\0');
}

class ToolGameFile : public ToolFixture
{
protected:
    // A frozen group of two maps, the second active, holding a moved stack and an arrow.
    std::shared_ptr<CGame> campaign() const
    {
        auto game = NewGame(QStringLiteral("Campaign"));
        game->SetRemarks(QStringLiteral("Summer offensive"));
        game->ActiveMapGroup()->SetFrozen(true);
        AddUnit(*game->ActiveMapGroup()->ActiveMap(), QStringLiteral("tank"), 5, 6,
                QStringLiteral("Panzer"));
        auto turn2 = AddMap(*game->ActiveMapGroup(), QStringLiteral("Turn 2"));
        turn2->SetText(QStringLiteral("Rain on the front."));
        turn2->SetFrozen(true);
        AddUnit(*turn2, QStringLiteral("inf"), 40, 50, QStringLiteral("x12"), QStringLiteral("12"),
                true);
        AddArrow(*turn2, 10, 20, 110, 120, 0x0000FF);
        return game;
    }
};

} // namespace

TEST_F(ToolGameFile, DumpWritesTheWholeGameAsJson)
{
    const auto game = campaign();
    ToolRun run = Tool({QStringLiteral("dump"), Save(*game, QStringLiteral("war.krf"))});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    EXPECT_EQ(run.Json()["game"]["id"], QJsonValue(game->Id()));
    // Every identifier is taken out; one that is not 32 hex digits stays and fails the comparison.
    run.Out.remove(QRegularExpression(QStringLiteral("\"id\": \"[0-9A-F]{32}\",\\s*")));
    // Maps that are not active are read back from their swap files.
    const QJsonDocument expected = QJsonDocument::fromJson(R"({"context": "krm_war_v1", "game": {
      "name": "Campaign", "remarks": "Summer offensive", "activeGroup": 1, "groups": [
      {"frozen": true, "activeMap": 2, "maps": [
        {"name": "Start", "remarks": "", "text": "", "frozen": false, "arrows": [],
         "units": [{"token": "tank", "tokenIndex": 2, "x": 5, "y": 6, "caption": "Panzer",
                    "data": "", "hasMoved": false}]},
        {"name": "Turn 2", "remarks": "", "text": "Rain on the front.", "frozen": true,
         "units": [{"token": "inf", "tokenIndex": 1, "x": 40, "y": 50, "caption": "x12",
                    "data": "12", "hasMoved": true}],
         "arrows": [{"tailX": 10, "tailY": 20, "headX": 110, "headY": 120, "color": 255}]}]}]}})");
    ASSERT_TRUE(expected.isObject());
    EXPECT_EQ(run.Json(), QJsonValue(expected.object()));
}

TEST_F(ToolGameFile, InfoSummarisesAndNewSavesTheModulesDefaultGame)
{
    const QString path = Save(*campaign(), QStringLiteral("war.krf"));
    const ToolRun run = Tool({QStringLiteral("info"), path});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    CGameFile::Header header;
    ASSERT_TRUE(CGameFile::ReadHeader(home.ReadFile(QStringLiteral("war.krf")), header, nullptr));
    const QStringList lines = run.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line :
         {QStringLiteral("Context: krm_war_v1"), QStringLiteral("Name: Campaign"),
          QStringLiteral("Groups: 1"), QStringLiteral("Maps: 2"), QStringLiteral("Units: 2"),
          QStringLiteral("Arrows: 1"),
          QStringLiteral("Body size: %1 bytes").arg(header.BodyLength)})
        EXPECT_TRUE(lines.contains(line)) << line.toStdString();

    // The module names no initial game: a new game is one empty map.
    const QString fresh = home.File(QStringLiteral("fresh.krf"));
    ASSERT_EQ(Tool({QStringLiteral("new"), QStringLiteral("krm_war_v1"), "-o", fresh}).Status, 0);
    EXPECT_TRUE(Tool({QStringLiteral("info"), fresh}).Out.contains(QStringLiteral("\nMaps: 1\n")));
    const ToolRun unknown = Tool({QStringLiteral("new"), QStringLiteral("krm_no_v1"), "-o", fresh});
    EXPECT_EQ(unknown.Status, 1);
    EXPECT_TRUE(unknown.Err.contains(QStringLiteral("'krm_no_v1'"))) << unknown.Err.toStdString();
}

// The reasons themselves are the reader's, tested with it; the tool adds the
// status, the one line naming the file, and an output left alone.
TEST_F(ToolGameFile, ADamagedGameFailsWithoutTouchingTheOutput)
{
    const QString output = home.WriteFile(QStringLiteral("out.krf"), "keep me");
    const QString path = home.WriteFile(QStringLiteral("notes.krf"), "Attack at dawn.");
    const ToolRun run = Tool({QStringLiteral("resave"), path, QStringLiteral("-o"), output});
    EXPECT_EQ(run.Status, 1);
    ASSERT_EQ(run.ErrLines().size(), 1) << run.Err.toStdString();
    EXPECT_TRUE(run.Err.startsWith("korvane-tool: " + path + ": it is not a Korvane game file"))
        << run.Err.toStdString();
    EXPECT_EQ(home.ReadFile(QStringLiteral("out.krf")), QByteArray("keep me"));
}

// A body may honestly be large: a game followed by zeros. It is read into
// one buffer of its declared size and no other copy; what follows the game
// in the body, and what follows the compressed stream in the file, is not
// read.
TEST_F(ToolGameFile, AGameFollowedByZerosOpensInLittleMoreMemoryThanItsBody)
{
    constexpr std::int32_t bodyLength = 256 * 1024 * 1024;
    qint64 packedLength = 0;
    Save(*campaign(), QStringLiteral("war.krf"));
    const QByteArray image =
        withZerosAfterTheGame(home.ReadFile(QStringLiteral("war.krf")), bodyLength, packedLength);
    const QString path = home.WriteFile(QStringLiteral("zeros.krf"), image + "left over");
    const ToolRun run = Tool({QStringLiteral("info"), path});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.contains(QStringLiteral("\nUnits: 2\nArrows: 1\nBody size: %1 bytes\n"
                                                "Compressed size: %2 bytes\n")
                                     .arg(bodyLength)
                                     .arg(packedLength)))
        << run.Out.toStdString();
#ifndef KORVANE_SANITIZED
    // The largest child so far, in KiB: the tool, which needs its body and
    // far less than 64 MiB besides.
    EXPECT_LT(PeakKiB(RUSAGE_CHILDREN), bodyLength / 1024 + 64 * 1024);
#endif
}
