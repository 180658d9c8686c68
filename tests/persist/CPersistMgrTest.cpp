#include "PersistTestSupport.h"

#include "actions/CActionGroup.h"
#include "actions/CActionMgr.h"
#include "actions/CMapLock.h"
#include "contexts/IGameContext.h"
#include "core/CConfiguration.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "model/ModelTestSupport.h"
#include "persist/CGameFile.h"
#include "persist/CPersistMgr.h"
#include "support/ResourceUse.h"
#include "tokens/IToken.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <cstring>
#include <limits>
#include <sys/stat.h>

namespace {

using Icon = FMessageBox::Icon;
using Answer = FMessageBox::Answer;

const QString alphaId = QStringLiteral("krm_alpha_v1");
const QString saveFilter = QStringLiteral("Korvane Game Files  (*.krf)|*.krf");

class PersistMgrTest : public PersistTest
{
protected:
    // Starts with the module "alpha" installed and active.
    TestGui* startAlpha()
    {
        writeModule(QStringLiteral("alpha.krm"), module(QStringLiteral("alpha")));
        TestGui* gui = start();
        activate(alphaId);
        return gui;
    }

    static std::shared_ptr<CUnit> addUnit(CMap& map, const QString& tokenId, std::int32_t x,
                                          const QString& caption = QString())
    {
        return AddUnit(map, tokenId, x, x * 3 + 1, caption, QString::number(x % 7), x % 2 == 1);
    }

    static QByteArray fileAround(const QByteArray& body)
    {
        return FileAround(body, alphaId.toLatin1());
    }

    // A game of empty maps: groups of mapsPerGroup maps, the last of lastGroup.
    static QByteArray emptyMaps(int groups, int mapsPerGroup, int lastGroup)
    {
        Bytes body;
        body.i16(2).small("G").small("Many").small("").i16(static_cast<std::int16_t>(groups));
        const QByteArray emptyMap =
            Bytes().i16(1).small("").small("").text("").i16(0).i16(0).i16(0).data();
        for (int g = 1; g <= groups; ++g) {
            const int maps = g == groups ? lastGroup : mapsPerGroup;
            body.small("GR" + QByteArray::number(g)).i16(1).i16(0);
            body.i16(static_cast<std::int16_t>(maps)).append(emptyMap.repeated(maps));
        }
        return fileAround(body.data());
    }

    static QByteArray currentImage() { return CGameFile::ToBytes(*Root().Game(), alphaId); }
    static bool mayUndo() { return Root().ActionMgr().NextUndoAction() != nullptr; }
    // The permission bits of a file.
    static mode_t modeOf(const QString& path)
    {
        struct stat info = {};
        return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 0777 : 0;
    }
    static QString lastDir()
    {
        return Root().Config().GetValue(QStringLiteral("CPersistMgr"), QStringLiteral("LastDir"));
    }
    static void markChanged()
    {
        Root().ActionMgr().Execute(std::make_shared<CActionGroup>());
        Root().Game()->SetDirty(2);
    }
};

} // namespace

