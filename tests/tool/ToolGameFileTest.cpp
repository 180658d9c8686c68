#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

class ToolGameFile : public ToolFixture
{
protected:
    // A frozen group with one map, then a group whose second map is active,
    // holding a moved stack, a unit off the board and an arrow.
    std::shared_ptr<CGame> campaign() const
    {
        auto game = NewGame(QStringLiteral("Campaign"));
        game->SetRemarks(QStringLiteral("Summer offensive"));
        game->ActiveMapGroup()->SetFrozen(true);
        AddUnit(*game->ActiveMapGroup()->ActiveMap(), QStringLiteral("tank"), 5, 6,
                QStringLiteral("Panzer"));
        auto second = std::make_shared<CMapGroup>(CUtility::GenerateId());
        game->MapGroups().AddItem(second);
        AddMap(*second, QStringLiteral("Turn 2"));
        auto turn3 = AddMap(*second, QStringLiteral("Turn 3"));
        turn3->SetText(QStringLiteral("Rain on the front."));
        turn3->SetFrozen(true);
        AddUnit(*turn3, QStringLiteral("inf"), 40, 50, QStringLiteral("x12"), QStringLiteral("12"),
                true);
        AddUnit(*turn3, QStringLiteral("tank"), -7, 300, QStringLiteral("Tiger"));
        AddArrow(*turn3, 10, 20, 110, 120, 0x0000FF);
        game->SwitchTo(second);
        return game;
    }

    // A game file from before map groups existed: two maps in one flat list.
    static QByteArray versionOneFile()
    {
        COutputStream body;
        body.Constructor(0);
        body.WriteInteger(1);
        body.WriteSmallString(QStringLiteral("0123456789ABCDEF0123456789ABCDEF"));
        body.WriteSmallString(QStringLiteral("Old game"));
        body.WriteSmallString(QStringLiteral("from 1999"));
        body.WriteInteger(2);
        for (int turn = 1; turn <= 2; ++turn) {
            body.WriteInteger(1);
            body.WriteSmallString(QStringLiteral("Turn %1").arg(turn));
            body.WriteSmallString(QString());
            body.WriteString(QStringLiteral("Notes %1").arg(turn));
            body.WriteBoolean(false);
            body.WriteInteger(1);
            body.WriteInteger(1); // token index and id of "inf"
            body.WriteSmallString(QStringLiteral("inf"));
            body.WriteInteger(1); // unit record version 1: no moved flag
            body.WriteLong(10 * turn);
            body.WriteLong(20 * turn);
            body.WriteSmallString(QStringLiteral("x%1").arg(turn));
            body.WriteSmallString(QString::number(turn));
            body.WriteInteger(0);
        }
        body.Resize(body.Offset(), true);
        const auto packed = CZlib().Compact(body);
        QByteArray file = QByteArrayLiteral("KR01\x0Akrm_war_v1");
        const std::int32_t length = body.Size();
        file.append(reinterpret_cast<const char*>(&length), 4);
        file.append(reinterpret_cast<const char*>(packed->Address()), packed->Size());
        return file.leftJustified((file.size() + 3) / 4 * 4, '\0');
    }

    // The game record's version in a game file.
    static int gameVersion(const QByteArray& file)
    {
        CGameFile::Header header;
        EXPECT_TRUE(CGameFile::ReadHeader(file, header, nullptr));
        std::int32_t length = header.BodyLength;
        return CZlib()
            .Decompact(CInputStream::FromBytes(file.mid(header.BodyOffset)), length)
            ->ReadInteger();
    }
};

} // namespace

