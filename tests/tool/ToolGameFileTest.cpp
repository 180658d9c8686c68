#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "persist/CGameFile.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <QFile>
#include <QJsonArray>

#include <cstring>

namespace {

class ToolGameFile : public ToolFixture
{
protected:
    // Two groups: a frozen one with one map, and one with two maps, the
    // second active, holding units of every kind and an arrow.
    std::shared_ptr<CGame> campaign()
    {
        auto game = NewGame(QStringLiteral("Campaign"));
        game->SetRemarks(QStringLiteral("Summer offensive"));
        auto first = game->ActiveMapGroup();
        first->SetFrozen(true);
        AddUnit(*first->ActiveMap(), QStringLiteral("tank"), 5, 6, QStringLiteral("Panzer"));

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
    QByteArray versionOneFile()
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
            body.WriteInteger(1); // token index of "inf"
            body.WriteSmallString(QStringLiteral("inf"));
            body.WriteInteger(1); // unit record version 1: no moved flag
            body.WriteLong(10 * turn);
            body.WriteLong(20 * turn);
            body.WriteSmallString(QStringLiteral("x%1").arg(turn));
            body.WriteSmallString(QString::number(turn));
            body.WriteInteger(0);
        }
        body.Resize(body.Offset(), true);
        CZlib zlib;
        const auto packed = zlib.Compact(body);
        const QByteArray id = "krm_war_v1";
        QByteArray file = "KR01" + QByteArray(1, char(id.size())) + id;
        const std::int32_t length = body.Size();
        file.append(reinterpret_cast<const char*>(&length), 4);
        file.append(reinterpret_cast<const char*>(packed->Address()), packed->Size());
        while (file.size() % 4 != 0)
            file.append('\0');
        return file;
    }
};

QJsonObject at(const QJsonValue& array, int index)
{
    return array.toArray().at(index).toObject();
}

} // namespace