TEST_F(PersistMgrTest, SavedGamesReadBackByteForByteWithTheLastGroupAndMapsActive)
{
    TestGui* gui = startAlpha();
    const auto game = newGame(QStringLiteral("Campaign"));
    const auto first = game->ActiveMapGroup();
    first->SetFrozen(true);
    addUnit(*first->ActiveMap(), QStringLiteral("inf"), 10, QStringLiteral("x3"));
    auto turn2 = AddMap(*first, QStringLiteral("Turn 2"));
    turn2->SetRemarks(QStringLiteral("rain"));
    turn2->SetText(QStringLiteral("Turn 2 text"));
    turn2->AquireLock();
    addUnit(*turn2, QStringLiteral("note"), 40, QStringLiteral("Hold"));
    turn2->ReleaseLock();
    auto second = std::make_shared<CMapGroup>(CUtility::GenerateId());
    game->MapGroups().AddItem(second);
    AddMap(*second, QStringLiteral("Turn 3"));
    const auto turn4 = AddMap(*second, QStringLiteral("Turn 4"));
    game->SwitchTo(second);
    addUnit(*turn4, QStringLiteral("mark"), 5, QStringLiteral("5"));
    // Saved with the first group's first map active.
    markChanged();

    QDir().mkpath(home.File(QStringLiteral("games")));
    gui->Save.Choose(home.File(QStringLiteral("games/")), QStringLiteral("campaign"),
                     QStringLiteral("krf"));
    ASSERT_TRUE(Root().PersistMgr().SaveCurrentGame());
    EXPECT_EQ(game->Dirty(), 0);
    EXPECT_FALSE(mayUndo());
    EXPECT_EQ(lastDir(), home.File(QStringLiteral("games/")));
    const QByteArray file = home.ReadFile(QStringLiteral("games/campaign.krf"));

    // Written again, the game read back gives the same bytes: nothing is lost,
    // the maps kept in swap files included.
    ASSERT_TRUE(
        Root().PersistMgr().LoadGameFromFile(home.File(QStringLiteral("games/campaign.krf"))));
    const auto loaded = Root().Game();
    ASSERT_NE(loaded, game);
    EXPECT_EQ(CGameFile::ToBytes(*loaded, alphaId).toHex(), file.toHex());
    EXPECT_EQ(loaded->Directory() + loaded->File() + '.' + loaded->Extension(),
              home.File(QStringLiteral("games/campaign.krf")));
    EXPECT_EQ(loaded->ActiveMapGroup(), loaded->MapGroups().Item(2));
    EXPECT_EQ(loaded->MapGroups().Item(1)->ActiveMap()->Name(), QStringLiteral("Turn 2"));
    EXPECT_EQ(loaded->MapGroups().Item(2)->ActiveMap()->Name(), QStringLiteral("Turn 4"));
    EXPECT_EQ(loaded->MapGroups().Item(2)->Maps().Item(1)->GroupId(), second->Id());
    EXPECT_TRUE(gui->Boxes.Boxes.empty());
}

TEST_F(PersistMgrTest, OldFilesWithOneListOfMapsAreGroupedByHundreds)
{
    startAlpha();
    // The maps of each group, "f" for a frozen one, and the first map.
    struct Case
    {
        int maps;
        QString groups;
        QString firstMap;
    };
    const Case cases[] = {{120, "120", "M1"},
                          {1060, "99f 100f 100f 100f 100f 100f 100f 100f 100f 61", "M101"}};
    for (const Case& c : cases) {
        Bytes body;
        body.i16(1).small("OLDGAME").small("Old").small("").i16(static_cast<std::int16_t>(c.maps));
        for (int i = 1; i <= c.maps; ++i) {
            body.i16(1).small("M" + QByteArray::number(i)).small("").text("").i16(0);
            if (i == c.maps) // one unit of token 1 on the last map
                body.i16(1).i16(1).small("inf").i16(1).i32(i).i32(-i).small("x2").small("2");
            else
                body.i16(0);
            body.i16(0);
        }
        const QString path =
            home.WriteFile(QStringLiteral("old%1.krf").arg(c.maps), fileAround(body.data()));
        ASSERT_TRUE(Root().PersistMgr().LoadGameFromFile(path)) << c.maps;

        const CGame& game = *Root().Game();
        QStringList groups;
        for (const auto& group : game.MapGroups())
            groups << QString::number(group->Maps().Count()) + (group->Frozen() ? "f" : "");
        EXPECT_EQ(groups.join(' '), c.groups);
        EXPECT_EQ(game.MapGroups().Item(1)->Maps().Item(1)->Name(), c.firstMap);
        EXPECT_EQ(game.Name(), QStringLiteral("Old"));
        // The last group and its last map are shown.
        const auto last = game.ActiveMapGroup()->ActiveMap();
        EXPECT_EQ(game.ActiveMapGroup(), game.MapGroups().Item(game.MapGroups().Count()));
        EXPECT_EQ(last->Name(), QStringLiteral("M%1").arg(c.maps));
        EXPECT_EQ(last->GroupId(), game.ActiveMapGroup()->Id());
        ASSERT_EQ(last->Units()->Count(), 1);
        EXPECT_EQ(last->Units()->Item(1)->y(), -c.maps);
        EXPECT_FALSE(last->Units()->Item(1)->HasMoved());
    }
}

