#include "model/ModelTestSupport.h"

#include "core/CDebug.h"

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
        m1 = addMap(*groups[0]);
        m2 = addMap(*groups[0]);
        m3 = addMap(*groups[1]);
    }

    // The trace lines written since tracing was switched on, without indentation.
    QStringList traceLines() const
    {
        QStringList lines = QString::fromUtf8(home.ReadFile(QStringLiteral("debug.txt")))
                                .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (QString& line : lines)
            line = line.trimmed();
        lines.removeFirst(); // "[Debug Enabled]"
        return lines;
    }

    std::shared_ptr<CGame> game;
    std::shared_ptr<CMapGroup> groups[3];
    std::shared_ptr<CMap> m1, m2, m3;
};

TEST_F(GameModel, switchingGroupsActivatesTheLastMapAndLeavesTheOldGroupAlone)
{
    game->SwitchTo(groups[0]);
    EXPECT_EQ(game->ActiveMapGroup(), groups[0]);
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
}

TEST_F(GameModel, lookupsSearchEveryGroupAndMissesWriteTheirTraceLines)
{
    EXPECT_EQ(game->MapById(m3->Id()), m3);
    EXPECT_EQ(game->GroupByMapId(m2->Id()), groups[0]);
    EXPECT_EQ(game->GroupByMapId(m3->Id()), groups[1]);
    EXPECT_EQ(game->GroupById(groups[2]->Id()), groups[2]);
    EXPECT_EQ(game->TokenById(QStringLiteral("MARK")), token(QStringLiteral("MARK")));
    EXPECT_EQ(game->GetMapCount(), 3);
    game->SwitchTo(groups[1]);
    Root().Trace().SetEnabled(true);
    const QString id = QStringLiteral("0123");

    // Searching for m1 asks the groups from the last: two misses before the find.
    EXPECT_EQ(game->MapById(m1->Id()), m1);
    EXPECT_EQ(game->GroupById(id), nullptr);
    EXPECT_EQ(game->GroupByMapId(id), nullptr);
    EXPECT_EQ(game->TokenById(id), nullptr);
    EXPECT_EQ(m1->UnitById(id), nullptr);
    EXPECT_EQ(m1->ArrowById(id), nullptr);
    EXPECT_EQ(m3->UnitById(id), nullptr);
    EXPECT_EQ(m3->ArrowById(id), nullptr);

    // One traced miss: its entry line, the lines it notes, its exit line.
    const auto miss = [](const char* method, const QStringList& noted) {
        return QStringList{QStringLiteral("[Enter Method] %1 >>>").arg(QLatin1String(method))} +
               noted + QStringList{QStringLiteral("<<<[Exit Method]")};
    };
    const QString mapNotFound = QStringLiteral("Map Not Found Id = ") + m1->Id();
    const QString notLocked = QStringLiteral("Map Not Locked Id = ") + m1->Id();
    const QString mapId = QStringLiteral("MapId = ") + m3->Id();
    EXPECT_EQ(traceLines(),
              miss("CMapGroup.MapById", {mapNotFound}) + miss("CMapGroup.MapById", {mapNotFound}) +
                  miss("CGame.GroupById", {QStringLiteral("Group Not Found Id = 0123")}) +
                  miss("CGame.TokenById", {QStringLiteral("Token Not Found Id = 0123")}) +
                  miss("CMap.UnitById", {notLocked}) + miss("CMap.ArrowById", {notLocked}) +
                  miss("CMap.UnitById", {mapId, QStringLiteral("Unit Not Found Id = 0123")}) +
                  miss("CMap.ArrowById", {mapId, QStringLiteral("Arrow Not Found Id = 0123")}));
    Root().SetContext(nullptr);
    EXPECT_EQ(game->TokenById(QStringLiteral("INF")), nullptr) << "no context, no tokens";
}

} // namespace
