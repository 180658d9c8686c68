#include "support/ContextTestSupport.h"

#include "contexts/CAaeGame.h"
#include "contexts/CChessGame.h"
#include "contexts/CContextMgr.h"
#include "contexts/CImageListMgr.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileWriter.h"
#include "contexts/CStandardGame.h"
#include "contexts/CUserDefinedGame.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "support/TestHome.h"
#include "tokens/IToken.h"

#include <QDir>
#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace {

// A home filled by the test before the root starts, so discovery sees it.
class ContextMgrTest : public ::testing::Test
{
protected:
    void TearDown() override { ReleaseRoot(); }

    CKorvane& startRoot(IProgressMonitor* progress = nullptr, CKorvane::GuiFactory gui = {})
    {
        auto root = std::make_shared<CKorvane>();
        InstallRoot(root);
        root->SetGuiFactory(std::move(gui));
        root->Constructor(progress);
        return *root;
    }

    QString module(const QString& file, const TestModule& m) const
    {
        return m.WriteTo(home.File(QStringLiteral("modules/") + file));
    }
    QString userModule(const QString& file, const TestModule& m) const
    {
        return m.WriteTo(home.File(QStringLiteral("usermods/") + file));
    }
    static TestModule titled(const QString& uniqueId, const QString& title)
    {
        TestModule m;
        m.UniqueId = uniqueId;
        m.Title = title;
        return m;
    }
    static int cacheFileCount()
    {
        return CUtility::GetDirListing(CUtility::GetCacheDir() + QStringLiteral("*")).Count();
    }
    static QStringList captions(const CContextMgr& manager)
    {
        QStringList result;
        for (std::int32_t i = 1; i <= manager.ContextCount(); ++i)
            result.append(manager.Context(i)->Caption());
        return result;
    }

    TestHome home;
};

// Notes how many contexts the root offered when the windows were built.
class CountingGui : public CGui
{
public:
    explicit CountingGui(std::int32_t& seen) { seen = Root().ContextMgr().ContextCount(); }
    FMainMdi* MainMdi() override { return nullptr; }
};

} // namespace

