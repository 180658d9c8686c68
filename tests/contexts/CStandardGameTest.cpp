#include "support/ContextTestSupport.h"

#include "actions/IActionTool.h"
#include "contexts/CImageList.h"
#include "contexts/CImageListMgr.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CStandardGame.h"
#include "contexts/CUserDefinedGame.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "support/ErrorText.h"
#include "support/RootFixture.h"
#include "tokens/IToken.h"

#include "persist/CGameFile.h"

#include <QFile>

namespace {

class StandardGameTest : public RootFixture
{
protected:
    // A context for the pack, initialised the way discovery does it.
    template <typename Context = CStandardGame>
    std::shared_ptr<Context> open(const TestModule& module, const QString& fileName)
    {
        module.WriteTo(home.File(QStringLiteral("modules/") + fileName));
        auto resFile = std::make_shared<CResFileMgr>(CUtility::GetModuleDir(), fileName);
        QString unpacked;
        EXPECT_TRUE(resFile->UnpackFile(QStringLiteral("module.def"), -1, unpacked));
        auto definition = std::make_shared<CModuleDefinition>();
        EXPECT_TRUE(definition->LoadHeader(CUtility::GetCacheDir() + unpacked))
            << definition->LastError().toStdString();
        auto context = std::make_shared<Context>();
        context->Initialize(definition, resFile);
        return context;
    }

    // Five tokens, one of each kind, sharing some pictures.
    static TestModule mixedModule()
    {
        TestModule module;
        module.Title = QStringLiteral("Mixed Bag");
        module.PalletSize = 20;
        module.UnitSize = 36;
        TestToken inf(QStringLiteral("inf"), QStringLiteral("Quantity"), QStringLiteral("Land"));
        inf.Caption = QStringLiteral("Infantry");
        inf.Pallet = inf.Drag = inf.Unit = QStringLiteral("Shared.png");
        inf.Left = 2;
        inf.Top = 3;
        inf.Width = 20;
        TestToken note(QStringLiteral("note"), QStringLiteral("Text"), QStringLiteral("Land"));
        note.Extra = QStringLiteral("<default_text>Hold the line</default_text>");
        TestToken move(QStringLiteral("move"), QStringLiteral("Arrow"), QStringLiteral("Markers"));
        move.Pallet = QStringLiteral("move_p.png");
        move.Drag = QStringLiteral("move_d.png");
        move.Unit = QStringLiteral("move_u.png");
        move.Extra = QStringLiteral("<line_html_color>#00FF00</line_html_color>");
        move.Left = 1;
        move.Width = 3;
        TestToken turn(QStringLiteral("turn"), QStringLiteral("Numeric"),
                       QStringLiteral("Markers"));
        turn.Pallet = QStringLiteral("shared.PNG");
        turn.Drag = turn.Unit = QStringLiteral("turn.png");
        TestToken flag(QStringLiteral("flag"), QStringLiteral("Image"), QStringLiteral("Markers"));
        flag.Left = 0;
        flag.Width = 5;
        flag.Height = 0;
        module.Tokens = {inf, note, move, turn, flag};
        return module;
    }

    // "width x height count mask:" and the entries whose pictures the list
    // holds for inf, move and turn, found by their colours; "none" for no list.
    static QString describe(const std::shared_ptr<CImageList>& list)
    {
        if (!list)
            return QStringLiteral("none");
        QString line = QStringLiteral("%1x%2 %3 %4:")
                           .arg(list->Width())
                           .arg(list->Height())
                           .arg(list->Count())
                           .arg(list->MaskColor(), 0, 16);
        for (const char* key : {"inf", "move", "turn"}) {
            const QImage image = list->Image(QLatin1String(key));
            const QColor colour = image.pixelColor(image.width() / 2, image.height() / 2);
            QString found = QStringLiteral("?");
            for (const char* entry :
                 {"shared.png", "move_p.png", "move_d.png", "move_u.png", "turn.png"}) {
                if (!image.isNull() && TestModule::ColorOf(QLatin1String(entry)) == colour)
                    found = QLatin1String(entry);
            }
            line += QLatin1Char(' ') + found;
        }
        return line;
    }
};

} // namespace

