#include "tool/ToolTestSupport.h"

#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

class ToolDiff : public ToolFixture
{
protected:
    // "Start": a stack and a tank; "Turn 2": the stack moved, the tank gone, an arrow drawn.
    std::shared_ptr<CGame> twoTurns() const
    {
        auto game = NewGame(QStringLiteral("Border"));
        const auto start = game->ActiveMapGroup()->ActiveMap();
        AddUnit(*start, QStringLiteral("inf"), 120, 80, QStringLiteral("x3"), QStringLiteral("3"));
        AddUnit(*start, QStringLiteral("tank"), 640, 300);
        auto turn2 = AddMap(*game->ActiveMapGroup(), QStringLiteral("Turn 2"));
        AddUnit(*turn2, QStringLiteral("inf"), 216, 80, QStringLiteral("x3"), QStringLiteral("3"),
                true);
        AddArrow(*turn2, 10, 20, 110, 120, 255);
        return game;
    }

    static QJsonValue json(const char* text)
    {
        const QJsonDocument document = QJsonDocument::fromJson(text);
        EXPECT_TRUE(document.isObject()) << text;
        return QJsonValue(document.object());
    }
};

} // namespace

TEST_F(ToolDiff, TellsWhatChangedBetweenTwoMapsInWordsAndJson)
{
    const QString path = Save(*twoTurns(), QStringLiteral("border.krf"));
    const ToolRun words = Tool({QStringLiteral("diff"), path});
    ASSERT_EQ(words.Status, 0) << words.Err.toStdString();
    EXPECT_EQ(words.Out, QString::fromUtf8("Start → Turn 2: 1 moved, 1 removed, 1 arrow added\n"
                                           "  inf x3 moved from (120, 80) to (216, 80)\n"
                                           "  tank removed from (640, 300)\n"
                                           "  Arrow added from (10, 20) to (110, 120)\n"));

    const ToolRun chosen =
        Tool({QStringLiteral("diff"), path, QStringLiteral("--from"), QStringLiteral("Turn 2"),
              QStringLiteral("--to"), QStringLiteral("1:1"), QStringLiteral("--json")});
    ASSERT_EQ(chosen.Status, 0) << chosen.Err.toStdString();
    EXPECT_EQ(chosen.Json(), json(R"({"from": "Turn 2", "to": "Start",
        "counts": {"moved": 1, "added": 1, "removed": 0, "changed": 0,
                   "arrows_added": 0, "arrows_removed": 1, "arrows_moved": 0},
        "text_changed": false,
        "changes": [{"kind": "moved", "token": "inf", "caption": "x3",
                     "from": [216, 80], "to": [120, 80]},
                    {"kind": "added", "token": "tank", "caption": "", "to": [640, 300]}]})"));

    const ToolRun missing = Tool({QStringLiteral("diff"), path, "--from", "Turn 9"});
    EXPECT_EQ(missing.Status, 1);
    EXPECT_TRUE(missing.Err.contains(QStringLiteral("no map named 'Turn 9'")))
        << missing.Err.toStdString();
    EXPECT_EQ(Tool({QStringLiteral("diff"), path, "--to", "1:3"}).Status, 1);
    const ToolRun first = Tool({QStringLiteral("diff"), path, "--to", "Start"});
    EXPECT_EQ(first.Status, 1);
    EXPECT_TRUE(first.Err.contains(QStringLiteral("no map before it"))) << first.Err.toStdString();
    EXPECT_EQ(Tool({QStringLiteral("diff"), path, path, "--to", "Start"}).Status, 2);
    EXPECT_EQ(Tool({QStringLiteral("diff")}).Status, 2);
}

TEST_F(ToolDiff, TwoFilesOfAGameShowWhetherTheEarlierMapsWereKept)
{
    auto game = twoTurns();
    const QString old = Save(*game, QStringLiteral("old.krf"));
    AddMap(*game->ActiveMapGroup(), QStringLiteral("Turn 3"));
    const QString kept = Save(*game, QStringLiteral("kept.krf"));

    ToolRun run = Tool({QStringLiteral("diff"), old, kept});
    ASSERT_EQ(run.Status, 0) << run.Err.toStdString();
    EXPECT_EQ(run.Out, QStringLiteral("1:1 Start: same\n1:2 Turn 2: same\n"
                                      "1:3 Turn 3: only in kept.krf\n"
                                      "The 2 maps both files hold are the same.\n"));

    // A hand-altered earlier map: the tank of the first turn slid away.
    const auto start = game->ActiveMapGroup()->Maps().Item(1);
    start->AquireLock();
    start->Units()->Item(2)->SetX(600);
    start->ReleaseLock();
    const QString altered = Save(*game, QStringLiteral("altered.krf"));
    run = Tool({QStringLiteral("diff"), old, altered});
    EXPECT_EQ(run.Status, 3) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.startsWith(QStringLiteral("1:1 Start: changed (1 moved)\n"
                                                  "  tank moved from (640, 300) to (600, 300)\n")))
        << run.Out.toStdString();
    EXPECT_TRUE(run.Out.endsWith(QStringLiteral("1:3 Turn 3: only in altered.krf\n1 of the 2 maps "
                                                "both files hold differs from old.krf.\n")))
        << run.Out.toStdString();
    run = Tool({QStringLiteral("diff"), altered, old, QStringLiteral("--json")});
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Json(), json(R"({"maps": [
        {"group": 1, "map": 1, "name": "Start", "status": "changed", "counts": {"moved": 1,
         "added": 0, "removed": 0, "changed": 0, "arrows_added": 0, "arrows_removed": 0,
         "arrows_moved": 0}},
        {"group": 1, "map": 2, "name": "Turn 2", "status": "same", "counts": {"moved": 0,
         "added": 0, "removed": 0, "changed": 0, "arrows_added": 0, "arrows_removed": 0,
         "arrows_moved": 0}},
        {"group": 1, "map": 3, "name": "Turn 3", "status": "removed", "counts": {"moved": 0,
         "added": 0, "removed": 0, "changed": 0, "arrows_added": 0, "arrows_removed": 0,
         "arrows_moved": 0}}]})"));

    const QString other = Save(*twoTurns(), QStringLiteral("other.krf"));
    run = Tool({QStringLiteral("diff"), old, other});
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Err.contains(QStringLiteral("another game"))) << run.Err.toStdString();
    EXPECT_TRUE(run.Out.isEmpty());
}
