#include "review/CMapComparer.h"
#include "review/CMapSnapshot.h"
#include "review/CPairing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

using Kind = CMapChange::ChangeKind;

CMapSnapshot::Unit unit(const QString& token, int x, int y, const QString& caption = QString(),
                        const QString& data = QString())
{
    static int next = 0;
    const QString tokenCaption = token == QLatin1String("RI")   ? QStringLiteral("Red Infantry")
                                 : token == QLatin1String("BA") ? QStringLiteral("Blue Armour")
                                                                : token;
    return {QStringLiteral("u%1").arg(++next), token, tokenCaption, x, y, caption, data};
}

CMapSnapshot::Arrow arrow(int tailX, int tailY, int headX, int headY, int color)
{
    return {QStringLiteral("a%1%2%3%4").arg(tailX).arg(tailY).arg(headX).arg(headY),
            QStringLiteral("MOVE"),
            QStringLiteral("Move Arrow"),
            tailX,
            tailY,
            headX,
            headY,
            color};
}

QStringList wordsOf(const CMapComparison& result)
{
    QStringList words;
    for (const CMapChange& change : result.Changes)
        words << change.Words();
    return words;
}

} // namespace

TEST(MapComparer, ATurnOfMovesSwapsAndReordersReadsAsItsRealChanges)
{
    CMapSnapshot older;
    older.Name = QStringLiteral("Turn 4");
    older.Units = {unit("RI", 120, 80, "x3", "3"), unit("RI", 200, 200, "x1", "1"),
                   unit("RI", 300, 300, "x1", "1"), unit("BA", 640, 300), unit("BA", 10, 10)};
    CMapSnapshot newer = older;
    newer.Name = QStringLiteral("Turn 5");
    // The two single infantry swap places (and ids), the list is reordered,
    // one stack moves and one armour is lost.
    std::swap(newer.Units[1].Id, newer.Units[2].Id);
    newer.Units[0].X = 216;
    newer.Units.erase(newer.Units.begin() + 3);
    std::reverse(newer.Units.begin(), newer.Units.end());

    const CMapComparison result = CMapComparer::Compare(older, newer);
    EXPECT_EQ(wordsOf(result), QStringList({"Red Infantry x3 moved from (120, 80) to (216, 80)",
                                            "Blue Armour removed from (640, 300)"}));
    ASSERT_EQ(result.Changes.size(), 2u);
    EXPECT_EQ(result.Changes[0].IdBefore, older.Units[0].Id);
    EXPECT_EQ(result.Changes[0].IdAfter, older.Units[0].Id);
    EXPECT_TRUE(result.Changes[1].IdAfter.isEmpty());
    EXPECT_TRUE(result.NameChanged);
    EXPECT_EQ(result.Summary(), QStringLiteral("1 moved, 1 removed"));
    EXPECT_EQ(result.Lines().last(),
              QStringLiteral("Map name changed from \"Turn 4\" to \"Turn 5\""));
    EXPECT_EQ(result.Lines(false).size(), 2);
    newer.Units = older.Units;
    EXPECT_EQ(CMapComparer::Compare(older, newer).Summary(), QStringLiteral("name changed"));

    EXPECT_TRUE(CMapComparer::Compare(older, older).Same());
    EXPECT_EQ(CMapComparer::Compare(older, older).Summary(), QStringLiteral("No changes"));
}

