#include "support/ContextTestSupport.h"

#include "actions/IActionTool.h"
#include "contexts/CImageList.h"
#include "contexts/CImageListMgr.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CStandardGame.h"
#include "contexts/CUserDefinedGame.h"
#include "core/CDebug.h"
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
#include <QRegularExpression>

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
        TestToken infantry(QStringLiteral("inf"), QStringLiteral("Quantity"),
                           QStringLiteral("Land"));
        infantry.Caption = QStringLiteral("Infantry");
        infantry.Pallet = infantry.Drag = infantry.Unit = QStringLiteral("Shared.png");
        infantry.Left = 2;
        infantry.Top = 3;
        infantry.Width = 20;
        TestToken note(QStringLiteral("note"), QStringLiteral("Text"), QStringLiteral("Land"));
        note.Extra = QStringLiteral("<default_text>Hold the line</default_text>");
        TestToken move(QStringLiteral("move"), QStringLiteral("Arrow"), QStringLiteral("Markers"));
        move.Pallet = QStringLiteral("move_p.png");
        move.Drag = QStringLiteral("move_d.png");
        move.Unit = QStringLiteral("move_u.png");
        move.Extra = QStringLiteral("<line_html_color>#00FF00</line_html_color>");
        TestToken turn(QStringLiteral("turn"), QStringLiteral("Numeric"),
                       QStringLiteral("Markers"));
        turn.Pallet = QStringLiteral("shared.PNG");
        turn.Drag = turn.Unit = QStringLiteral("turn.png");
        TestToken flag(QStringLiteral("flag"), QStringLiteral("Image"), QStringLiteral("Markers"));
        flag.Left = 0;
        flag.Top = -1;
        flag.Width = 5;
        flag.Height = 0;
        module.Tokens = {infantry, note, move, turn, flag};
        return module;
    }

    // The entry whose picture a list holds under key, by the picture's colour.
    static QString entryIn(const std::shared_ptr<CImageList>& list, const QString& key)
    {
        const QImage image = list->Image(key);
        const QColor colour = image.pixelColor(image.width() / 2, image.height() / 2);
        for (const char* entry : {"shared.png", "move_p.png", "move_d.png", "move_u.png",
                                  "turn.png", "note.png", "flag.png"}) {
            if (!image.isNull() && TestModule::ColorOf(QLatin1String(entry)) == colour)
                return QLatin1String(entry);
        }
        return QStringLiteral("?");
    }
    // Width x height, count and mask of a list.
    static QString shape(const std::shared_ptr<CImageList>& list)
    {
        return list ? QStringLiteral("%1x%2 %3 %4")
                          .arg(list->Width())
                          .arg(list->Height())
                          .arg(list->Count())
                          .arg(list->MaskColor(), 0, 16)
                    : QStringLiteral("none");
    }
};

} // namespace

