#include "support/GameFixture.h"

namespace {

using TokenHandlers = GameFixture;

TEST_F(TokenHandlers, aCancelledTextDialogChangesNothingAndNumericMenusKeepTheCountIn0To200)
{
    token(QStringLiteral("NOTE"))->HandleDrop(50, 60);
    const auto note = board()->Units()->Item(1);
    EXPECT_EQ(note->Caption(), QStringLiteral("NOTE")) << "no custom text: the token's caption";
    EXPECT_EQ(menuOf(note), (QStringList{"&Edit|EDIT", "-|", "&Delete|DELETE"}));
    gui->Dialogs.AnswerText = QStringLiteral("Supply");
    gui->Dialogs.AnswerExtended = QStringLiteral("Depot at the river");
    gui->Dialogs.Confirm = false;
    choose(note, QStringLiteral("EDIT"));
    EXPECT_EQ(mgr().Actions().Count(), 1) << "a cancelled dialog records nothing";
    EXPECT_EQ(note->Caption(), QStringLiteral("NOTE"));

    // Numeric menus offer adding below 200 and subtracting above 0.
    const QStringList edit{"&Edit|EDIT", "-|"};
    const QStringList end{"-|", "&Delete|DELETE"};
    const QStringList add{"&Add 1|ADD_1"};
    const QStringList subtract{"&Subtract 1|SUB_1"};
    const auto mark = put(QStringLiteral("MARK"), 5, 5, QStringLiteral("0"));
    EXPECT_EQ(menuOf(mark), edit + add + end);
    mark->SetData(QStringLiteral("199"));
    EXPECT_EQ(menuOf(mark), edit + add + subtract + end);
    mark->SetData(QStringLiteral("1"));
    choose(mark, QStringLiteral("SUB_1"));
    EXPECT_EQ(mark->Data() + mark->Caption(), QStringLiteral("0x0"));
    mark->SetData(QStringLiteral("200"));
    EXPECT_EQ(menuOf(mark), edit + subtract + end);
}

TEST_F(TokenHandlers, aDismissedMenuChangesNothingWhateverKeyItStillReports)
{
    gui->Popup.DismissKeepingContext = true;
    for (const char* id : {"INF", "TANK", "ARROW", "MARK", "NOTE"}) {
        token(QLatin1String(id))->HandleDrop(10, 10);
        choose(lastUnit(), QStringLiteral("DELETE"));
    }
    EXPECT_EQ(gui->Popup.ShowCount, 5);
    EXPECT_EQ(mgr().Actions().Count(), 5) << "the five drops and nothing else";
    // Plain counters and arrows offer deleting only.
    EXPECT_EQ(menuOf(board()->Units()->Item(2)), QStringList{"&Delete|DELETE"});
    EXPECT_EQ(menuOf(board()->Units()->Item(3)), QStringList{"&Delete|DELETE"});
}

TEST_F(TokenHandlers, countedCaptionsUseTheActiveContextsPrefixAndTextsTheirCustomText)
{
    const auto inf = token(QStringLiteral("INF"));
    const auto note = token(QStringLiteral("NOTE"));
    note->SetCustom(QStringLiteral("Supply"));
    EXPECT_EQ(note->DefaultCaption(), QStringLiteral("Supply"));
    Root().SetContext(std::make_shared<TestContext>(QStringLiteral("# ")));
    EXPECT_EQ(inf->DefaultCaption() + token(QStringLiteral("MARK"))->DefaultCaption(),
              QStringLiteral("# 1# 0"));
    Root().SetContext(std::make_shared<TestContext>(QString()));
    EXPECT_EQ(inf->DefaultCaption(), QStringLiteral("1"));
    Root().SetContext(nullptr);
    EXPECT_EQ(inf->DefaultCaption(), QStringLiteral("x1")) << "root without a context";
}

} // namespace