TEST_F(ContextMgrTest, ModulesComeFirstThenUserModulesEachByName)
{
    module(QStringLiteral("alpha.krm"),
           titled(QStringLiteral("pass"), QStringLiteral("Mountain Pass")));
    module(QStringLiteral("mid.krm"),
           titled(QStringLiteral("front"), QStringLiteral("beta Front")));
    module(QStringLiteral("zeta.krm"),
           titled(QStringLiteral("wars"), QStringLiteral("Alpha Wars")));
    userModule(QStringLiteral("b.udm"), titled(QStringLiteral("mine"), QStringLiteral("Zz Mine")));
    userModule(QStringLiteral("aaa.udm"),
               titled(QStringLiteral("aardvark"), QStringLiteral("Aardvark")));

    RecordingProgress progress;
    std::int32_t seenByGui = -1;
    CKorvane& root =
        startRoot(&progress, [&seenByGui] { return std::make_unique<CountingGui>(seenByGui); });
    const CContextMgr& manager = root.ContextMgr();

    EXPECT_EQ(captions(manager),
              (QStringList{"Alpha Wars", "beta Front", "Mountain Pass", "Aardvark", "Zz Mine"}));
    EXPECT_EQ(seenByGui, 5) << "discovery must be over before the windows are built";

    // Progress: the search, then each module in listing order, between the
    // root's own first and last lines.
    const QStringList expected{
        "Initializing...",
        "Searching for Games...",
        "Module 'Mountain Pass' was loaded...",
        "Module 'beta Front' was loaded...",
        "Module 'Alpha Wars' was loaded...",
        "Module 'Aardvark' was loaded...",
        "Module 'Zz Mine' was loaded...",
        "Finished...",
        "",
    };
    EXPECT_EQ(progress.Texts, expected);
    ASSERT_EQ(progress.Seconds.size(), expected.size());
    EXPECT_FLOAT_EQ(progress.Seconds[1], 0.2f);
    EXPECT_FLOAT_EQ(progress.Seconds[2], 0.1f);

    const QString ids[] = {"krm_wars_v1", "krm_front_v1", "krm_pass_v1", "udm_aardvark_v1",
                           "udm_mine_v1"};
    for (std::int32_t i = 1; i <= 5; ++i) {
        const auto& info = manager.Infos().Item(i);
        const std::shared_ptr<IGameContext> context = manager.Context(i);
        const bool user = i > 3;
        EXPECT_EQ(context->Id(), ids[i - 1]);
        EXPECT_EQ(info->Id(), ids[i - 1]);
        EXPECT_EQ(info->Name(), context->Caption());
        EXPECT_EQ(manager.PosOfContext(ids[i - 1]), i);
        EXPECT_EQ(context->IsUserDefined(), user);
        EXPECT_EQ(std::dynamic_pointer_cast<CUserDefinedGame>(context) != nullptr, user);
        EXPECT_EQ(context->FileExtension(), user ? "cmf" : "krf");
        EXPECT_EQ(context->FileCaption(), user ? "Custom Korvane Map Files" : "Korvane Game Files");
        EXPECT_EQ(info->Directory(),
                  user ? CUtility::GetUserModuleDir() : CUtility::GetModuleDir());
        EXPECT_TRUE(info->ShortCode().isEmpty());
        ASSERT_TRUE(info->Definition());
        EXPECT_EQ(info->CacheDirectory(), CUtility::GetCacheDir());
        EXPECT_TRUE(CUtility::FileExists(info->CacheDirectory() + info->DefinitionFile()));
        // The header alone is read at start-up.
        EXPECT_FALSE(info->Definition()->BodyLoaded());
        EXPECT_EQ(context->Url(), QStringLiteral("https://example.org/") +
                                      ids[i - 1].mid(4, ids[i - 1].size() - 7));
        EXPECT_EQ(context->Picture().pixelColor(3, 3), TestModule::ColorOf("icon.png"));
    }
    EXPECT_EQ(manager.PosOfContext(QStringLiteral("krm_unknown_v1")), 0);
    EXPECT_EQ(manager.PosOfContext(QStringLiteral("KRM_WARS_V1")), 0);
    EXPECT_THROW(manager.Context(0), KorvaneError);
    EXPECT_THROW(manager.Context(6), KorvaneError);

    // Shutting down disposes every context, which removes what they unpacked.
    EXPECT_EQ(cacheFileCount(), 5);
    ReleaseRoot();
    EXPECT_EQ(cacheFileCount(), 0);
}