TEST_F(PersistMgrTest, DamagedFilesAreRefusedWithTheirReasonAndChangeNothing)
{
    writeModule(QStringLiteral("beta.krm"), module(QStringLiteral("beta")));
    TestGui* gui = startAlpha();
    const auto game = newGame(QStringLiteral("Current"));
    addUnit(*game->ActiveMapGroup()->ActiveMap(), QStringLiteral("inf"), 3);
    game->SetFile(QStringLiteral("current"));
    game->SetDirty(2);
    const QByteArray before = currentImage();

    const QByteArray good = CGameFile::ToBytes(*game, alphaId);
    CGameFile::Header header;
    ASSERT_TRUE(CGameFile::ReadHeader(good, header, nullptr));
    QByteArray flipped = good;
    flipped[header.BodyOffset + 7] = static_cast<char>(flipped[header.BodyOffset + 7] ^ 0x55);
    const auto declaring = [&](std::int32_t length) {
        QByteArray bytes = good;
        std::memcpy(bytes.data() + header.BodyOffset - 4, &length, 4);
        return bytes;
    };
    // Record bytes: a game, a group holding one map, a map up to its units.
    const QByteArray gameRec = Bytes().i16(2).small("G").small("").small("").data();
    const QByteArray group = Bytes().i16(1).small("GR").i16(1).i16(0).i16(1).data();
    const QByteArray map = Bytes().i16(1).small("").small("").text("").i16(0).data();
    const QByteArray unit = Bytes().i16(1).small("inf").data();
    // Zeros behind each case, so that only the damage named fails the read.
    const auto body = [&](const QByteArray& bytes) {
        return fileAround(bytes + QByteArray(24, 0));
    };
    // 520 KB that inflate to about as much (so the length passes as plausible),
    // declaring 512 MiB.
    QByteArray noise(520 * 1024, '\0');
    std::uint32_t seed = 12345;
    for (char& c : noise)
        c = static_cast<char>((seed = seed * 1103515245u + 12345u) >> 24);
    QByteArray declared512 = fileAround(noise);
    const std::int32_t length512 = 512 * 1024 * 1024;
    std::memcpy(declared512.data() + header.BodyOffset - 4, &length512, 4);
    const struct
    {
        const char* file;
        QByteArray bytes;
        QString reason;
    } cases[] = {
        {"magic.krf", "KR02" + good.mid(4), "It is not a Korvane game file."},
        {"short.krf", good.left(3), "It is not a Korvane game file."},
        {"header.krf", good.left(header.BodyOffset - 2), "header"},
        // Lengths that cannot be right are refused before anything is allocated.
        {"negative.krf", declaring(std::numeric_limits<std::int32_t>::min()), "body length"},
        {"huge.krf", declaring(2000000000), "body length"},
        {"declared512.krf", declared512, "damaged"},
        {"million.krf", emptyMaps(31, 32767, 1000000 - 30 * 32767), "more than 250000 maps"},
        {"cut.krf", good.left(header.BodyOffset + 6), "damaged"},
        {"foreign.krf", CGameFile::ToBytes(*game, "krm_gone_v1"), QString()},
        {"beta.krf", CGameFile::ToBytes(*game, "krm_beta_v1"), "'beta', which is not the active"},
        {"inflate.krf", flipped, "damaged"},
        {"length.krf", declaring(header.BodyLength + 10), "damaged"},
        {"short2.krf", declaring(header.BodyLength - 10), "damaged"},
        {"truncated.krf", fileAround(gameRec + Bytes().i16(1).small("GR").i16(1).data()),
         "truncated"},
        {"count.krf", body(gameRec + group + map + Bytes().i16(30000).data()), "30000 units, more"},
        {"groupsneg.krf", body(gameRec + Bytes().i16(-1).data()), "negative number"},
        {"textneg.krf", body(gameRec + group + Bytes().i16(1).small("").small("").i16(-5).data()),
         "negative length"},
        {"newer.krf", body(Bytes().i16(3).data()), "game record has version 3"},
        {"newergroup.krf", body(gameRec + Bytes().i16(1).small("GR").i16(2).data()), "newer"},
        {"newermap.krf", body(gameRec + group + Bytes().i16(2).data()), "map record has version 2"},
        {"newerunit.krf",
         body(gameRec + group + map + Bytes().i16(1).data() + unit + Bytes().i16(3).data()),
         "unit record has version 3"},
        {"version0.krf", body(Bytes().i16(0).data()), "invalid version 0"},
        {"ghost.krf", body(gameRec + group + map + Bytes().i16(1).i16(2).small("ghost").data()),
         "\"ghost\""},
        {"absent.krf", QByteArray(), "No such file"},
    };
    for (const auto& c : cases) {
        // Each case takes seconds at most and no large allocation.
        const qint64 peakBefore = PeakKiB(RUSAGE_SELF);
        const qint64 cpuBefore = CpuMilliseconds(RUSAGE_SELF);
        const QString name = QLatin1String(c.file);
        const QString path =
            name == QLatin1String("absent.krf") ? home.File(name) : home.WriteFile(name, c.bytes);
        gui->Boxes.Boxes.clear();
        EXPECT_FALSE(Root().PersistMgr().LoadGameFromFile(path)) << c.file;
        ASSERT_EQ(gui->Boxes.Boxes.size(), 1u) << c.file;
        const auto& box = gui->Boxes.Boxes.front();
        if (c.reason.isEmpty())
            EXPECT_EQ(box.Text, "File '" + path +
                                    "' is either invalid or you do not have the corresponding "
                                    "Module installed.");
        else
            EXPECT_TRUE(box.Text.startsWith("File '" + path + "' cannot be opened.") &&
                        box.Text.contains(c.reason))
                << box.Text.toStdString();
        EXPECT_EQ(Root().Game(), game);
        EXPECT_EQ(currentImage(), before) << c.file;
        EXPECT_EQ(game->Dirty(), 2);
        EXPECT_EQ(game->File(), QStringLiteral("current"));
        EXPECT_LT(CpuMilliseconds(RUSAGE_SELF) - cpuBefore, 10000) << c.file;
        EXPECT_LT(PeakKiB(RUSAGE_SELF) - peakBefore, 200 * 1024) << c.file;
    }
}

