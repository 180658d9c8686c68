#include "model/ModelTestSupport.h"

#include <gtest/gtest.h>

namespace {

class GameModel : public ModelFixture
{
protected:
    void SetUp() override
    {
        ModelFixture::SetUp();
        game = std::make_shared<CGame>(CUtility::GenerateId());
        for (int i = 0; i < 3; ++i) {
            groups[i] = std::make_shared<CMapGroup>(CUtility::GenerateId());
            game->MapGroups().AddItem(groups[i]);
        }
        m1 = AddMap(*groups[0]);
        m2 = AddMap(*groups[0]);
        m3 = AddMap(*groups[1]);
    }

    std::shared_ptr<CGame> game;
    std::shared_ptr<CMapGroup> groups[3];
    std::shared_ptr<CMap> m1, m2, m3;
};

TEST_F(GameModel, switchingGroupsActivatesTheLastMapAndLookupsSearchEveryGroup)
{
    game->SwitchTo(groups[0]);
    EXPECT_EQ(groups[0]->ActiveMap(), m2);
    EXPECT_EQ(m2->LockCount(), 1);
    EXPECT_EQ(m1->LockCount(), 0);

    game->SwitchTo(groups[1]);
    EXPECT_EQ(groups[1]->ActiveMap(), m3);
    EXPECT_EQ(groups[0]->ActiveMap(), m2) << "the previous group keeps its active map";
    EXPECT_EQ(m2->LockCount(), 1) << "and its lock";

    // A group without maps becomes active with no active map.
    game->SwitchTo(groups[2]);
    EXPECT_EQ(game->ActiveMapGroup(), groups[2]);
    EXPECT_EQ(groups[2]->ActiveMap(), nullptr);

    // Back to a group that already has an active map: that map stays.
    groups[0]->SwitchTo(m1);
    game->SwitchTo(groups[0]);
    EXPECT_EQ(groups[0]->ActiveMap(), m2);
    EXPECT_EQ(m1->LockCount(), 0);
    EXPECT_EQ(m2->LockCount(), 1);

    // Lookups search every group, not only the active one.
    EXPECT_EQ(game->MapById(m3->Id()), m3);
    EXPECT_EQ(game->GroupByMapId(m3->Id()), groups[1]);
    EXPECT_EQ(game->GroupById(groups[2]->Id()), groups[2]);
    EXPECT_EQ(game->TokenById(QStringLiteral("MARK")), token(QStringLiteral("MARK")));
    EXPECT_EQ(game->GetMapCount(), 3);

    const QString id = QStringLiteral("0123");
    EXPECT_EQ(game->MapById(id), nullptr);
    EXPECT_EQ(game->GroupById(id), nullptr);
    EXPECT_EQ(game->GroupByMapId(id), nullptr);
    EXPECT_EQ(game->TokenById(id), nullptr);
    EXPECT_EQ(m1->UnitById(id), nullptr) << "a map that is not locked";
    EXPECT_EQ(m2->ArrowById(id), nullptr);
    Root().SetContext(nullptr);
    EXPECT_EQ(game->TokenById(QStringLiteral("INF")), nullptr) << "no context, no tokens";
}

} // namespace