TEST(MapComparer, TearOffMergeDeleteAddAndEditsAreTold)
{
    CMapSnapshot before;
    before.Units = {unit("RI", 100, 100, "x3", "3")};
    CMapSnapshot after;
    after.Units = {unit("RI", 100, 100, "x2", "2"), unit("RI", 132, 100, "x1", "1")};
    CMapComparison result = CMapComparer::Compare(before, after);
    EXPECT_EQ(wordsOf(result), QStringList({QString::fromUtf8("Red Infantry x3 → x2"),
                                            "Red Infantry x1 added at (132, 100)"}));
    EXPECT_FALSE(result.Changes[1].HasFrom());

    before.Units = {unit("RI", 300, 100, "x2", "2"), unit("RI", 400, 100, "x1", "1")};
    after.Units = {unit("RI", 300, 100, "x3", "3")};
    result = CMapComparer::Compare(before, after);
    EXPECT_EQ(wordsOf(result), QStringList({QString::fromUtf8("Red Infantry x2 → x3"),
                                            "Red Infantry x1 removed from (400, 100)"}));
    EXPECT_EQ(result.Summary(), QStringLiteral("1 removed, 1 changed"));

    // A deleted armour and a new artillery; a number, a note's long text and
    // a stack that moved and lost strength; the map's text.
    before.Units = {unit("BA", 640, 300), unit("MORALE", 50, 50, "5", "5"),
                    unit("NOTE", 60, 60, "Ford", "Deep after rain"), unit("RI", 10, 10, "x4", "4")};
    after.Units = {unit("GA", 20, 500), unit("MORALE", 50, 50, "4", "4"),
                   unit("NOTE", 60, 60, "Ford", "Dry"), unit("RI", 42, 10, "x3", "3")};
    after.Text = QStringLiteral("Rain");
    result = CMapComparer::Compare(before, after);
    EXPECT_EQ(wordsOf(result),
              QStringList({"GA added at (20, 500)", QString::fromUtf8("MORALE 5 → 4"),
                           "NOTE Ford at (60, 60) changed",
                           "Red Infantry x4 moved from (10, 10) to (42, 10), now x3",
                           "Blue Armour removed from (640, 300)"}));
    EXPECT_EQ(result.Changes[2].DataBefore, QStringLiteral("Deep after rain"));
    EXPECT_EQ(result.Changes[2].DataAfter, QStringLiteral("Dry"));
    EXPECT_TRUE(result.TextChanged);
    EXPECT_EQ(result.Lines().last(), QStringLiteral("Map text changed"));
    EXPECT_EQ(result.Summary(),
              QStringLiteral("1 moved, 1 added, 1 removed, 2 changed, text changed"));
}

TEST(MapComparer, PairsForTheLeastTotalDistanceAndStaysSensibleBeyondTheExactLimit)
{
    // Nearest-first would pair 10 with 9 and send 0 to 20 (21 in all);
    // the least total sends 0 to 9 and 10 to 20 (19).
    CMapSnapshot before;
    before.Units = {unit("RI", 0, 0), unit("RI", 10, 0)};
    CMapSnapshot after;
    after.Units = {unit("RI", 9, 0), unit("RI", 20, 0)};
    CMapComparison result = CMapComparer::Compare(before, after);
    ASSERT_EQ(result.Count.Moved, 2);
    EXPECT_EQ(result.Changes[0].From, QPoint(0, 0));
    EXPECT_EQ(result.Changes[1].From, QPoint(10, 0));

    // Small scattered cases against trying every assignment.
    std::uint32_t seed = 99;
    const auto next = [&seed] { return (seed = seed * 1103515245u + 12345u) >> 16 & 255u; };
    for (int round = 0; round < 12; ++round) {
        std::vector<CPairing::Item> olderItems(round % 2 ? 6 : 4), newerItems(round % 3 + 4);
        for (auto& item : olderItems)
            item = {double(next()), double(next()), 0, 0, 0};
        for (auto& item : newerItems)
            item = {double(next()), double(next()), 0, 0, 0};
        const bool olderFirst = olderItems.size() <= newerItems.size();
        const auto& rows = olderFirst ? olderItems : newerItems;
        const auto& columns = olderFirst ? newerItems : olderItems;
        std::vector<int> order(columns.size());
        std::iota(order.begin(), order.end(), 0);
        double best = 1e18;
        do {
            double total = 0;
            for (std::size_t i = 0; i < rows.size(); ++i)
                total += CPairing::Cost(rows[i], columns[std::size_t(order[i])]);
            best = std::min(best, total);
        } while (std::next_permutation(order.begin(), order.end()));
        const std::vector<int> partner = CPairing::Exact(olderItems, newerItems);
        double total = 0;
        for (std::size_t o = 0; o < partner.size(); ++o) {
            if (partner[o] >= 0)
                total += CPairing::Cost(olderItems[o], newerItems[std::size_t(partner[o])]);
        }
        EXPECT_NEAR(total, best, 1e-6) << "round " << round;
        EXPECT_EQ(
            std::count(partner.begin(), partner.end(), -1),
            std::ptrdiff_t(olderItems.size() - std::min(olderItems.size(), newerItems.size())));
    }

    // Far more units than an exact assignment takes: a whole army steps
    // 5 pixels right, listed in another order, and one more arrives.
    before.Units.clear();
    after.Units.clear();
    for (int i = 0; i < 40; ++i) {
        for (int j = 0; j < 20; ++j)
            before.Units.push_back(unit("RI", i * 40, j * 40, "x1", "1"));
    }
    after.Units = before.Units;
    for (auto& moved : after.Units)
        moved.X += 5;
    std::reverse(after.Units.begin(), after.Units.end());
    after.Units.push_back(unit("RI", 2000, 2000, "x1", "1"));
    ASSERT_GT(before.Units.size(), static_cast<std::size_t>(CMapComparer::ExactLimit));
    result = CMapComparer::Compare(before, after);
    EXPECT_EQ(result.Count.Moved, 800);
    EXPECT_EQ(result.Count.Added, 1);
    for (const CMapChange& change : result.Changes) {
        if (change.Kind == Kind::Moved)
            EXPECT_EQ(change.To - change.From, QPoint(5, 0)) << change.Words().toStdString();
        else
            EXPECT_EQ(change.To, QPoint(2000, 2000));
    }
}

