#include "support/ContextTestSupport.h"

#include "contexts/CContextMgr.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CResFileWriter.h"
#include "contexts/IGameContext.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "support/ErrorText.h"
#include "support/TestHome.h"
#include "tokens/IToken.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

// A home filled by the test before the root starts, so discovery sees it.
class ContextMgrTest : public ::testing::Test
{
protected:
    void TearDown() override { ReleaseRoot(); }

    QString module(const QString& file, const TestModule& m) const
    {
        return m.WriteTo(home.File(QStringLiteral("modules/") + file));
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

    // A record as one line: position found by its id, caption, id, kind, file
    // type, folder, url, and how far its definition was read (with the
    // unpacked copy present or not).
    QString describe(const CContextMgr& manager, std::int32_t position) const
    {
        const auto& info = manager.Infos().Item(position);
        const std::shared_ptr<IGameContext> context = manager.Context(position);
        QString definition = QStringLiteral("none");
        if (info->Definition()) {
            definition = info->Definition()->BodyLoaded() ? "body" : "header";
            if (CUtility::FileExists(info->Definition()->Path()))
                definition += QStringLiteral(" cached");
        }
        return QStringList{QString::number(manager.PosOfContext(context->Id())),
                           context->Caption(),
                           context->Id(),
                           context->IsUserDefined() ? "user" : "module",
                           context->FileExtension(),
                           QDir(home.Path()).relativeFilePath(info->Directory()),
                           info->ShortCode(),
                           context->Url(),
                           definition}
            .join(QLatin1Char('|'));
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
    module(QStringLiteral("alpha.krm"), TestModule::Titled("pass", "Mountain Pass"));
    module(QStringLiteral("mid.krm"), TestModule::Titled("front", "beta Front"));
    // Odd entries cost only themselves: the first "icon.png" is the module's picture.
    const std::vector<std::pair<QString, QByteArray>> odd{{"notes..txt", "n"},
                                                          {"img\\x.bmp", "x"},
                                                          {"", "e"},
                                                          {"sub/dir.png", "s"},
                                                          {"ICON.PNG", "i"}};
    home.WriteFile(QStringLiteral("modules/zeta.krm"),
                   AppendRawEntries(TestModule::Titled("wars", "Alpha Wars"), odd));
    TestModule::Titled("mine", "Zz Mine").WriteTo(home.File(QStringLiteral("usermods/b.udm")));
    TestModule::Titled("aardvark", "Aardvark")
        .WriteTo(home.File(QStringLiteral("usermods/aaa.udm")));

    RecordingProgress progress;
    std::int32_t seenByGui = -1;
    CKorvane& root =
        StartRoot(&progress, [&seenByGui] { return std::make_unique<CountingGui>(seenByGui); });
    const CContextMgr& manager = root.ContextMgr();
    EXPECT_EQ(seenByGui, 5) << "discovery must be over before the windows are built";
    const QStringList expected{
        "1|Alpha Wars|krm_wars_v1|module|krf|modules||https://example.org/wars|header cached",
        "2|beta Front|krm_front_v1|module|krf|modules||https://example.org/front|header cached",
        "3|Mountain Pass|krm_pass_v1|module|krf|modules||https://example.org/pass|header cached",
        "4|Aardvark|udm_aardvark_v1|user|cmf|usermods||https://example.org/aardvark|header cached",
        "5|Zz Mine|udm_mine_v1|user|cmf|usermods||https://example.org/mine|header cached",
    };
    ASSERT_EQ(manager.ContextCount(), 5);
    for (std::int32_t i = 1; i <= manager.ContextCount(); ++i) {
        EXPECT_EQ(describe(manager, i), expected.value(i - 1));
        EXPECT_EQ(manager.Context(i)->Picture().pixelColor(3, 3), TestModule::ColorOf("icon.png"));
    }
    // Progress: the search, then each module in listing order, between the
    // root's own first and last lines.
    EXPECT_EQ(
        progress.Calls,
        (QStringList{"Initializing...", "Searching for Games...",
                     "Module 'Mountain Pass' was loaded...", "Module 'beta Front' was loaded...",
                     "Module 'Alpha Wars' was loaded...", "Module 'Aardvark' was loaded...",
                     "Module 'Zz Mine' was loaded...", "Finished...", ""}));

    // Shutting down disposes every context, which removes what they unpacked.
    EXPECT_EQ(cacheFileCount(), 5);
    ReleaseRoot();
    EXPECT_EQ(cacheFileCount(), 0);
}

TEST_F(ContextMgrTest, FixedFileNamesAreServedByTheirOwnClassesInAnyCase)
{
    // The class gives the identity (caption, id, file type, short code),
    // whatever the pack's definition says.
    module(QStringLiteral("KRCV1A.KRM"), TestModule::Titled("some_chess", "Title In The Pack"));
    TestModule noDefinition;
    noDefinition.WithDefinition = false;
    module(QStringLiteral("Aaev1.krm"), noDefinition);
    home.WriteFile(QStringLiteral("modules/squv1.krm"), QByteArray("not a pack at all", 17));

    const CContextMgr& manager = StartRoot().ContextMgr();
    EXPECT_EQ(describe(manager, 2), "2|Korvane Chess|krm_chess_by_tavrelstudio_v1|module|mcm|"
                                    "modules|KRC|https://example.org/some_chess|none");

    // Fixed packs without a definition, or damaged whole, are listed but
    // cannot be activated.
    EXPECT_EQ(captions(manager), (QStringList{"Axis & Allies Europe", "Korvane Chess",
                                              "SQUARES - Civil War Battle Game"}));
    for (const auto& [at, file] : {std::pair{1, "Aaev1.krm"}, std::pair{3, "squv1.krm"}}) {
        const std::int32_t position = at; // clang 14 lambdas cannot capture a binding
        const QString error = errorOf([&] { manager.Context(position)->Activate(nullptr); });
        EXPECT_TRUE(error.contains(QLatin1String(file)) && error.contains("module.def"))
            << error.toStdString();
        EXPECT_EQ(manager.Context(position)->Tokens().Count(), 0);
    }
}

TEST_F(ContextMgrTest, FirstPackOfAnIdWinsAndUnusablePacksAreSkippedSilently)
{
    module(QStringLiteral("a_first.krm"), TestModule::Titled("twin", "First"));
    module(QStringLiteral("B_second.krm"), TestModule::Titled("twin", "Second"));
    module(QStringLiteral("c_chess.krm"),
           TestModule::Titled("chess_by_tavrelstudio", "Chess Copy"));
    // A fixed file listed later loses to the standard module that took its id first.
    module(QStringLiteral("krcv1a.krm"), TestModule::Titled("x", "Ignored"));
    // The same unique id in a user module is another id.
    TestModule::Titled("twin", "User Twin").WriteTo(home.File(QStringLiteral("usermods/twin.udm")));
    TestModule::Titled("twin", "User Twin 2")
        .WriteTo(home.File(QStringLiteral("usermods/twin2.udm")));

    // An unusable pack beside them is skipped silently, its unpacked definition removed.
    home.WriteFile(QStringLiteral("usermods/broken.udm"),
                   TestModule().Pack({{"module.def", "<module_def><game_info>"}}));
    module(QStringLiteral("good.krm"), TestModule::Titled("good", "Good"));

    RecordingProgress progress;
    testing::internal::CaptureStderr();
    CKorvane& root = StartRoot(&progress);
    const std::string console = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(console.empty()) << console;
    const CContextMgr& manager = root.ContextMgr();
    EXPECT_EQ(captions(manager), (QStringList{"Chess Copy", "First", "Good", "User Twin"}));
    // The skipped pack is not announced and leaves no cache file behind.
    EXPECT_EQ(progress.Calls.filter(QStringLiteral("was loaded")).size(), 4);
    EXPECT_EQ(cacheFileCount(), 4);
}

TEST(ContextIds, ShortCodesTranslateBothWays)
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
    }
}