// A test of its own: the peak memory is measured from a fresh process.
TEST_F(PersistMgrTest, ALargeGameOfEmptyMapsLoadsQuicklyWithoutSwapFiles)
{
    startAlpha();
    const QString path = home.WriteFile(QStringLiteral("many.krf"), emptyMaps(3, 32767, 10));
    const qint64 peakBefore = PeakKiB(RUSAGE_SELF);
    const qint64 cpuBefore = CpuMilliseconds(RUSAGE_SELF);
    // Counting units visits every map as the board and dump do.
    ASSERT_TRUE(Root().PersistMgr().LoadGameFromFile(path));
    std::int64_t units = 0;
    for (const auto& group : Root().Game()->MapGroups())
        for (const auto& map : group->Maps()) {
            const CMapLock lock(map);
            units += map->Units()->Count();
        }
    EXPECT_EQ(Root().Game()->GetMapCount(), 2 * 32767 + 10);
    EXPECT_EQ(units, 0);
    EXPECT_EQ(QDir(CUtility::GetCacheDir()).entryList({"*.tmp"}, QDir::Files), QStringList());
    EXPECT_LT(CpuMilliseconds(RUSAGE_SELF) - cpuBefore, 10000);
    EXPECT_LT(PeakKiB(RUSAGE_SELF) - peakBefore, 200 * 1024);
}