TEST_F(ContextMgrTest, FixedFileNamesAreServedByTheirOwnClassesInAnyCase)
{
    TestModule chess = titled(QStringLiteral("some_chess"), QStringLiteral("Title In The Pack"));
    chess.Tokens = {
        TestToken{QStringLiteral("wk"), QStringLiteral("Image"), QStringLiteral("White")},
        TestToken{QStringLiteral("bk"), QStringLiteral("Image"), QStringLiteral("Black")}};
    module(QStringLiteral("KRCV1A.KRM"), chess);
    TestModule noDefinition;
    noDefinition.WithDefinition = false;
    module(QStringLiteral("Aaev1.krm"), noDefinition);
    home.WriteFile(QStringLiteral("modules/squv1.krm"), QByteArray("not a pack at all", 17));

    CKorvane& root = startRoot();
    const CContextMgr& manager = root.ContextMgr();
    ASSERT_EQ(manager.ContextCount(), 2);
    EXPECT_EQ(captions(manager), (QStringList{"Axis & Allies Europe", "Korvane Chess"}));

    const std::int32_t chessAt =
        manager.PosOfContext(QStringLiteral("krm_chess_by_tavrelstudio_v1"));
    ASSERT_EQ(chessAt, 2);
    const auto& info = manager.Infos().Item(chessAt);
    const std::shared_ptr<IGameContext> context = manager.Context(chessAt);
    ASSERT_TRUE(std::dynamic_pointer_cast<CChessGame>(context));
    EXPECT_EQ(info->ShortCode(), QStringLiteral("KRC"));
    EXPECT_EQ(info->FileName(), QStringLiteral("KRCV1A.KRM"));
    EXPECT_EQ(info->Name(), QStringLiteral("Korvane Chess"));
    EXPECT_FALSE(info->Definition());
    EXPECT_TRUE(info->DefinitionFile().isEmpty());
    EXPECT_EQ(context->FileExtension(), QStringLiteral("mcm"));
    EXPECT_EQ(context->FileCaption(), QStringLiteral("Korvane Chess Files"));
    EXPECT_EQ(context->FontName(), QStringLiteral("Arial"));
    EXPECT_EQ(context->FontSize(), 9);
    EXPECT_FALSE(context->HasTransparentLabel());
    EXPECT_EQ(context->MultiplierPrefix(), QStringLiteral("x"));
    EXPECT_EQ(context->LabelForeColor(), 65535);
    EXPECT_EQ(context->LabelMovedColor(), 65280);
    EXPECT_EQ(context->LabelBackColor(), 0);

    // Its tokens come from the definition in its own pack; its identity does not.
    context->Activate(nullptr);
    ASSERT_EQ(context->Tokens().Count(), 2);
    EXPECT_EQ(context->Tokens().Item(1)->Category(), QStringLiteral("White"));
    EXPECT_EQ(context->Tokens().Item(2)->Id(), QStringLiteral("bk"));
    EXPECT_EQ(context->Caption(), QStringLiteral("Korvane Chess"));
    EXPECT_EQ(context->Url(), QStringLiteral("https://example.org/some_chess"));
    context->Deactivate();

    // A fixed pack without a definition is listed, but cannot be activated.
    const std::shared_ptr<IGameContext> europe = manager.Context(1);
    ASSERT_TRUE(std::dynamic_pointer_cast<CAaeGame>(europe));
    EXPECT_EQ(manager.Infos().Item(1)->ShortCode(), QStringLiteral("AAE"));
    try {
        europe->Activate(nullptr);
        FAIL() << "a pack without module.def was activated";
    } catch (const KorvaneError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("Aaev1.krm")))
            << error.Description().toStdString();
        EXPECT_TRUE(error.Description().contains(QStringLiteral("module.def")));
    }
    EXPECT_EQ(europe->Tokens().Count(), 0);
    EXPECT_TRUE(europe->Picture().isNull());
    EXPECT_EQ(root.ImageListMgr().ListCount(), 0);
}

TEST_F(ContextMgrTest, FirstPackOfAnIdWins)
{
    module(QStringLiteral("a_first.krm"), titled(QStringLiteral("twin"), QStringLiteral("First")));
    module(QStringLiteral("B_second.krm"),
           titled(QStringLiteral("twin"), QStringLiteral("Second")));
    module(QStringLiteral("c_chess.krm"),
           titled(QStringLiteral("chess_by_tavrelstudio"), QStringLiteral("Chess Copy")));
    // A fixed file listed later loses to the standard module that took its id first.
    module(QStringLiteral("krcv1a.krm"), titled(QStringLiteral("x"), QStringLiteral("Ignored")));
    // The same unique id in a user module is another id.
    userModule(QStringLiteral("twin.udm"),
               titled(QStringLiteral("twin"), QStringLiteral("User Twin")));
    userModule(QStringLiteral("twin2.udm"),
               titled(QStringLiteral("twin"), QStringLiteral("User Twin 2")));

    RecordingProgress progress;
    CKorvane& root = startRoot(&progress);
    const CContextMgr& manager = root.ContextMgr();
    EXPECT_EQ(captions(manager), (QStringList{"Chess Copy", "First", "User Twin"}));
    EXPECT_FALSE(std::dynamic_pointer_cast<CChessGame>(
        manager.Context(manager.PosOfContext(QStringLiteral("krm_chess_by_tavrelstudio_v1")))));
    // Skipped packs are not announced and leave no cache file behind.
    EXPECT_FALSE(progress.Texts.join('|').contains(QStringLiteral("Second")));
    EXPECT_FALSE(progress.Texts.join('|').contains(QStringLiteral("Korvane Chess")));
    EXPECT_EQ(cacheFileCount(), 3);
}

