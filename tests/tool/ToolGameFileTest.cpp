#include "tool/ToolTestSupport.h"

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"

#include <QJsonArray>
#include <QJsonDocument>
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

    // The value with every "id" taken out, each checked to be an identifier.
    static QJsonValue withoutIds(const QJsonValue& value)
    {
        if (value.isArray()) {
            QJsonArray array;
            for (const QJsonValue& item : value.toArray())
                array.append(withoutIds(item));
            return array;
        }
        if (!value.isObject())
            return value;
        QJsonObject object = value.toObject();
        if (object.contains(QStringLiteral("id"))) {
            EXPECT_EQ(object.take(QStringLiteral("id")).toString().size(), 32);
        }
        for (auto it = object.begin(); it != object.end(); ++it)
            *it = withoutIds(*it);
        return object;
    }
};

} // namespace

TEST_F(ToolGameFile, DumpWritesTheWholeGameAsJson)
{
    const auto game = campaign();
    const ToolRun run = Tool({QStringLiteral("dump"), Save(*game, QStringLiteral("war.krf"))});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    EXPECT_EQ(run.Json()["game"]["id"], QJsonValue(game->Id()));
    // Reading makes the last group active, and in every group its last map;
    // maps that are not active are read back from their swap files.
    const QJsonDocument expected = QJsonDocument::fromJson(R"({"context": "krm_war_v1", "game": {
      "name": "Campaign", "remarks": "Summer offensive", "activeGroup": 2, "groups": [
      {"frozen": true, "activeMap": 1, "maps": [{"name": "Turn 1", "remarks": "", "text": "",
        "frozen": false, "arrows": [], "units": [{"token": "tank", "tokenIndex": 2, "x": 5,
        "y": 6, "caption": "Panzer", "data": "", "hasMoved": false}]}]},
      {"frozen": false, "activeMap": 2, "maps": [
        {"name": "Turn 2", "remarks": "", "text": "", "frozen": false, "units": [], "arrows": []},
        {"name": "Turn 3", "remarks": "", "text": "Rain on the front.", "frozen": true,
         "units": [{"token": "inf", "tokenIndex": 1, "x": 40, "y": 50, "caption": "x12",
                    "data": "12", "hasMoved": true},
                   {"token": "tank", "tokenIndex": 2, "x": -7, "y": 300, "caption": "Tiger",
                    "data": "", "hasMoved": false}],
         "arrows": [{"tailX": 10, "tailY": 20, "headX": 110, "headY": 120, "color": 255}]}]}]}})");
    ASSERT_TRUE(expected.isObject());
    EXPECT_EQ(withoutIds(run.Json()), QJsonValue(expected.object()));
}

TEST_F(ToolGameFile, InfoSummarisesResaveKeepsTheBytesAndNewSavesTheDefaultGame)
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

    // Resave gives identical bytes.
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
        {"foreign.krf", CGameFile::ToBytes(*campaign(), QStringLiteral("krm_far_v3")),
         "krm_far_v3"},
    };
    for (const auto& c : cases) {
        const QString path = home.WriteFile(QLatin1String(c.Name), c.Bytes);
        for (const QString& command : {QStringLiteral("resave"), QStringLiteral("render")}) {
            const ToolRun run = Tool({command, path, QStringLiteral("-o"), output});
            EXPECT_EQ(run.Status, 1) << c.Name;
            EXPECT_EQ(run.ErrLines().size(), 1) << run.Err.toStdString();
            EXPECT_TRUE(run.Err.startsWith(QStringLiteral("korvane-tool: ") + path + ": "))
                << run.Err.toStdString();
            EXPECT_TRUE(run.Err.contains(QLatin1String(c.Reason))) << run.Err.toStdString();
        }
    }
    EXPECT_EQ(home.ReadFile(QStringLiteral("out.krf")), QByteArray("keep me"));
}
