#include "actions/CActionMgr.h"
#include "actions/CArrowHandles.h"
#include "model/CGameEventMgr.h"
#include "model/ModelTestSupport.h"
#include "persist/CGameFile.h"
#include "review/CGameComparer.h"
#include "review/CMapComparer.h"
#include "review/CMapHistory.h"
#include "support/EventLog.h"

#include <gtest/gtest.h>

namespace {

class ReviewModel : public ModelFixture
{
protected:
    void SetUp() override
    {
        ModelFixture::SetUp();
        game = std::make_shared<CGame>(CUtility::GenerateId());
        for (int g = 0; g < 3; ++g)
            game->MapGroups().AddItem(std::make_shared<CMapGroup>(CUtility::GenerateId()));
        start = AddMap(*groupAt(1), QStringLiteral("Start"));
        turn2 = AddMap(*groupAt(1), QStringLiteral("Turn 2"));
        turn3 = AddMap(*groupAt(3), QStringLiteral("Turn 3"));
        fill(*start, 10);
        fill(*turn2, 50);
        turn2->SetText(QStringLiteral("Rain"));
        game->SwitchTo(groupAt(3));
        Root().SetGame(game);
    }

    std::shared_ptr<CMapGroup> groupAt(int number) const { return game->MapGroups().Item(number); }

    // A stack at (x, 20), a tank that only gains its moved mark, and an arrow with its handles.
    static void fill(CMap& map, int x)
    {
        map.AquireLock();
        AddUnit(map, QStringLiteral("INF"), x, 20, QStringLiteral("x3"), QStringLiteral("3"));
        AddUnit(map, QStringLiteral("TANK"), 5, 5, QString(), QString(), x != 10);
        const QString arrowId = AddArrow(map, 1, 2, 3, 4, 255)->Id();
        AddUnit(map, QStringLiteral("ARROW"), x, 2, QString(),
                CArrowHandles::HandleData(arrowId, CArrowHandles::End::Tail));
        map.ReleaseLock();
    }

    std::shared_ptr<CGame> game;
    std::shared_ptr<CMap> start, turn2, turn3;
};

} // namespace

TEST_F(ReviewModel, ComparingSwappedOutMapsLeavesTheModelAsItWas)
{
    EXPECT_EQ(CMapHistory::MapBefore(*game, *turn3), turn2) << "skips the empty archive";
    EXPECT_EQ(CMapHistory::MapBefore(*game, *turn2), start);
    EXPECT_EQ(CMapHistory::MapBefore(*game, *start), nullptr);
    EXPECT_EQ(CMapHistory::LastMap(*game), turn3);
    EXPECT_EQ(CMapHistory::PositionOf(*game, *turn3).Group, 3);
    EXPECT_EQ(CMapHistory::MapAt(*game, {1, 2}), turn2);
    EXPECT_EQ(CMapHistory::MapAt(*game, {2, 1}), nullptr);

    auto log = std::make_shared<EventLog>();
    Root().EventMgr().Register(log);
    ASSERT_TRUE(start->SwappedOut());
    ASSERT_TRUE(turn2->SwappedOut());
    const QString swapFile = start->SwapFile();

    const CMapComparison result = CMapComparer::Compare(start, turn2);
    EXPECT_EQ(result.Count.Total(), 1) << result.Lines().join('\n').toStdString();
    EXPECT_EQ(result.Lines(false),
              QStringList({"INF x3 moved from (10, 20) to (50, 20)", "Map text changed"}));
    EXPECT_TRUE(start->SwappedOut());
    EXPECT_TRUE(turn2->SwappedOut());
    EXPECT_EQ(start->LockCount(), 0);
    EXPECT_EQ(turn2->LockCount(), 0);
    EXPECT_EQ(start->SwapFile(), swapFile);
    EXPECT_EQ(turn3->LockCount(), 1);
    EXPECT_EQ(CMapComparer::Compare(turn2, turn3).Count.Removed, 2);
    EXPECT_EQ(turn3->LockCount(), 1);
    EXPECT_EQ(game->Dirty(), 0);
    EXPECT_EQ(Root().ActionMgr().Actions().Count(), 0);
    EXPECT_TRUE(log->Lines.isEmpty()) << log->Lines.join(' ').toStdString();
    Root().EventMgr().Unregister(log);
}

TEST_F(ReviewModel, AGameComparedWithACopyFindsTheAlteredMapAndTheNewOnes)
{
    const QByteArray bytes = CGameFile::ToBytes(*game, QStringLiteral("TST"));
    QString error;
    const auto kept = CGameFile::FromBytes(bytes, &error);
    ASSERT_TRUE(kept) << error.toStdString();
    AddMap(*kept->MapGroups().Item(3), QStringLiteral("Turn 4"));

    CGameComparison result = CGameComparer::Compare(*game, *kept);
    EXPECT_TRUE(result.Kept());
    ASSERT_EQ(result.Maps.size(), 4u);
    EXPECT_EQ(result.Maps[3].Status, CGameComparison::Entry::EntryStatus::Added);
    EXPECT_EQ(result.Maps[3].Name, QStringLiteral("Turn 4"));
    EXPECT_EQ(result.Maps[2].Group, 3);

    const auto altered = CGameFile::FromBytes(bytes, &error);
    ASSERT_TRUE(altered);
    const std::shared_ptr<CMap> first = altered->MapGroups().Item(1)->Maps().Item(1);
    first->AquireLock();
    first->Units()->Item(1)->SetCaption(QStringLiteral("x2"));
    first->ReleaseLock();
    altered->MapGroups().Item(3)->Maps().DeleteItem(1);

    result = CGameComparer::Compare(*game, *altered);
    EXPECT_FALSE(result.Kept());
    EXPECT_EQ(result.ChangedCount(), 1);
    QStringList statuses;
    for (const auto& entry : result.Maps)
        statuses << QStringLiteral("%1:%2 %3 %4")
                        .arg(entry.Group)
                        .arg(entry.Map)
                        .arg(entry.Name, CGameComparison::Entry::StatusName(entry.Status));
    EXPECT_EQ(statuses,
              QStringList({"1:1 Start changed", "1:2 Turn 2 same", "3:1 Turn 3 removed"}));
    EXPECT_EQ(result.Maps[0].Comparison.Count.Changed, 1);
}
