#include "core/CKorvane.h"

#include "core/CDebug.h"
#include "core/CTraceScope.h"
#include "core/MMain.h"
#include "support/RootFixture.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// Records its run and, while the root is up, traces through it.
struct Task : IShutdownTask
{
    Task(QStringList& log, const char* name, bool fails)
        : log(log), name(QLatin1String(name)), fails(fails)
    {}
    void Execute() override
    {
        log << name;
        if (RootOrNull() && RootOrNull()->IsConstructed())
            Root().Trace().DenoteMethod(u"running "_s + name);
        if (fails)
            throw KorvaneError(75, u"Task.Execute"_s, u"Path error"_s);
    }
    QStringList& log;
    QString name;
    bool fails;
};

// A constructed root in a temporary home that still holds the trace of an earlier run.
class Korvane : public RootFixture
{
protected:
    void SetUp() override
    {
        qunsetenv("KORVANE_TRACE");
        home.WriteFile(u"debug.txt"_s, "old run\n");
        RootFixture::SetUp();
    }
    QByteArray text() const { return home.ReadFile(u"debug.txt"_s); }
    void add(CKorvane& root, const char* name, bool fails = false)
    {
        root.ExecuteOnShutdown(std::make_shared<Task>(log, name, fails));
    }
    QStringList log;
};

} // namespace

TEST_F(Korvane, TraceWritesExactLinesIndentedByDepthAndNothingWhileDisabled)
{
    CDebug& trace = Root().Trace();
    {
        CTraceScope scope("Quiet", "CGame");
        scope.Denote(u"hidden"_s);
        trace.EnterMethod("Direct", "CGame");
    }
    EXPECT_EQ(trace.Depth(), 0);
    EXPECT_EQ(text(), QByteArray()) << "the old run's trace is gone";
    trace.SetEnabled(true);
    trace.SetEnabled(true);
    {
        CTraceScope outer("Outer", "CGame");
        outer.Denote(u"3 maps"_s);
        CTraceScope inner("Inner", "CMap");
        trace.EnterMethod(u"Raw"_s, u"CUnit"_s);
        trace.ExitMethod();
    }
    EXPECT_THROW(
        {
            CTraceScope outer("Load", "CPersistMgr");
            throw KorvaneError(5, u"CGame.RestoreFrom"_s, u"bad"_s);
        },
        KorvaneError); // the guard unwinds the depth
    trace.EnterMethod("Open", "CPersistMgr");
    trace.SetEnabled(false);
    trace.ExitMethod();
    EXPECT_EQ(trace.Depth(), 1);
    EXPECT_EQ(text(), "[Debug Enabled]\n[Enter Method] CGame.Outer >>>\n\t3 maps\n"
                      "\t[Enter Method] CMap.Inner >>>\n\t\t[Enter Method] CUnit.Raw >>>\n"
                      "\t\t<<<[Exit Method]\n\t<<<[Exit Method]\n<<<[Exit Method]\n"
                      "[Enter Method] CPersistMgr.Load >>>\n<<<[Exit Method]\n"
                      "[Enter Method] CPersistMgr.Open >>>\n\t[Debug Disabled]\n");
}

TEST_F(Korvane, ShutdownTasksRunOnceInOrderBeforeServicesGo)
{
    Root().Trace().SetEnabled(true);
    for (const char* name : {"a", "b", "c"})
        add(Root(), name);
    Root().Dispose();
    EXPECT_EQ(text(), "[Debug Enabled]\n[Enter Method] CKorvane.Dispose >>>\n\t3 tasks to execute\n"
                      "\trunning a\n\trunning b\n\trunning c\n<<<[Exit Method]\n");
    EXPECT_EQ(Root().TracePtr(), nullptr);
    Root().Dispose();
    MMain::ShutdownApplication();
    EXPECT_EQ(RootOrNull(), nullptr);
    EXPECT_EQ(log, QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(Korvane, ShutdownWithoutTasksWritesNoTrace)
{
    Root().Trace().SetEnabled(true);
    MMain::ShutdownApplication();
    EXPECT_EQ(text(), "[Debug Enabled]\n");
}

TEST_F(Korvane, FailingShutdownTaskStillReleasesTheRootAndNeverRunsAgain)
{
    add(Root(), "a", true);
    EXPECT_THROW(MMain::ShutdownApplication(), KorvaneError);
    EXPECT_EQ(RootOrNull(), nullptr);
    {
        CKorvane unmanaged; // its destructor runs the task and keeps the error in
        unmanaged.Constructor(nullptr);
        add(unmanaged, "b", true);
    }
    EXPECT_EQ(log, QStringList({u"a"_s, u"b"_s}));
}

// A quoted name followed by more words, and a name that does not exist, are
// checked with the command line handler.
TEST(MMain, ExtractFileArgumentFindsOnlyTheFirstExistingPath)
{
    TestHome home;
    const QString game = home.WriteFile(u"game.krf"_s, "KR01");
    const QString blank = home.WriteFile(u"my game.krf"_s, "KR01");
    const QString cwd = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(home.Path()));
    home.WriteFile(u"a.kr"_s, "x");
    home.WriteFile(u"ab.kr"_s, "x");
    const QString q = u"\""_s;

    const std::pair<QString, QString> cases[] = {
        {q + game, QString()},           // no closing quote
        {blank, blank},                  // the whole line names the file
        {blank + u" more"_s, QString()}, // the fall-back cuts at the first blank
        {u"a.kr"_s, QString()},          // under five characters
        {u"ab.kr"_s, u"ab.kr"_s},
    };
    for (const auto& [line, expected] : cases)
        EXPECT_EQ(MMain::ExtractFileArgument(line), expected) << line.toStdString();

    const QString joined = MMain::JoinArguments({blank, u"-v"_s});
    EXPECT_EQ(joined, q + blank + q + u" -v"_s);
    EXPECT_EQ(MMain::ExtractFileArgument(joined), blank);
    EXPECT_EQ(MMain::JoinArguments({game, u"x"_s}), game + u" x"_s);
    QDir::setCurrent(cwd);
}