TEST_F(StandardGameTest, ActivationBuildsTokensListsAndBoardDeactivationGivesThemBack)
{
    const auto context = open(mixedModule(), QStringLiteral("mixed.krm"));
    RecordingProgress progress;
    context->Activate(&progress);
    ASSERT_TRUE(context->IsActive());
    EXPECT_EQ(progress.Calls, (QStringList{"Loading the 'Mixed Bag' Module...",
                                           "Loading the Map...", "Loading Token 1 of 5...",
                                           "Loading Token 2 of 5...", "Loading Token 3 of 5...",
                                           "Loading Token 4 of 5...", "Loading Token 5 of 5..."}));
    EXPECT_EQ(QSize(context->MapWidth(), context->MapHeight()), QSize(300, 200));
    EXPECT_EQ(context->MapPicture().pixelColor(10, 10), TestModule::ColorOf("board.png"));

    QStringList lines;
    for (const auto& t : context->Tokens())
        lines << QStringLiteral("%1|%2|%3|%4|%5|%6|%7|%8x%9|")
                         .arg(t->Id(), t->Class(), QString::number(t->Index()), t->Category(),
                              t->Caption(), t->Custom(), t->Image())
                         .arg(t->ImageWidth())
                         .arg(t->ImageHeight()) +
                     QStringLiteral("%1,%2,%3,%4")
                         .arg(t->RegionLeft())
                         .arg(t->RegionTop())
                         .arg(t->RegionWidth())
                         .arg(t->RegionHeight());
    EXPECT_EQ(lines, (QStringList{
                         "inf|CQuantityToken|1|Land|Infantry||inf|36x36|2,3,20,36",
                         "note|CTextToken|2|Land|note|Hold the line|note|36x36|0,0,36,36",
                         // Arrow tokens keep their own small square, centred, whatever
                         // region the definition gives.
                         "move|CArrowToken|3|Markers|move|#00FF00|move|36x36|14,14,8,8",
                         "turn|CNumericToken|4|Markers|turn||turn|36x36|0,0,36,36",
                         "flag|CEmptyToken|5|Markers|flag||flag|36x36|0,0,5,0",
                     }));

    // Three lists: the palette at its own size, drag and unit at the unit size,
    // each with the picture the definition names for it, in any case.
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 3);
    EXPECT_EQ((QStringList{describe(context->PalletImgLst()), describe(context->DragImgLst()),
                           describe(context->UnitImgLst())}),
              (QStringList{"20x20 5 ff00ff: shared.png move_p.png shared.png",
                           "36x36 5 ff00ff: shared.png move_d.png turn.png",
                           "36x36 5 ff00ff: shared.png move_u.png turn.png"}));

    // Deactivation gives everything back, and activation works again.
    context->Deactivate();
    EXPECT_EQ(QStringLiteral("%1 %2 %3 %4 %5")
                  .arg(context->IsActive())
                  .arg(Root().ImageListMgr().ListCount())
                  .arg(describe(context->UnitImgLst()))
                  .arg(context->Tokens().Count())
                  .arg(context->MapPicture().isNull()),
              "0 0 none 0 1");

    // The body is read once: the unpacked definition is no longer needed.
    ASSERT_TRUE(QFile::remove(context->Definition()->Path()));
    context->Activate(nullptr);
    ASSERT_EQ(context->Tokens().Count(), 5);
    EXPECT_EQ(context->UnitImgLst()->Count(), 5);
    // Activating an active context changes nothing.
    const std::shared_ptr<CImageList> units = context->UnitImgLst();
    context->Activate(nullptr);
    EXPECT_EQ(context->UnitImgLst(), units);
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 3);

    context->Dispose();
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 0);
}

TEST_F(StandardGameTest, UnusableModulesFailActivationWithAClearErrorAndKeepNothing)
{
    TestModule noBoard;
    noBoard.WithBoard = false;
    const auto context = open(noBoard, QStringLiteral("noboard.krm"));
    const QString noBoardError = errorOf([&] { context->Activate(nullptr); });
    EXPECT_TRUE(noBoardError.startsWith(QString::number(CStandardGame::ModuleErrorNumber) + ' '));
    EXPECT_TRUE(noBoardError.contains(QStringLiteral("'board.png'"))) << noBoardError.toStdString();
    EXPECT_TRUE(!context->IsActive() && Root().ImageListMgr().ListCount() == 0);

    // A body that breaks the rules only past the header fails activation.
    TestModule badBody;
    badBody.Tokens.front().Left = -7;
    const auto broken = open(badBody, QStringLiteral("badbody.krm"));
    EXPECT_THROW(broken->Activate(nullptr), KorvaneError);
}