TEST_F(ToolGameFile, DumpWritesTheWholeGameAsJson)
{
    const auto game = campaign();
    const QString path = Save(*game, QStringLiteral("campaign.krf"));
    const ToolRun run = Tool({QStringLiteral("dump"), path});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    const QJsonObject dump = JsonObject(run.Out);
    EXPECT_EQ(dump.keys(), (QStringList{QStringLiteral("context"), QStringLiteral("game")}));
    EXPECT_EQ(dump.value(QStringLiteral("context")).toString(), QStringLiteral("krm_war_v1"));

    const QJsonObject g = dump.value(QStringLiteral("game")).toObject();
    EXPECT_EQ(g.keys(), (QStringList{"activeGroup", "groups", "id", "name", "remarks"}));
    EXPECT_EQ(g.value(QStringLiteral("id")).toString(), game->Id());
    EXPECT_EQ(g.value(QStringLiteral("name")).toString(), QStringLiteral("Campaign"));
    EXPECT_EQ(g.value(QStringLiteral("remarks")).toString(), QStringLiteral("Summer offensive"));
    // Reading makes the last group active, and the last map of every group.
    EXPECT_EQ(g.value(QStringLiteral("activeGroup")), QJsonValue(2));

    const QJsonValue groups = g.value(QStringLiteral("groups"));
    ASSERT_EQ(groups.toArray().size(), 2);
    const QJsonObject first = at(groups, 0);
    EXPECT_EQ(first.keys(), (QStringList{"activeMap", "frozen", "id", "maps"}));
    EXPECT_EQ(first.value(QStringLiteral("id")).toString(), game->MapGroups().Item(1)->Id());
    EXPECT_EQ(first.value(QStringLiteral("frozen")), QJsonValue(true));
    EXPECT_EQ(at(groups, 1).value(QStringLiteral("frozen")), QJsonValue(false));
    EXPECT_EQ(at(groups, 1).value(QStringLiteral("activeMap")), QJsonValue(2));

    const QJsonObject turn3 = at(at(groups, 1).value(QStringLiteral("maps")), 1);
    EXPECT_EQ(turn3.keys(),
              (QStringList{"arrows", "frozen", "id", "name", "remarks", "text", "units"}));
    EXPECT_EQ(turn3.value(QStringLiteral("name")).toString(), QStringLiteral("Turn 3"));
    EXPECT_EQ(turn3.value(QStringLiteral("text")).toString(), QStringLiteral("Rain on the front."));
    EXPECT_EQ(turn3.value(QStringLiteral("frozen")), QJsonValue(true));
    EXPECT_EQ(turn3.value(QStringLiteral("id")).toString().size(), 32);

    const QJsonValue units = turn3.value(QStringLiteral("units"));
    ASSERT_EQ(units.toArray().size(), 2);
    const QJsonObject infantry = at(units, 0);
    EXPECT_EQ(infantry.keys(),
              (QStringList{"caption", "data", "hasMoved", "id", "token", "tokenIndex", "x", "y"}));
    EXPECT_EQ(infantry.value(QStringLiteral("token")).toString(), QStringLiteral("inf"));
    EXPECT_EQ(infantry.value(QStringLiteral("tokenIndex")), QJsonValue(1));
    EXPECT_EQ(infantry.value(QStringLiteral("x")), QJsonValue(40));
    EXPECT_EQ(infantry.value(QStringLiteral("y")), QJsonValue(50));
    EXPECT_EQ(infantry.value(QStringLiteral("caption")).toString(), QStringLiteral("x12"));
    EXPECT_EQ(infantry.value(QStringLiteral("data")).toString(), QStringLiteral("12"));
    EXPECT_EQ(infantry.value(QStringLiteral("hasMoved")), QJsonValue(true));
    const QJsonObject tiger = at(units, 1);
    EXPECT_EQ(tiger.value(QStringLiteral("tokenIndex")), QJsonValue(2));
    EXPECT_EQ(tiger.value(QStringLiteral("x")), QJsonValue(-7));
    EXPECT_EQ(tiger.value(QStringLiteral("hasMoved")), QJsonValue(false));

    const QJsonObject arrow = at(turn3.value(QStringLiteral("arrows")), 0);
    EXPECT_EQ(arrow.keys(), (QStringList{"color", "headX", "headY", "id", "tailX", "tailY"}));
    EXPECT_EQ(arrow.value(QStringLiteral("tailX")), QJsonValue(10));
    EXPECT_EQ(arrow.value(QStringLiteral("tailY")), QJsonValue(20));
    EXPECT_EQ(arrow.value(QStringLiteral("headX")), QJsonValue(110));
    EXPECT_EQ(arrow.value(QStringLiteral("headY")), QJsonValue(120));
    EXPECT_EQ(arrow.value(QStringLiteral("color")), QJsonValue(255));

    // Maps that are not active are read back from their swap files too.
    const QJsonValue frozenUnits = at(first.value(QStringLiteral("maps")), 0).value("units");
    EXPECT_EQ(at(frozenUnits, 0).value(QStringLiteral("caption")).toString(),
              QStringLiteral("Panzer"));
}

TEST_F(ToolGameFile, InfoSummarisesTheGame)
{
    const QString path = Save(*campaign(), QStringLiteral("campaign.krf"));
    const ToolRun run = Tool({QStringLiteral("info"), path});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    const QStringList lines = run.Out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_TRUE(lines.contains(QStringLiteral("Context: krm_war_v1")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Name: Campaign")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Groups: 2")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Maps: 3")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Units: 3")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Arrows: 1")));

    const QByteArray bytes = home.ReadFile(QStringLiteral("campaign.krf"));
    CGameFile::Header header;
    ASSERT_TRUE(CGameFile::ReadHeader(bytes, header, nullptr));
    EXPECT_TRUE(lines.contains(QStringLiteral("Body size: %1 bytes").arg(header.BodyLength)));
    // The zlib stream without the padding after it.
    const qsizetype stored = bytes.size() - header.BodyOffset;
    const QString compressed = lines.filter(QStringLiteral("Compressed size: ")).value(0);
    const int size = compressed.section(QLatin1Char(' '), 2, 2).toInt();
    EXPECT_GT(size, stored - 4);
    EXPECT_LE(size, stored);
}