TEST_F(PersistMgrTest, AFailedSaveKeepsTheOldFileTheGameDirtyAndTheHistoryAndALaterOneReplacesIt)
{
    TestGui* gui = startAlpha();
    const auto game = newGame(QStringLiteral("Fragile"));
    const auto map = game->ActiveMapGroup()->ActiveMap();
    for (int i = 0; i < 50; ++i)
        addUnit(*map, QStringLiteral("inf"), i * 37, QStringLiteral("caption %1").arg(i));
    const QString path = home.WriteFile(QStringLiteral("games/fragile.krf"), "previous save");
    game->SetDirectory(home.File(QStringLiteral("games/")));
    game->SetFile(QStringLiteral("fragile"));
    game->SetExtension(QStringLiteral("krf"));
    markChanged();

    const auto expectFailure = [&](const char* what) {
        gui->Boxes.Boxes.clear();
        EXPECT_FALSE(Root().PersistMgr().SaveCurrentGame()) << what;
        ASSERT_EQ(gui->Boxes.Boxes.size(), 1u) << what;
        EXPECT_EQ(gui->Boxes.Boxes[0].Text, QStringLiteral("Disk write error!"));
        EXPECT_EQ(gui->Boxes.Boxes[0].Kind, Icon::Critical);
        EXPECT_EQ(gui->Boxes.Boxes[0].Title, QStringLiteral("Korvane"));
        EXPECT_EQ(game->Dirty(), 2) << what;
        EXPECT_TRUE(mayUndo()) << what;
    };

    // The write stops half-way: the process may not write files past 64 bytes.
    // The old file is read-only, for everyone.
    QFile::setPermissions(path,
                          QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    {
        const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit previous{};
        getrlimit(RLIMIT_FSIZE, &previous);
        rlimit small = previous;
        small.rlim_cur = 64;
        setrlimit(RLIMIT_FSIZE, &small);
        expectFailure("file size limit");
        setrlimit(RLIMIT_FSIZE, &previous);
        std::signal(SIGXFSZ, oldHandler);
    }
    EXPECT_EQ(home.ReadFile(QStringLiteral("games/fragile.krf")), QByteArray("previous save"));
    EXPECT_EQ(QFile::permissions(path) & QFileDevice::WriteOwner, 0)
        << "the old file is read-only again";
    EXPECT_EQ(QDir(home.File(QStringLiteral("games"))).entryList(QDir::Files),
              QStringList{"fragile.krf"});

    // A map holding more units than a file can store fails before anything is written.
    for (int i = 0; i < 32768 - 50; ++i)
        addUnit(*map, QStringLiteral("tank"), i);
    expectFailure("too many units");
    EXPECT_EQ(home.ReadFile(QStringLiteral("games/fragile.krf")), QByteArray("previous save"));
    while (map->Units()->Count() > 50)
        map->Units()->DeleteItem(map->Units()->Count());

    // The same game saves once the trouble is over, without asking for a name,
    // replacing the read-only file with one its owner may write again.
    EXPECT_TRUE(Root().PersistMgr().SaveCurrentGame());
    EXPECT_TRUE(gui->Save.Shown.isEmpty());
    EXPECT_EQ(home.ReadFile(QStringLiteral("games/fragile.krf")), currentImage());
    EXPECT_EQ(modeOf(path), 0644);
}

// A game file is meant to be shared: saving gives it the permissions any
// other program of this platform would, not owner-only ones.
TEST_F(PersistMgrTest, ANewFileGetsTheUsualPermissionsAndAReplacedOneKeepsItsMode)
{
    startAlpha();
    const auto game = newGame(QStringLiteral("Shared"));
    game->SetDirectory(home.Path());
    game->SetExtension(QStringLiteral("krf"));
    const auto saveAs = [&](const char* name) {
        game->SetFile(QLatin1String(name));
        markChanged();
        EXPECT_TRUE(Root().PersistMgr().SaveCurrentGame()) << name;
        return home.File(QLatin1String(name) + QStringLiteral(".krf"));
    };
    const mode_t previousMask = ::umask(022);
    const QString shared = saveAs("shared");
    EXPECT_EQ(modeOf(shared), 0644);
    ::umask(027);
    EXPECT_EQ(modeOf(saveAs("team")), 0640);
    // The mode a file had survives its replacement, whatever the umask.
    ASSERT_TRUE(QFile::setPermissions(shared, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                  QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                                  QFileDevice::ReadOther));
    EXPECT_EQ(modeOf(saveAs("shared")), 0664);
    ::umask(previousMask);
}

TEST_F(PersistMgrTest, AbandoningAModifiedGameAsksAndFollowsTheAnswer)
{
    TestGui* gui = startAlpha();
    const auto game = newGame(QStringLiteral("Unsaved"));
    EXPECT_TRUE(Root().PersistMgr().AbandonCurrentGame());
    EXPECT_TRUE(gui->Boxes.Boxes.empty()) << "a clean game is not asked about";

    // Changes undone past the last save still count. Cancel keeps the game,
    // No drops the changes, Yes saves them (and a cancelled save cancels).
    game->SetDirty(-1);
    gui->Boxes.Answers = {Answer::Cancel, Answer::No, Answer::Yes, Answer::Yes};
    EXPECT_FALSE(Root().PersistMgr().AbandonCurrentGame());
    ASSERT_EQ(gui->Boxes.Boxes.size(), 1u);
    EXPECT_EQ(gui->Boxes.Boxes[0].Text,
              QStringLiteral("The current game has been modified.  Do you want to save the "
                             "changes to this game?"));
    EXPECT_TRUE(gui->Boxes.Boxes[0].IsQuestion && gui->Boxes.Boxes[0].Kind == Icon::Question);
    EXPECT_TRUE(Root().PersistMgr().AbandonCurrentGame());
    EXPECT_EQ(game->Dirty(), -1);
    EXPECT_FALSE(Root().PersistMgr().AbandonCurrentGame());
    EXPECT_EQ(gui->Save.Shown.size(), 1);
    gui->Save.Choose(home.Path(), QStringLiteral("unsaved"), QStringLiteral("krf"));
    EXPECT_TRUE(Root().PersistMgr().AbandonCurrentGame());
    EXPECT_EQ(game->Dirty(), 0);
    EXPECT_TRUE(QFile::exists(home.File(QStringLiteral("unsaved.krf"))));
}

TEST_F(PersistMgrTest, TheSaveDialogStartsInTheGamesFolderElseTheLastElseTheCurrent)
{
    TestGui* gui = startAlpha();
    const auto game = newGame(QStringLiteral("Named"));
    game->SetDirty(1);
    QDir().mkpath(home.File(QStringLiteral("last")));
    QDir().mkpath(home.File(QStringLiteral("games")));
    const auto shown = [&] {
        gui->Save.Shown.clear();
        EXPECT_FALSE(Root().PersistMgr().SaveCurrentGameAs());
        return gui->Save.Shown.value(0);
    };

    EXPECT_EQ(shown(),
              QStringList({saveFilter, "Named", "krf", CUtility::GetCurrentPath()}).join(" # "));
    EXPECT_TRUE(lastDir().isEmpty()) << "a cancelled dialog stores nothing";
    Root().Config().SetValue("CPersistMgr", "LastDir", home.File(QStringLiteral("last/")));
    EXPECT_TRUE(shown().endsWith(" # " + home.File(QStringLiteral("last/"))));
    game->SetDirectory(home.File(QStringLiteral("games/")));
    game->SetFile(QStringLiteral("mine"));
    game->SetExtension(QStringLiteral("aam"));
    EXPECT_EQ(shown(), QStringList({saveFilter, "mine", "aam", home.File("games/")}).join(" # "));
    game->SetDirectory(home.File(QStringLiteral("nowhere/")));
    Root().Config().SetValue("CPersistMgr", "LastDir", home.File(QStringLiteral("gone/")));
    EXPECT_TRUE(shown().endsWith(" # " + CUtility::GetCurrentPath()));
    EXPECT_EQ(game->Dirty(), 1);
    EXPECT_EQ(game->Directory(), home.File(QStringLiteral("nowhere/")));
}

TEST_F(PersistMgrTest, TheOpenFilterListsTheFileTypesOfTheContextsAndFixedModulesStoreShortCodes)
{
    writeModule(QStringLiteral("aaav2a.krm"), module(QStringLiteral("axis")));
    writeModule(QStringLiteral("krcv1a.krm"), module(QStringLiteral("chess")));
    module(QStringLiteral("one")).WriteTo(home.File(QStringLiteral("usermods/one.udm")));
    module(QStringLiteral("two")).WriteTo(home.File(QStringLiteral("usermods/two.udm")));
    TestGui* gui = startAlpha();

    EXPECT_TRUE(Root().PersistMgr().SelectFileToOpen().isEmpty());
    const QString filter =
        "Korvane Map Files (*.krf, *.cmf)|*.krf;*.cmf|Axis & Allies Map Files  (*.aam)|*.aam|"
        "Korvane Chess Files  (*.mcm)|*.mcm|Custom Korvane Map Files  (*.cmf)|*.cmf|"
        "Custom Korvane Map Files  (*.cmf)|*.cmf|Legacy Korvane Map Files|*.aam;*.mcm;*.cmf";
    EXPECT_EQ(gui->Open.Shown,
              QStringList{filter + " # *.krf;*.cmf # " + CUtility::GetCurrentPath()});
    gui->Open.Choose(home.Path(), QStringLiteral("chosen"), QStringLiteral("aam"));
    EXPECT_EQ(Root().PersistMgr().SelectFileToOpen(), home.File(QStringLiteral("chosen.aam")));
    EXPECT_EQ(lastDir(), home.Path());
    EXPECT_TRUE(Root().PersistMgr().SelectFileToOpen().isEmpty());
    EXPECT_TRUE(gui->Open.Shown.last().endsWith(" # " + home.Path()));

    // A game of a fixed module carries its short code and opens again.
    const QString axisId = QStringLiteral("krm_axis_and_allies_for_aaqt_v1");
    Root().Context()->Deactivate();
    activate(axisId);
    newGame(QStringLiteral("Axis"))->SetDirty(1);
    gui->Save.Choose(home.Path(), QStringLiteral("axis"), QStringLiteral("aam"));
    ASSERT_TRUE(Root().PersistMgr().SaveCurrentGame());
    const QString path = home.File(QStringLiteral("axis.aam"));
    EXPECT_EQ(home.ReadFile(QStringLiteral("axis.aam")).mid(4, 4), QByteArray("\003AAA"));
    EXPECT_EQ(Root().PersistMgr().ContextIdFromFile(path), axisId);
    EXPECT_TRUE(Root().PersistMgr().LoadGameFromFile(path));
}

TEST_F(PersistMgrTest, TextsTheFileCannotHoldAreNamedOnceBeforeSavingAndNoCancels)
{
    TestGui* gui = startAlpha();
    const auto game = newGame(QStringLiteral("Тигр"));
    const auto map = game->ActiveMapGroup()->ActiveMap();
    map->SetName(QStringLiteral("戦車"));
    for (int i = 0; i < 3; ++i)
        addUnit(*map, QStringLiteral("inf"), i, QStringLiteral("Тигр"));
    addUnit(*map, QStringLiteral("inf"), 9, QStringLiteral("Café"));
    markChanged();

    gui->Boxes.Answers = {Answer::No};
    EXPECT_FALSE(Root().PersistMgr().SaveCurrentGame());
    ASSERT_EQ(gui->Boxes.Boxes.size(), 1u) << "one question, and no write error";
    const auto& question = gui->Boxes.Boxes[0];
    EXPECT_TRUE(question.IsQuestion);
    EXPECT_TRUE(question.Text.contains("\"Тигр\"\n\"戦車\"\n\nDo you want"))
        << question.Text.toStdString();
    EXPECT_FALSE(question.Text.contains("Café"));
    EXPECT_TRUE(gui->Save.Shown.isEmpty()) << "no name is asked for a save that will not happen";
    EXPECT_EQ(game->Dirty(), 2);

    gui->Boxes.Boxes.clear();
    gui->Boxes.Answers = {Answer::Yes};
    gui->Save.Choose(home.Path(), QStringLiteral("tiger"), QStringLiteral("krf"));
    ASSERT_TRUE(Root().PersistMgr().SaveCurrentGame());
    EXPECT_EQ(gui->Boxes.Boxes.size(), 1u);
    EXPECT_EQ(CPersistMgr::LossyTextsSummary({"a", "b", "c"}, 2, ", "),
              QStringLiteral("\"a\", \"b\", and 1 more"));
}
