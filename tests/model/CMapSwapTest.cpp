#include "model/ModelTestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

class MapSwap : public ModelFixture
{
protected:
    void SetUp() override
    {
        ModelFixture::SetUp();
        group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        a = AddMap(*group, QStringLiteral("A"));
        b = AddMap(*group, QStringLiteral("B"));
        c = AddMap(*group, QStringLiteral("C"));
        group->SwitchTo(a);
        AddUnit(*a, QStringLiteral("INF"), 10, 20, QStringLiteral("x3"), QStringLiteral("3"));
        AddUnit(*a, QStringLiteral("ARROW"), -5, 7000, QString(), QString(), true);
        // Texts the game file's code page cannot hold stay exact in swap files.
        AddUnit(*a, QStringLiteral("TANK"), 1, 2, QStringLiteral("Тигр"), QStringLiteral("戦車"));
        AddUnit(*a, QStringLiteral("MARK"), 3, 4, QString(300, QChar(0x263A)), QStringLiteral("0"));
        AddArrow(*a, -100, 7, 100, 101, 0xFF00FF);
        AddArrow(*a, -200, 7, 200, 201, 65535);
        b->AquireLock();
        AddUnit(*b, QStringLiteral("TANK"), 9, 9, QStringLiteral("b"), QString());
        b->ReleaseLock();
    }

    std::shared_ptr<CMapGroup> group;
    std::shared_ptr<CMap> a, b, c;
};

TEST_F(MapSwap, unitsAndArrowsComeBackWithTheirIdsOrderAndExactTextsAcrossSwitches)
{
    const QStringList aBefore = contents(*a);
    group->SwitchTo(b);
    const QStringList bBefore = contents(*b);

    // Counted from what the swap wrote, without reading it back.
    EXPECT_EQ(QString("%1 %2").arg(a->UnitCount()).arg(a->ArrowCount()), "4 2");
    EXPECT_TRUE(a->SwappedOut());
    EXPECT_EQ(QFileInfo(a->SwapFile()).path() + QLatin1Char('/'), CUtility::GetCacheDir());

    for (int i = 0; i < 10; ++i) {
        group->SwitchTo(i % 2 ? c : b);
        group->SwitchTo(a);
        ASSERT_EQ(contents(*a), aBefore) << "switch " << i;
    }
    group->SwitchTo(b);
    EXPECT_EQ(contents(*b), bBefore);

    // A smaller content written over a larger swap file leaves nothing stale behind.
    group->SwitchTo(a);
    a->Units()->DeleteItem(1);
    a->Units()->DeleteItem(1);
    a->Arrows()->Clear();
    const QStringList aSmaller = contents(*a);
    group->SwitchTo(c);
    group->SwitchTo(a);
    EXPECT_EQ(contents(*a), aSmaller);
}

TEST_F(MapSwap, listsAreReachableOnlyWhileLockedAndLocksNest)
{
    EXPECT_EQ(c->Units(), nullptr) << "a new map's lists are not handed out before a lock";
    b->AquireLock();
    b->AquireLock();
    ASSERT_NE(b->Units(), nullptr);
    AddUnit(*b, QStringLiteral("TANK"), 1, 1, QString(), QString());
    b->ReleaseLock();
    EXPECT_FALSE(b->SwappedOut()) << "only the last release swaps out";
    EXPECT_EQ(b->Units()->Count(), 2);
    b->ReleaseLock();
    EXPECT_TRUE(b->SwappedOut());

    // Switching to the active map neither locks nor releases it.
    group->SwitchTo(a);
    EXPECT_EQ(a->LockCount(), 1);
    EXPECT_FALSE(a->SwappedOut());
    EXPECT_TRUE(a->SwapFile().isEmpty());

    // A map left empty needs no swap file, and an older one is removed.
    group->SwitchTo(b);
    ASSERT_TRUE(QFile::exists(a->SwapFile()));
    group->SwitchTo(a);
    a->Units()->Clear();
    a->Arrows()->Clear();
    group->SwitchTo(b);
    EXPECT_FALSE(a->SwappedOut());
    EXPECT_FALSE(QFile::exists(a->SwapFile()));
    group->SwitchTo(a);
    EXPECT_EQ(a->Units()->Count() + a->Arrows()->Count(), 0);
}

