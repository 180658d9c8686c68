#include "PersistTestSupport.h"

#include "contexts/IGameContext.h"
#include "core/CUtility.h"
#include "core/MMain.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CGameFile.h"
#include "support/EventLog.h"

#include <QRegularExpression>

namespace {

// Every announcement, with "NewContext(<active id or none>)" for a new context.
class AnnouncementLog : public EventLog
{
public:
    void NotifyOfNewContext() override
    {
        const auto& context = Root().Context();
        Lines << "NewContext(" + (context ? context->Id() : QStringLiteral("none")) + ')';
    }
};

const QString alphaId = QStringLiteral("krm_alpha_v1");
const QString betaId = QStringLiteral("krm_beta_v1");

class CommandLineTest : public PersistTest
{
protected:
    // A game file of one empty map, written for the context storedId names.
    QString gameFile(const QString& name, const QString& storedId, bool damaged = false) const
    {
        CGame game(CUtility::GenerateId());
        game.SetName(name);
        auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        group->Maps().AddItem(std::make_shared<CMap>(CUtility::GenerateId(), group->Id()));
        game.MapGroups().AddItem(group);
        QByteArray bytes = CGameFile::ToBytes(game, storedId);
        if (damaged)
            bytes.truncate(bytes.size() - 8);
        return home.WriteFile(name, bytes);
    }

    // The context and game announcements heard so far.
    QStringList announced() const { return log->Lines.filter(QRegularExpression("^New")); }

    std::shared_ptr<AnnouncementLog> log = std::make_shared<AnnouncementLog>();
};

} // namespace

TEST_F(CommandLineTest, AFileOpensInItsContextWhichReplacesTheActiveOneOthersAreIgnoredSilently)
{
    writeModule(QStringLiteral("alpha.krm"), module(QStringLiteral("alpha")));
    writeModule(QStringLiteral("beta.krm"), module(QStringLiteral("beta")));
    TestGui* gui = start();
    Root().EventMgr().Register(log);
    for (const QString& line : {gameFile(QStringLiteral("gone.krf"), QStringLiteral("krm_gone_v1")),
                                home.WriteFile(QStringLiteral("text.krf"), "KR02 not a game"),
                                home.File(QStringLiteral("absent.krf")), QString()}) {
        MMain::HandleCommandLine(line);
        EXPECT_TRUE(announced().isEmpty()) << line.toStdString();
        EXPECT_TRUE(gui->Boxes.Boxes.empty()) << line.toStdString();
        EXPECT_FALSE(Root().Context());
        EXPECT_FALSE(Root().Game());
    }
    MMain::HandleCommandLine(gameFile(QStringLiteral("first.krf"), alphaId) + " more words");
    EXPECT_EQ(announced(), QStringList({"NewContext(" + alphaId + ")", "NewGame()"}));
    EXPECT_EQ(Root().Game()->Name(), QStringLiteral("first.krf"));
    const auto alpha = Root().Context();
    Root().SetGame(nullptr); // no game open, as when the program starts

    // A damaged file of another context still switches to it, and opens no game.
    log->Lines.clear();
    gui->Progress.Calls.clear();
    MMain::HandleCommandLine(gameFile(QStringLiteral("broken.krf"), betaId, true));
    EXPECT_EQ(announced(), QStringList({"NewContext(none)", "NewContext(" + betaId + ')'}));
    const auto beta = Root().Context();
    ASSERT_TRUE(beta);
    EXPECT_EQ(beta->Tokens().Count(), 5) << "the new context is activated";
    EXPECT_EQ(alpha->Tokens().Count(), 0) << "the old context is deactivated";
    EXPECT_FALSE(Root().Game());
    EXPECT_EQ(gui->Boxes.Boxes.size(), 1u) << "the refusal is shown once";
    // The progress window frames the activation and hears its reports.
    const QStringList& calls = gui->Progress.Calls;
    ASSERT_GE(calls.size(), 5);
    EXPECT_EQ(calls.first(2) + calls.last(2), QStringList({"Load", "Show", "Hide", "Unload"}));

    // The context stays for the next file of it.
    log->Lines.clear();
    gui->Progress.Calls.clear();
    const QString path = gameFile(QStringLiteral("beta game.krf"), betaId);
    MMain::HandleCommandLine("  \"" + path + "\" --ignored  ");
    EXPECT_EQ(announced(), QStringList{"NewGame()"});
    EXPECT_EQ(Root().Context(), beta);
    EXPECT_TRUE(gui->Progress.Calls.isEmpty());
    ASSERT_TRUE(Root().Game());
    EXPECT_EQ(Root().Game()->File(), QStringLiteral("beta game"));
}