TEST_F(StandardGameTest, ActivationBuildsTokensListsAndBoardFromTheDefinition)
{
    const auto context = open(mixedModule(), QStringLiteral("mixed.krm"));
    EXPECT_EQ(context->Id() + '|' + context->Caption(), "krm_test_module_v1|Mixed Bag");
    EXPECT_FALSE(context->IsActive());

    Root().Trace().SetEnabled(true);
    RecordingProgress progress;
    context->Activate(&progress);
    Root().Trace().SetEnabled(false);
    ASSERT_TRUE(context->IsActive());

    EXPECT_EQ(progress.Texts, (QStringList{"Loading the 'Mixed Bag' Module...",
                                           "Loading the Map...", "Loading Token 1 of 5...",
                                           "Loading Token 2 of 5...", "Loading Token 3 of 5...",
                                           "Loading Token 4 of 5...", "Loading Token 5 of 5..."}));
    EXPECT_EQ(context->FontName(), QStringLiteral("Sans"));
    EXPECT_EQ(context->LabelForeColor(), 0xFF0000); // "#0000FF": blue in the high byte
    EXPECT_EQ(QSize(context->MapWidth(), context->MapHeight()), QSize(300, 200));
    EXPECT_EQ(context->MapPicture().pixelColor(10, 10), TestModule::ColorOf("board.png"));

    QStringList lines;
    for (const auto& token : context->Tokens())
        lines << TokenLine(*token);
    EXPECT_EQ(lines, (QStringList{
                         "inf|CQuantityToken|1|Land|Infantry||inf|36x36|2,3,20,36",
                         "note|CTextToken|2|Land|note|Hold the line|note|36x36|0,0,36,36",
                         // Arrow tokens keep their own small region, centred.
                         "move|CArrowToken|3|Markers|move|#00FF00|move|36x36|14,14,8,8",
                         "turn|CNumericToken|4|Markers|turn||turn|36x36|0,0,36,36",
                         "flag|CEmptyToken|5|Markers|flag||flag|36x36|0,0,5,0",
                     }));
    EXPECT_EQ(context->Tokens().Item(2)->DefaultCaption(), QStringLiteral("Hold the line"));
    EXPECT_EQ(context->CustomActions().Count(), 0);

    // Three lists: the palette at its own size, drag and unit at the unit size,
    // each with the picture the definition names for it.
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 3);
    EXPECT_EQ(shape(context->PalletImgLst()), "20x20 5 ff00ff");
    EXPECT_EQ(shape(context->DragImgLst()), "36x36 5 ff00ff");
    EXPECT_EQ(shape(context->UnitImgLst()), "36x36 5 ff00ff");
    QStringList pictures;
    for (const auto& list : {context->PalletImgLst(), context->DragImgLst(), context->UnitImgLst()})
        pictures << entryIn(list, "inf") + ' ' + entryIn(list, "move") + ' ' +
                        entryIn(list, "turn");
    EXPECT_EQ(pictures,
              (QStringList{"shared.png move_p.png shared.png", "shared.png move_d.png turn.png",
                           "shared.png move_u.png turn.png"}));

    // A picture named by several lists and tokens, in any case, is unpacked once.
    const QString trace = Root().Trace().TraceFile();
    EXPECT_EQ(CountTraceLines(trace, QStringLiteral("Entry = Shared.png")), 1);
    EXPECT_EQ(CountTraceLines(trace, QStringLiteral("Entry = shared.PNG")), 0);
    EXPECT_EQ(CountTraceLines(trace, QStringLiteral("Entry = turn.png")), 1);
    EXPECT_EQ(CountTraceLines(trace, QStringLiteral("Entry = move_u.png")), 1);
}

TEST_F(StandardGameTest, DeactivationGivesEverythingBackAndActivationWorksAgain)
{
    const auto context = open(mixedModule(), QStringLiteral("mixed.krm"));
    context->Activate(nullptr);
    const std::shared_ptr<IToken> firstToken = context->Tokens().Item(1);

    context->Deactivate();
    EXPECT_FALSE(context->IsActive());
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 0);
    EXPECT_EQ(shape(context->UnitImgLst()), "none");
    EXPECT_EQ(context->Tokens().Count(), 0);
    EXPECT_TRUE(context->MapPicture().isNull());
    EXPECT_EQ(context->MapWidth(), 0);

    // The body is read once: the unpacked definition is no longer needed.
    ASSERT_TRUE(QFile::remove(context->Definition()->Path()));
    context->Activate(nullptr);
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 3);
    ASSERT_EQ(context->Tokens().Count(), 5);
    EXPECT_NE(context->Tokens().Item(1), firstToken);
    EXPECT_EQ(context->Tokens().Item(1)->Id(), QStringLiteral("inf"));
    EXPECT_EQ(context->UnitImgLst()->Count(), 5);

    // Activating an active context changes nothing.
    const std::shared_ptr<CImageList> units = context->UnitImgLst();
    context->Activate(nullptr);
    EXPECT_EQ(context->UnitImgLst(), units);
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 3);

    context->Dispose();
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 0);
    EXPECT_EQ(context->Id(), QStringLiteral("krm_test_module_v1"));
}