// A swap file that cannot be read or written fails the switch and leaves
// both maps as they were.
TEST_F(MapSwap, swapFailuresFailTheSwitchAndKeepTheMapsAsTheyWere)
{
    group->SwitchTo(c);
    QFile::remove(b->SwapFile());
    EXPECT_TRUE(errorOf([&] { group->SwitchTo(b); }).contains(QFileInfo(b->SwapFile()).fileName()));
    EXPECT_EQ(group->ActiveMap(), c);
    EXPECT_EQ(c->LockCount(), 1);
    EXPECT_EQ(b->LockCount(), 0);
    EXPECT_TRUE(b->SwappedOut());

    // A damaged one instead of junk units.
    QFile file(a->SwapFile());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.resize(file.size() / 2);
    file.close();
    EXPECT_THROW(a->AquireLock(), KorvaneError);
    EXPECT_EQ(a->LockCount(), 0);
    EXPECT_EQ(a->Units(), nullptr);

    // One written for another module, even with the same counters in the same places.
    QFile::remove(a->SwapFile());
    a = AddMap(*group, QStringLiteral("A2"));
    group->SwitchTo(a);
    AddUnit(*a, QStringLiteral("INF"), 1, 1, QString(), QString());
    group->SwitchTo(c);
    auto other = std::make_shared<TestContext>(QStringLiteral("x"), QStringLiteral("krm_other_v1"));
    for (const auto& t : context->Tokens())
        other->AddToken(t->Class(), t->Id());
    Root().SetContext(other);
    EXPECT_THROW(group->SwitchTo(a), KorvaneError);
    EXPECT_EQ(group->ActiveMap(), c);

    // Units cannot be swapped out with no module to name their counters.
    Root().SetContext(context);
    group->SwitchTo(a);
    Root().SetContext(nullptr);
    EXPECT_THROW(group->SwitchTo(c), KorvaneError);
    EXPECT_EQ(a->LockCount(), 1);
    EXPECT_EQ(a->Units()->Count(), 1);

    // Nor written where a plain file takes the cache directory's place.
    Root().SetContext(context);
    QDir(CUtility::GetCacheDir()).removeRecursively();
    home.WriteFile(QStringLiteral("cache"), "not a directory");
    const QStringList before = contents(*a);
    EXPECT_TRUE(errorOf([&] { a->ReleaseLock(); }).contains(QFileInfo(a->SwapFile()).fileName()));
    EXPECT_EQ(a->LockCount(), 1);
    EXPECT_FALSE(a->SwappedOut());
    EXPECT_EQ(contents(*a), before);
}

TEST_F(MapSwap, swapFilesAreRemovedWithTheirMapAndAtShutDown)
{
    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    game->MapGroups().AddItem(group);
    group->SwitchTo(b);
    group->SwitchTo(c);
    const QString aFile = a->SwapFile();
    const QString bFile = b->SwapFile();
    ASSERT_TRUE(QFile::exists(aFile));
    ASSERT_TRUE(QFile::exists(bFile));

    // Dropping the game drops its maps; map b is still held here.
    Root().SetGame(game);
    game.reset();
    group->Maps().RemoveItem(b);
    a.reset();
    group.reset();
    Root().SetGame(nullptr);
    EXPECT_FALSE(QFile::exists(aFile));
    EXPECT_TRUE(QFile::exists(bFile));

    // At shut down the rest go; files that are not this program's swap files
    // stay (checked with the swap file registry).
    ReleaseRoot();
    EXPECT_FALSE(QFile::exists(bFile));
}

} // namespace