TEST_F(ToolGameFile, ResaveGivesIdenticalBytesAndNewSavesTheDefaultGame)
{
    const QString path = Save(*campaign(), QStringLiteral("campaign.krf"));
    const QString copy = home.File(QStringLiteral("copy.krf"));
    const ToolRun resave = Tool({QStringLiteral("resave"), path, QStringLiteral("-o"), copy});
    ASSERT_EQ(resave.Status, 0) << resave.Err.toStdString();
    EXPECT_EQ(home.ReadFile(QStringLiteral("copy.krf")),
              home.ReadFile(QStringLiteral("campaign.krf")));

    // A file may be saved over itself.
    ASSERT_EQ(Tool({QStringLiteral("resave"), copy, QStringLiteral("--output"), copy}).Status, 0);
    EXPECT_EQ(home.ReadFile(QStringLiteral("copy.krf")),
              home.ReadFile(QStringLiteral("campaign.krf")));

    // The module has no initial game: a new game is one empty map "Start".
    const QString fresh = home.File(QStringLiteral("fresh.krf"));
    const ToolRun created =
        Tool({QStringLiteral("new"), QStringLiteral("krm_war_v1"), QStringLiteral("-o"), fresh});
    ASSERT_EQ(created.Status, 0) << created.Err.toStdString();
    const ToolRun dump = Tool({QStringLiteral("dump"), fresh});
    ASSERT_EQ(dump.Status, 0) << dump.Err.toStdString();
    const QJsonValue groups =
        JsonObject(dump.Out).value(QStringLiteral("game")).toObject().value("groups");
    ASSERT_EQ(groups.toArray().size(), 1);
    const QJsonValue maps = at(groups, 0).value(QStringLiteral("maps"));
    ASSERT_EQ(maps.toArray().size(), 1);
    EXPECT_EQ(at(maps, 0).value(QStringLiteral("name")).toString(), QStringLiteral("Start"));

    const ToolRun unknown =
        Tool({QStringLiteral("new"), QStringLiteral("krm_nothing_v1"), "-o", fresh});
    EXPECT_EQ(unknown.Status, 1);
    EXPECT_TRUE(unknown.Err.contains(QStringLiteral("krm_nothing_v1")));
}

TEST_F(ToolGameFile, ResaveUpgradesAVersionOneGame)
{
    const QString old = home.WriteFile(QStringLiteral("old.krf"), versionOneFile());
    const QString upgraded = home.File(QStringLiteral("new.krf"));
    ASSERT_EQ(Tool({QStringLiteral("resave"), old, QStringLiteral("-o"), upgraded}).Status, 0);

    const QByteArray bytes = home.ReadFile(QStringLiteral("new.krf"));
    CGameFile::Header header;
    ASSERT_TRUE(CGameFile::ReadHeader(bytes, header, nullptr));
    EXPECT_EQ(header.StoredContextId, QStringLiteral("krm_war_v1"));
    const auto packed = CInputStream::FromBytes(bytes.mid(header.BodyOffset));
    CZlib zlib;
    std::int32_t length = header.BodyLength;
    const auto body = zlib.Decompact(packed, length);
    ASSERT_EQ(zlib.LastResult(), 0);
    EXPECT_EQ(body->ReadInteger(), 2); // the game record's version

    const ToolRun dump = Tool({QStringLiteral("dump"), upgraded});
    ASSERT_EQ(dump.Status, 0) << dump.Err.toStdString();
    const QJsonObject game = JsonObject(dump.Out).value(QStringLiteral("game")).toObject();
    EXPECT_EQ(game.value(QStringLiteral("id")).toString(),
              QStringLiteral("0123456789ABCDEF0123456789ABCDEF"));
    EXPECT_EQ(game.value(QStringLiteral("remarks")).toString(), QStringLiteral("from 1999"));
    const QJsonValue maps = at(game.value(QStringLiteral("groups")), 0).value("maps");
    ASSERT_EQ(maps.toArray().size(), 2);
    const QJsonObject turn2 = at(maps, 1);
    EXPECT_EQ(turn2.value(QStringLiteral("text")).toString(), QStringLiteral("Notes 2"));
    const QJsonObject unit = at(turn2.value(QStringLiteral("units")), 0);
    EXPECT_EQ(unit.value(QStringLiteral("x")), QJsonValue(20));
    EXPECT_EQ(unit.value(QStringLiteral("y")), QJsonValue(40));
    EXPECT_EQ(unit.value(QStringLiteral("caption")).toString(), QStringLiteral("x2"));
    EXPECT_EQ(unit.value(QStringLiteral("hasMoved")), QJsonValue(false));
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
        {"truncated.krf", good.left(good.size() / 2), "damaged"},
        {"header.krf", good.left(8), "header"},
        {"foreign.krf", CGameFile::ToBytes(*campaign(), QStringLiteral("krm_elsewhere_v3")),
         "krm_elsewhere_v3"},
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