TEST_F(StandardGameTest, DefaultGamesAreAStartMapOrTheInitialFileWithAFreshId)
{
    // Without an initial game: one group holding one empty, locked map "Start".
    const auto plain = open(TestModule(), QStringLiteral("plain.krm"));
    plain->Activate(nullptr);
    const std::shared_ptr<CGame> start = plain->CreateDefaultGame();
    ASSERT_TRUE(start && start->ActiveMapGroup() && start->ActiveMapGroup()->ActiveMap());
    const std::shared_ptr<CMapGroup> group = start->ActiveMapGroup();
    const std::shared_ptr<CMap> map = group->ActiveMap();
    EXPECT_EQ(QStringLiteral("%1 %2 %3 %4 %5 %6")
                  .arg(start->MapGroups().Count())
                  .arg(group->Maps().Count())
                  .arg(map->Name())
                  .arg(map->LockCount())
                  .arg(map->Units()->Count())
                  .arg(start->Dirty()),
              "1 1 Start 1 0 0");
    EXPECT_EQ(map->GroupId(), group->Id());
    EXPECT_NE(plain->CreateDefaultGame()->Id(), start->Id());

    // The initial game as a module author writes it: one unit of the module's token.
    start->SetName(QStringLiteral("Opening"));
    auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), plain->Tokens().Item(1));
    map->Units()->AddItem(unit);
    TestModule module;
    module.InitialGame = QStringLiteral("Start.KRF");
    module.Extra = {{QStringLiteral("start.krf"),
                     CGameFile::ToBytes(*start, QStringLiteral("krm_test_module_v1"))},
                    {QStringLiteral("damaged.krf"), QByteArray("KR01 and then nothing useful")}};
    const auto context = open(module, QStringLiteral("opening.krm"));
    context->Activate(nullptr);
    const std::shared_ptr<CGame> game = context->CreateDefaultGame();
    ASSERT_TRUE(game && game->MapGroups().Count() == 1);
    EXPECT_NE(game->Id(), start->Id());
    EXPECT_EQ(game->Name(), QStringLiteral("Opening"));
    const std::shared_ptr<CMap> opening = game->ActiveMapGroup()->ActiveMap();
    ASSERT_TRUE(opening && opening->Units() && opening->Units()->Count() == 1);
    // The unit's token is the context's own, found while it was made the root's context.
    EXPECT_EQ(opening->Units()->Item(1)->Token(), context->Tokens().Item(1));
    EXPECT_FALSE(Root().Context()) << "the root's context is put back";

    // A damaged or missing initial game is refused with the reason, and only
    // an active module makes games.
    for (const char* entry : {"damaged.krf", "missing.krf"}) {
        module.InitialGame = QLatin1String(entry);
        const auto refused = open(module, QStringLiteral("refused_%1.krm").arg(entry));
        EXPECT_THROW(refused->CreateDefaultGame(), KorvaneError);
        refused->Activate(nullptr);
        EXPECT_TRUE(errorOf([&] { refused->CreateDefaultGame(); }).contains(QLatin1String(entry)));
        EXPECT_FALSE(Root().Context());
    }
}

TEST_F(StandardGameTest, CustomToolsFollowTheTokenKindsOfTheModule)
{
    TestModule plain;
    plain.Tokens = {TestToken(QStringLiteral("a")), TestToken(QStringLiteral("b"))};
    const std::pair<TestModule, QString> cases[] = {
        {plain, ""}, {mixedModule(), "Reset &Moved|Clear All Arro&ws"}};
    int file = 0;
    for (const auto& [module, tools] : cases) {
        // User modules activate like any module.
        const auto context = open<CUserDefinedGame>(module, QStringLiteral("m%1.udm").arg(++file));
        // Activating again does not offer the tools twice.
        for (int pass = 0; pass < 2; ++pass) {
            context->Deactivate();
            context->Activate(nullptr);
            QStringList captions;
            for (const auto& tool : context->CustomTools())
                captions << tool->Caption();
            EXPECT_EQ(captions.join('|'), tools);
        }
    }
}