TEST(MapComparer, ArrowsAreMatchedByTokenColourTailAndHead)
{
    CMapSnapshot before;
    before.Arrows = {arrow(10, 20, 110, 120, 255), arrow(50, 50, 60, 60, 0xFF0000),
                     arrow(0, 0, 5, 5, 255)};
    CMapSnapshot after;
    // Reordered; the first red arrow's head moves, the blue one stays, the
    // short red one goes and a green one comes.
    after.Arrows = {arrow(50, 50, 60, 60, 0xFF0000), arrow(10, 20, 150, 120, 255),
                    arrow(70, 70, 80, 80, 0x00FF00)};
    const CMapComparison result = CMapComparer::Compare(before, after);
    EXPECT_EQ(wordsOf(result),
              QStringList({QString::fromUtf8(
                               "Move Arrow moved from (10, 20)–(110, 120) to (10, 20)–(150, 120)"),
                           "Move Arrow added from (70, 70) to (80, 80)",
                           "Move Arrow from (0, 0) to (5, 5) removed"}));
    EXPECT_EQ(result.Summary(), QStringLiteral("1 arrow moved, 1 arrow added, 1 arrow removed"));
    EXPECT_TRUE(result.Changes[0].IsArrow());
    EXPECT_EQ(result.Changes[0].ToHead, QPoint(150, 120));
}

TEST(MapComparer, NearestFirstPairsAsTheClosestFreePairOfAllAgainAndAgain)
{
    // Scattered items, more than an exact assignment takes; the grid search
    // must give what trying every pair gives.
    std::uint32_t seed = 12345;
    const auto next = [&seed] { return (seed = seed * 1103515245u + 12345u) >> 16 & 2047u; };
    std::vector<CPairing::Item> older(420), newer(380);
    for (auto& item : older)
        item = {double(next()), double(next() % 700), 0, 0, next() % 2};
    for (auto& item : newer)
        item = {double(next()), double(next() % 700), 0, 0, next() % 2};

    std::vector<std::tuple<double, int, int>> all;
    for (int o = 0; o < int(older.size()); ++o) {
        for (int n = 0; n < int(newer.size()); ++n)
            all.emplace_back(CPairing::Cost(older[o], newer[n]), o, n);
    }
    std::sort(all.begin(), all.end());
    std::vector<int> expected(older.size(), -1);
    std::vector<char> taken(newer.size(), 0);
    for (const auto& [cost, o, n] : all) {
        if (expected[o] < 0 && !taken[n]) {
            expected[o] = n;
            taken[n] = 1;
        }
    }
    EXPECT_EQ(CPairing::NearestFirst(older, newer), expected);
    EXPECT_EQ(std::count(expected.begin(), expected.end(), -1), 40);
}