TEST_F(StandardGameTest, UnusableModulesFailWithAClearErrorAndKeepNothing)
{
    TestModule noBoard;
    noBoard.WithBoard = false;
    const auto context = open(noBoard, QStringLiteral("noboard.krm"));
    const QString noBoardError = errorOf([&] { context->Activate(nullptr); });
    EXPECT_TRUE(noBoardError.startsWith(QString::number(CStandardGame::ModuleErrorNumber) + ' '));
    EXPECT_TRUE(noBoardError.contains(QStringLiteral("'board.png'"))) << noBoardError.toStdString();
    EXPECT_FALSE(context->IsActive());
    EXPECT_EQ(context->Tokens().Count(), 0);
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 0);

    // An initial game the pack does not hold.
    TestModule missingStart;
    missingStart.InitialGame = QStringLiteral("start.krf");
    const auto other = open(missingStart, QStringLiteral("nostart.krm"));
    EXPECT_THROW(other->CreateDefaultGame(), KorvaneError) << "only an active module makes games";
    other->Activate(nullptr);
    EXPECT_TRUE(errorOf([&] { other->CreateDefaultGame(); }).contains("'start.krf'"));
    EXPECT_FALSE(Root().Context());

    // A body that breaks the rules only past the header fails activation.
    TestModule badBody;
    badBody.Tokens.front().Left = -7;
    const auto broken = open(badBody, QStringLiteral("badbody.krm"));
    EXPECT_THROW(broken->Activate(nullptr), KorvaneError);
    EXPECT_EQ(Root().ImageListMgr().ListCount(), 3) << "only the other module's lists remain";
}

TEST_F(StandardGameTest, DefaultGamesAreAStartMapOrTheInitialFileWithAFreshId)
{
    // Without an initial game: one group holding one empty, locked map "Start".
    const auto plain = open(TestModule(), QStringLiteral("plain.krm"));
    plain->Activate(nullptr);
    const std::shared_ptr<CGame> start = plain->CreateDefaultGame();
    ASSERT_TRUE(start && start->MapGroups().Count() == 1);
    const std::shared_ptr<CMapGroup> group = start->MapGroups().Item(1);
    ASSERT_EQ(group->Maps().Count(), 1);
    const std::shared_ptr<CMap> map = group->Maps().Item(1);
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^[0-9A-F]{32}$")).match(start->Id()).hasMatch());
    EXPECT_TRUE(start->ActiveMapGroup() == group && group->ActiveMap() == map);
    EXPECT_EQ(map->Name() + '|' + map->GroupId(), "Start|" + group->Id());
    EXPECT_TRUE(map->LockCount() == 1 && map->Units() && map->Units()->Count() == 0);
    EXPECT_EQ(start->Dirty(), 0);
    const std::shared_ptr<CGame> second = plain->CreateDefaultGame();
    EXPECT_NE(second->Id(), start->Id());
    EXPECT_NE(second->MapGroups().Item(1)->Id(), group->Id());

    // The initial game as a module author writes it: one unit of the module's token.
    start->SetName(QStringLiteral("Opening"));
    auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), plain->Tokens().Item(1));
    unit->SetX(40);
    unit->SetCaption(QStringLiteral("x4"));
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
    const std::shared_ptr<CUnit> placed = opening->Units()->Item(1);
    // The unit's token is the context's own, found while it was made the root's context.
    EXPECT_EQ(placed->Token(), context->Tokens().Item(1));
    EXPECT_EQ(placed->Caption() + '|' + QString::number(placed->x()), "x4|40");
    EXPECT_FALSE(Root().Context()) << "the root's context is put back";

    // A damaged initial game is refused with the reason.
    module.InitialGame = QStringLiteral("damaged.krf");
    const auto damaged = open(module, QStringLiteral("damaged.krm"));
    damaged->Activate(nullptr);
    EXPECT_TRUE(errorOf([&] { damaged->CreateDefaultGame(); }).contains("'damaged.krf'"));
}

TEST_F(StandardGameTest, CustomToolsFollowTheTokenKindsOfTheModule)
{
    TestModule plain;
    plain.Tokens = {TestToken(QStringLiteral("a")), TestToken(QStringLiteral("b"))};
    TestModule arrowsOnly;
    arrowsOnly.Tokens = {TestToken(QStringLiteral("arrow"), QStringLiteral("Arrow"))};
    const std::pair<TestModule, QString> cases[] = {
        {plain, ""},
        {mixedModule(), "Reset &Moved|Clear All Arro&ws"},
        {arrowsOnly, "Clear All Arro&ws"},
    };
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
        EXPECT_EQ(context->Tokens().Count(), static_cast<std::int32_t>(module.Tokens.size()));
    }
}
