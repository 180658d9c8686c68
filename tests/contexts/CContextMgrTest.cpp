#include "support/ContextTestSupport.h"

#include "contexts/CAaeGame.h"
#include "contexts/CChessGame.h"
#include "contexts/CContextMgr.h"
#include "contexts/CImageListMgr.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CResFileWriter.h"
#include "contexts/CSquaresGame.h"
#include "contexts/CUserDefinedGame.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "support/PackEdit.h"
#include "support/QtPrinters.h"
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

    // A record as one line: position found by id, caption and name, id twice,
    // class kind, file type, folder, short code, url, and how far its
    // definition was read (with its cache file present or not).
    QString describe(const CContextMgr& manager, std::int32_t position) const
    {
        const auto& info = manager.Infos().Item(position);
        const std::shared_ptr<IGameContext> context = manager.Context(position);
        const bool userClass = std::dynamic_pointer_cast<CUserDefinedGame>(context) != nullptr;
        QString definition = QStringLiteral("none");
        if (info->Definition()) {
            definition = info->Definition()->BodyLoaded() ? "body" : "header";
            if (info->CacheDirectory() == CUtility::GetCacheDir() &&
                CUtility::FileExists(info->CacheDirectory() + info->DefinitionFile()))
                definition += QStringLiteral(" cached");
        }
        return QStringList{QString::number(manager.PosOfContext(context->Id())),
                           context->Caption(),
                           info->Name(),
                           context->Id(),
                           info->Id(),
                           userClass ? "user class" : "module class",
                           context->IsUserDefined() ? "user" : "module",
                           context->FileExtension(),
                           context->FileCaption(),
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
    // Odd entries cost only themselves.
    home.WriteFile(QStringLiteral("modules/zeta.krm"),
                   AppendRawEntries(TestModule::Titled("wars", "Alpha Wars").Pack(),
                                    {{"notes..txt", "n"}, {"img\\x.bmp", "x"}, {"ICON.PNG", "i"}}));
    TestModule::Titled("mine", "Zz Mine").WriteTo(home.File(QStringLiteral("usermods/b.udm")));
    TestModule::Titled("aardvark", "Aardvark")
        .WriteTo(home.File(QStringLiteral("usermods/aaa.udm")));

    RecordingProgress progress;
    std::int32_t seenByGui = -1;
    CKorvane& root =
        startRoot(&progress, [&seenByGui] { return std::make_unique<CountingGui>(seenByGui); });
    const CContextMgr& manager = root.ContextMgr();
    EXPECT_EQ(seenByGui, 5) << "discovery must be over before the windows are built";

    const QString module = "module class|module|krf|Korvane Game Files|modules||";
    const QString user = "user class|user|cmf|Custom Korvane Map Files|usermods||";
    const QStringList expected{
        "1|Alpha Wars|Alpha Wars|krm_wars_v1|krm_wars_v1|" + module +
            "https://example.org/wars|header cached",
        "2|beta Front|beta Front|krm_front_v1|krm_front_v1|" + module +
            "https://example.org/front|header cached",
        "3|Mountain Pass|Mountain Pass|krm_pass_v1|krm_pass_v1|" + module +
            "https://example.org/pass|header cached",
        "4|Aardvark|Aardvark|udm_aardvark_v1|udm_aardvark_v1|" + user +
            "https://example.org/aardvark|header cached",
        "5|Zz Mine|Zz Mine|udm_mine_v1|udm_mine_v1|" + user +
            "https://example.org/mine|header cached",
    };
    for (std::int32_t i = 1; i <= manager.ContextCount(); ++i) {
        EXPECT_EQ(describe(manager, i), expected.value(i - 1));
        EXPECT_EQ(manager.Context(i)->Picture().pixelColor(3, 3), TestModule::ColorOf("icon.png"));
    }
    EXPECT_EQ(manager.ContextCount(), 5);
    EXPECT_EQ(manager.PosOfContext(QStringLiteral("krm_unknown_v1")), 0);
    EXPECT_EQ(manager.PosOfContext(QStringLiteral("KRM_WARS_V1")), 0);
    EXPECT_THROW(manager.Context(0), KorvaneError);
    EXPECT_THROW(manager.Context(6), KorvaneError);

    // Progress: the search, then each module in listing order, between the
    // root's own first and last lines.
    EXPECT_EQ(
        progress.Texts,
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
    TestModule chess =
        TestModule::Titled(QStringLiteral("some_chess"), QStringLiteral("Title In The Pack"));
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
    EXPECT_EQ(describe(manager, 2),
              QStringLiteral("2|Korvane Chess|Korvane Chess|krm_chess_by_tavrelstudio_v1|"
                             "krm_chess_by_tavrelstudio_v1|module class|module|mcm|Korvane "
                             "Chess Files|modules|KRC|https://example.org/some_chess|none"));
    const std::shared_ptr<IGameContext> context = manager.Context(2);
    ASSERT_TRUE(std::dynamic_pointer_cast<CChessGame>(context));
    EXPECT_EQ(manager.Infos().Item(2)->FileName(), QStringLiteral("KRCV1A.KRM"));
    EXPECT_EQ(QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
                  .arg(context->FontName())
                  .arg(context->FontSize())
                  .arg(context->HasTransparentLabel())
                  .arg(context->MultiplierPrefix())
                  .arg(context->LabelForeColor())
                  .arg(context->LabelMovedColor())
                  .arg(context->LabelBackColor()),
              QStringLiteral("Arial|9|0|x|65535|65280|0"));

    // Its tokens come from the definition in its own pack; its identity does not.
    context->Activate(nullptr);
    QStringList tokens;
    for (const auto& token : context->Tokens())
        tokens << token->Id() + QLatin1Char('/') + token->Category();
    EXPECT_EQ(tokens, (QStringList{"wk/White", "bk/Black"}));
    EXPECT_EQ(context->Caption(), QStringLiteral("Korvane Chess"));
    context->Deactivate();

    // Fixed packs without a definition, or damaged whole, are listed but
    // cannot be activated.
    EXPECT_EQ(captions(manager), (QStringList{"Axis & Allies Europe", "Korvane Chess",
                                              "SQUARES - Civil War Battle Game"}));
    EXPECT_TRUE(std::dynamic_pointer_cast<CAaeGame>(manager.Context(1)));
    EXPECT_TRUE(std::dynamic_pointer_cast<CSquaresGame>(manager.Context(3)));
    EXPECT_EQ(manager.Infos().Item(1)->ShortCode(), QStringLiteral("AAE"));
    for (const auto& [position, file] : {std::pair{1, "Aaev1.krm"}, std::pair{3, "squv1.krm"}}) {
        const std::shared_ptr<IGameContext> unusable = manager.Context(position);
        try {
            unusable->Activate(nullptr);
            ADD_FAILURE() << file << " was activated";
        } catch (const KorvaneError& error) {
            EXPECT_TRUE(error.Description().contains(QLatin1String(file)))
                << error.Description().toStdString();
            EXPECT_TRUE(error.Description().contains(QStringLiteral("module.def")));
        }
        EXPECT_EQ(unusable->Tokens().Count(), 0);
        EXPECT_TRUE(unusable->Picture().isNull());
    }
    EXPECT_EQ(root.ImageListMgr().ListCount(), 0);
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

    // Unusable packs beside them are skipped silently.
    TestModule noDefinition;
    noDefinition.WithDefinition = false;
    module(QStringLiteral("nodef.krm"), noDefinition);
    CResFileWriter newer;
    newer.AddEntry(QStringLiteral("module.def"), TestModule::Titled("newer", "Newer")
                                                     .Definition()
                                                     .replace(QStringLiteral(">1.0<"), ">99.0<")
                                                     .toUtf8());
    newer.Write(home.File(QStringLiteral("modules/newer.krm")));
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
    module(QStringLiteral("good.krm"),
           TestModule::Titled(QStringLiteral("good"), QStringLiteral("Good")));

    RecordingProgress progress;
    testing::internal::CaptureStderr();
    CKorvane& root = startRoot(&progress);
    const std::string console = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(console.empty()) << console;
    const CContextMgr& manager = root.ContextMgr();
    EXPECT_EQ(captions(manager), (QStringList{"Chess Copy", "First", "Good", "User Twin"}));
    EXPECT_FALSE(std::dynamic_pointer_cast<CChessGame>(manager.Context(1)));
    // Skipped packs are not announced and leave no cache file behind.
    EXPECT_FALSE(progress.Texts.join('|').contains(QStringLiteral("Second")));
    EXPECT_FALSE(progress.Texts.join('|').contains(QStringLiteral("Korvane Chess")));
    EXPECT_EQ(cacheFileCount(), 4);
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