TEST_F(ToolGameFile, DumpWritesTheWholeGameAsJson)
{
    const auto game = campaign();
    const ToolRun run = Tool({QStringLiteral("dump"), Save(*game, QStringLiteral("war.krf"))});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    const QJsonObject dump = run.Json().toObject();
    EXPECT_EQ(dump.value(QStringLiteral("context")), QJsonValue("krm_war_v1"));

    // Reading makes the last group active, and in every group its last map.
    QJsonObject g = dump.value(QStringLiteral("game")).toObject();
    const QJsonArray groups = g.take(QStringLiteral("groups")).toArray();
    EXPECT_EQ(g, (QJsonObject{{"id", game->Id()},
                              {"name", "Campaign"},
                              {"remarks", "Summer offensive"},
                              {"activeGroup", 2}}));
    ASSERT_EQ(groups.size(), 2);
    QJsonObject second = groups[1].toObject();
    const QJsonArray maps = second.take(QStringLiteral("maps")).toArray();
    EXPECT_EQ(second,
              (QJsonObject{
                  {"id", game->MapGroups().Item(2)->Id()}, {"frozen", false}, {"activeMap", 2}}));
    EXPECT_EQ(groups[0][QStringLiteral("frozen")], QJsonValue(true));
    // Maps that are not active are read back from their swap files.
    EXPECT_EQ(groups[0]["maps"][0]["units"][0]["caption"], QJsonValue("Panzer"));

    ASSERT_EQ(maps.size(), 2);
    QJsonObject turn3 = maps[1].toObject();
    const QJsonArray units = turn3.take(QStringLiteral("units")).toArray();
    const QJsonArray arrows = turn3.take(QStringLiteral("arrows")).toArray();
    EXPECT_EQ(turn3.take(QStringLiteral("id")).toString().size(), 32);
    EXPECT_EQ(turn3, (QJsonObject{{"name", "Turn 3"},
                                  {"remarks", ""},
                                  {"text", "Rain on the front."},
                                  {"frozen", true}}));
    ASSERT_EQ(units.size(), 2);
    QJsonObject stack = units[0].toObject();
    EXPECT_EQ(stack.take(QStringLiteral("id")).toString().size(), 32);
    EXPECT_EQ(stack, (QJsonObject{{"token", "inf"},
                                  {"tokenIndex", 1},
                                  {"x", 40},
                                  {"y", 50},
                                  {"caption", "x12"},
                                  {"data", "12"},
                                  {"hasMoved", true}}));
    EXPECT_EQ(units[1]["tokenIndex"], QJsonValue(2));
    EXPECT_EQ(units[1]["x"], QJsonValue(-7));
    EXPECT_EQ(units[1]["hasMoved"], QJsonValue(false));
    ASSERT_EQ(arrows.size(), 1);
    QJsonObject arrow = arrows[0].toObject();
    EXPECT_EQ(arrow.take(QStringLiteral("id")).toString().size(), 32);
    EXPECT_EQ(arrow,
              (QJsonObject{
                  {"tailX", 10}, {"tailY", 20}, {"headX", 110}, {"headY", 120}, {"color", 255}}));
}

TEST_F(ToolGameFile, InfoSummarisesTheGame)
{
    const QString path = Save(*campaign(), QStringLiteral("war.krf"));
    const ToolRun run = Tool({QStringLiteral("info"), path});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    const QStringList lines = run.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const char* line :
         {"Context: krm_war_v1", "Name: Campaign", "Groups: 2", "Maps: 3", "Units: 3", "Arrows: 1"})
        EXPECT_TRUE(lines.contains(QLatin1String(line))) << line;

    const QByteArray bytes = home.ReadFile(QStringLiteral("war.krf"));
    CGameFile::Header header;
    ASSERT_TRUE(CGameFile::ReadHeader(bytes, header, nullptr));
    EXPECT_TRUE(lines.contains(QStringLiteral("Body size: %1 bytes").arg(header.BodyLength)));
    // The zlib stream without the padding after it.
    const int compressed =
        lines.filter(QStringLiteral("Compressed size: ")).value(0).section(' ', 2, 2).toInt();
    EXPECT_GT(compressed, bytes.size() - header.BodyOffset - 4);
    EXPECT_LE(compressed, bytes.size() - header.BodyOffset);
}