TEST_F(ContextMgrTest, UnusablePacksAreSkippedSilently)
{
    // No module directory at all.
    {
        CContextMgr manager;
        manager.Constructor(nullptr);
        EXPECT_EQ(manager.ContextCount(), 0);
    }

    TestModule noDefinition;
    noDefinition.WithDefinition = false;
    module(QStringLiteral("nodef.krm"), noDefinition);
    TestModule newer = titled(QStringLiteral("newer"), QStringLiteral("Newer"));
    CResFileWriter writer;
    writer.AddEntry(
        QStringLiteral("module.def"),
        newer.Definition().replace(QStringLiteral(">1.0<"), QStringLiteral(">99.0<")).toUtf8());
    writer.Write(home.File(QStringLiteral("modules/newer.krm")));
    CResFileWriter broken;
    broken.AddEntry(QStringLiteral("module.def"), "<module_def format_version=\"1\"><game_info>");
    QDir().mkpath(home.File(QStringLiteral("usermods")));
    broken.Write(home.File(QStringLiteral("usermods/broken.udm")));
    QByteArray noise(4096, Qt::Uninitialized);
    QRandomGenerator generator(42);
    for (char& b : noise)
        b = static_cast<char>(generator.bounded(256));
    home.WriteFile(QStringLiteral("modules/noise.krm"), noise);
    // A header that claims a directory far larger than the file.
    home.WriteFile(QStringLiteral("modules/claims.krm"),
                   QByteArray::fromHex("ffffff7fffffff7f") + noise.left(64));
    home.WriteFile(QStringLiteral("modules/empty.krm"), QByteArray());
    QDir().mkpath(home.File(QStringLiteral("modules/folder.krm")));
    home.WriteFile(QStringLiteral("modules/readme.txt"), "not a module");
    module(QStringLiteral("good.krm"), titled(QStringLiteral("good"), QStringLiteral("Good")));

    testing::internal::CaptureStderr();
    CKorvane& root = startRoot();
    const std::string console = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(console.empty()) << console;
    EXPECT_EQ(captions(root.ContextMgr()), QStringList{"Good"});
    // Only the good module's definition stays in the cache.
    EXPECT_EQ(cacheFileCount(), 1);
}

TEST(ContextIds, ShortCodesTranslateBothWaysExactly)
{
    const std::pair<const char*, const char*> rows[] = {
        {"AAA", "krm_axis_and_allies_for_aaqt_v1"},
        {"AAE", "krm_a_and_a_europe_for_aaeqt_v1"},
        {"AAP", "krm_a_and_a_pacific_for_aapqt_doi_v2"},
        {"EAW", "krm_east_and_west_by_impgames_v4"},
        {"KRC", "krm_chess_by_tavrelstudio_v1"},
        {"TGW", "krm_the_great_war_by_impgames_v2"},
        {"SQU", "krm_squares_by_qxpl_v1"},
    };
    for (const auto& [code, id] : rows) {
        EXPECT_EQ(CContextMgr::TranslateExternalId(QLatin1String(code)), QLatin1String(id));
        EXPECT_EQ(CContextMgr::TranslateInternalId(QLatin1String(id)), QLatin1String(code));
        // Both compare exactly.
        EXPECT_EQ(CContextMgr::TranslateExternalId(QString::fromLatin1(code).toLower()),
                  QString::fromLatin1(code).toLower());
        EXPECT_EQ(CContextMgr::TranslateInternalId(QString::fromLatin1(id).toUpper()),
                  QString::fromLatin1(id).toUpper());
    }
    for (const char* other : {"XYZ", "", "krm_skirmish_v1", "udm_chess_by_tavrelstudio_v1"}) {
        EXPECT_EQ(CContextMgr::TranslateExternalId(QLatin1String(other)), QLatin1String(other));
        EXPECT_EQ(CContextMgr::TranslateInternalId(QLatin1String(other)), QLatin1String(other));
    }
}