TEST_F(ToolGameFile, ResaveGivesIdenticalBytesAndNewSavesTheDefaultGame)
{
    const QString path = Save(*campaign(), QStringLiteral("war.krf"));
    const QString copy = home.File(QStringLiteral("copy.krf"));
    ASSERT_EQ(Tool({QStringLiteral("resave"), path, QStringLiteral("-o"), copy}).Status, 0);
    EXPECT_EQ(home.ReadFile(QStringLiteral("copy.krf")), home.ReadFile(QStringLiteral("war.krf")));
    // A file may be saved over itself.
    ASSERT_EQ(Tool({QStringLiteral("resave"), copy, QStringLiteral("--output"), copy}).Status, 0);
    EXPECT_EQ(home.ReadFile(QStringLiteral("copy.krf")), home.ReadFile(QStringLiteral("war.krf")));

    // The module names no initial game: a new game is one empty map "Start".
    const QString fresh = home.File(QStringLiteral("fresh.krf"));
    ASSERT_EQ(Tool({QStringLiteral("new"), QStringLiteral("krm_war_v1"), "-o", fresh}).Status, 0);
    const QJsonValue groups = Tool({QStringLiteral("dump"), fresh}).Json()["game"]["groups"];
    ASSERT_EQ(groups.toArray().size(), 1);
    EXPECT_EQ(groups[0]["maps"].toArray().size(), 1);
    EXPECT_EQ(groups[0]["maps"][0]["name"], QJsonValue("Start"));

    const ToolRun unknown = Tool({QStringLiteral("new"), QStringLiteral("krm_no_v1"), "-o", fresh});
    EXPECT_EQ(unknown.Status, 1);
    EXPECT_TRUE(unknown.Err.contains(QStringLiteral("'krm_no_v1'"))) << unknown.Err.toStdString();
}

TEST_F(ToolGameFile, ResaveUpgradesAVersionOneGame)
{
    const QString old = home.WriteFile(QStringLiteral("old.krf"), versionOneFile());
    const QString upgraded = home.File(QStringLiteral("new.krf"));
    ASSERT_EQ(Tool({QStringLiteral("resave"), old, QStringLiteral("-o"), upgraded}).Status, 0);
    EXPECT_EQ(gameVersion(home.ReadFile(QStringLiteral("old.krf"))), 1);
    EXPECT_EQ(gameVersion(home.ReadFile(QStringLiteral("new.krf"))), 2);

    const QJsonValue game = Tool({QStringLiteral("dump"), upgraded}).Json()["game"];
    EXPECT_EQ(game["id"], QJsonValue("0123456789ABCDEF0123456789ABCDEF"));
    EXPECT_EQ(game["remarks"], QJsonValue("from 1999"));
    const QJsonValue maps = game["groups"][0]["maps"];
    ASSERT_EQ(maps.toArray().size(), 2);
    EXPECT_EQ(maps[1]["text"], QJsonValue("Notes 2"));
    EXPECT_EQ(maps[1]["units"][0]["x"], QJsonValue(20));
    EXPECT_EQ(maps[1]["units"][0]["y"], QJsonValue(40));
    EXPECT_EQ(maps[1]["units"][0]["caption"], QJsonValue("x2"));
}

TEST_F(ToolGameFile, DamagedOrForeignGamesFailWithoutTouchingTheOutput)
{
    const QByteArray good = CGameFile::ToBytes(*campaign(), QStringLiteral("krm_war_v1"));
    const QString output = home.WriteFile(QStringLiteral("out.krf"), "keep me");
    const struct
    {
        const char* Name;
        QByteArray Bytes;
        const char* Reason;
    } cases[] = {
        {"notes.krf", "Attack at dawn.", "it is not a Korvane game file"},
        {"truncated.krf", good.left(good.size() / 2), "damaged"},
        {"header.krf", good.left(8), "header"},
        {"foreign.krf", CGameFile::ToBytes(*campaign(), QStringLiteral("krm_far_v3")),
         "krm_far_v3"},
    };
    for (const auto& c : cases) {
        const QString path = home.WriteFile(QLatin1String(c.Name), c.Bytes);
        for (const QString& command : {QStringLiteral("resave"), QStringLiteral("render")}) {
            const ToolRun run = Tool({command, path, QStringLiteral("-o"), output});
            EXPECT_EQ(run.Status, 1) << c.Name;
            ASSERT_EQ(run.ErrLines().size(), 1) << run.Err.toStdString();
            EXPECT_TRUE(run.Err.startsWith(QStringLiteral("korvane-tool: ") + path + ": "))
                << run.Err.toStdString();
            EXPECT_TRUE(run.Err.contains(QLatin1String(c.Reason))) << run.Err.toStdString();
        }
    }
    EXPECT_EQ(home.ReadFile(QStringLiteral("out.krf")), QByteArray("keep me"));
}
