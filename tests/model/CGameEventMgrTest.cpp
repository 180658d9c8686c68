#include "model/CGameEventMgr.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FMainMdi.h"
#include "core/KorvaneError.h"
#include "support/RootFixture.h"
#include "support/TestHome.h"

#include <QStringList>

#include <array>
#include <functional>

#include <gtest/gtest.h>

namespace {

// Writes "name:Event(arguments)" for everything it hears.
template <typename Base> class RecorderOf : public Base
{
public:
    RecorderOf(QString name, QStringList& log) : m_name(std::move(name)), m_log(log) {}

    std::function<void()> onHear;

    void NotifyOfArrowAdd(const QString& id) override { hear("ArrowAdd", id); }
    void NotifyOfArrowDelete(const QString& id) override { hear("ArrowDelete", id); }
    void NotifyOfArrowEdit(const QString& id) override { hear("ArrowEdit", id); }
    void NotifyOfGameEdit() override { hear("GameEdit", QString()); }
    void NotifyOfGroupAdd(const QString& id) override { hear("GroupAdd", id); }
    void NotifyOfGroupDelete(const QString& id) override { hear("GroupDelete", id); }
    void NotifyOfGroupSwitch(const QString& from, const QString& to) override
    {
        hear("GroupSwitch", from + QLatin1Char(',') + to);
    }
    void NotifyOfMapAdd(const QString& id) override { hear("MapAdd", id); }
    void NotifyOfMapDelete(const QString& id) override { hear("MapDelete", id); }
    void NotifyOfMapEdit(const QString& id) override { hear("MapEdit", id); }
    void NotifyOfMapSwitch(const QString& from, const QString& to) override
    {
        hear("MapSwitch", from + QLatin1Char(',') + to);
    }
    void NotifyOfNewContext() override { hear("NewContext", QString()); }
    void NotifyOfNewGame() override { hear("NewGame", QString()); }
    void NotifyOfUnitAdd(const QString& id) override { hear("UnitAdd", id); }
    void NotifyOfUnitDelete(const QString& id) override { hear("UnitDelete", id); }
    void NotifyOfUnitEdit(const QString& id) override { hear("UnitEdit", id); }

private:
    void hear(const char* event, const QString& arguments)
    {
        m_log << m_name + QLatin1Char(':') + QLatin1String(event) + QLatin1Char('(') + arguments +
                     QLatin1Char(')');
        if (onHear)
            onHear();
    }

    QString m_name;
    QStringList& m_log;
};

using Recorder = RecorderOf<IGameEventListener>;

// A listener whose listener part does not start at the object's address.
struct Padding
{
    virtual ~Padding() = default;
    std::int64_t filler = 0;
};
class OffsetRecorder : public Padding, public Recorder
{
public:
    using Recorder::Recorder;
};

class FakeMain : public RecorderOf<FMainMdi>
{
public:
    explicit FakeMain(QStringList& log) : RecorderOf<FMainMdi>(QStringLiteral("main"), log)
    {
        const char* names[] = {"board", "text", "file", "action", "view", "game", "tools", "help"};
        for (std::size_t i = 0; i < parts.size(); ++i)
            parts[i] = std::make_unique<Recorder>(QLatin1String(names[i]), log);
    }

    IGameEventListener* BoardMdc() override { return parts[0].get(); }
    IGameEventListener* MapTextWin() override { return parts[1].get(); }
    IGameEventListener* FileMenu() override { return parts[2].get(); }
    IGameEventListener* ActionMenu() override { return parts[3].get(); }
    IGameEventListener* ViewMenu() override { return parts[4].get(); }
    IGameEventListener* GameMenu() override { return parts[5].get(); }
    IGameEventListener* ToolsMenu() override { return parts[6].get(); }
    IGameEventListener* HelpMenu() override { return parts[7].get(); }

    std::array<std::unique_ptr<Recorder>, 8> parts;
};

class FakeGui : public CGui
{
public:
    explicit FakeGui(QStringList& log) : main(log) {}
    FMainMdi* MainMdi() override { return &main; }
    FakeMain main;
};

class EventFanOut : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto root = std::make_shared<CKorvane>();
        InstallRoot(root);
        root->SetGuiFactory([this] {
            auto made = std::make_unique<FakeGui>(log);
            gui = made.get();
            return made;
        });
        root->Constructor(nullptr);
    }
    void TearDown() override { ReleaseRoot(); }

    QStringList heard()
    {
        QStringList names;
        for (const QString& line : std::as_const(log))
            names << line.section(QLatin1Char(':'), 0, 0);
        log.clear();
        return names;
    }

    TestHome home;
    QStringList log;
    FakeGui* gui = nullptr;
};

TEST_F(EventFanOut, theWindowComesFirstThenItsPartsThenListenersAndTheSourceIsSkipped)
{
    CGameEventMgr& events = Root().EventMgr();
    ASSERT_EQ(Root().Gui(), gui);
    auto first = std::make_shared<Recorder>(QStringLiteral("L1"), log);
    auto second = std::make_shared<OffsetRecorder>(QStringLiteral("L2"), log);
    events.Register(first);
    events.Register(second);
    const QStringList everyone{"main", "board", "text", "file", "action", "view",
                               "game", "tools", "help", "L1",   "L2"};

    events.NotifyOfUnitAdd(QStringLiteral("U"), nullptr);
    EXPECT_EQ(heard(), everyone);

    // Each recipient passing itself, whole or as its listener part, is left out.
    const std::pair<const void*, QString> sources[] = {
        {&gui->main, QStringLiteral("main")},
        {static_cast<IGameEventListener*>(&gui->main), QStringLiteral("main")},
        {gui->main.parts[0].get(), QStringLiteral("board")},
        {gui->main.parts[7].get(), QStringLiteral("help")},
        {first.get(), QStringLiteral("L1")},
        {second.get(), QStringLiteral("L2")},
        {static_cast<IGameEventListener*>(second.get()), QStringLiteral("L2")},
    };
    for (const auto& [source, skipped] : sources) {
        events.NotifyOfMapEdit(QStringLiteral("M"), source);
        QStringList expected = everyone;
        expected.removeOne(skipped);
        EXPECT_EQ(heard(), expected) << skipped.toStdString();
    }

    // Parts are fetched at every call: a missing one is passed over.
    gui->main.parts[1].reset();
    events.NotifyOfGameEdit(gui->main.parts[0].get());
    EXPECT_EQ(heard(),
              (QStringList{"main", "file", "action", "view", "game", "tools", "help", "L1", "L2"}));
}

TEST_F(EventFanOut, registrationIsAPlainList)
{
    CGameEventMgr& events = Root().EventMgr();
    auto listener = std::make_shared<Recorder>(QStringLiteral("L"), log);
    events.Register(listener);
    events.Register(listener);
    events.NotifyOfNewGame(&gui->main);
    EXPECT_EQ(heard().count(QStringLiteral("L")), 2);

    events.Unregister(listener);
    events.Unregister(listener);
    try {
        events.Unregister(listener);
        FAIL() << "a listener that is not registered cannot be unregistered";
    } catch (const KorvaneError& error) {
        EXPECT_EQ(error.Number(), 1);
        EXPECT_EQ(error.Source(), QStringLiteral("CVector.RemoveItem"));
        EXPECT_EQ(error.Description(), QStringLiteral("Not Found"));
    }
    events.NotifyOfNewGame(&gui->main);
    EXPECT_EQ(heard().count(QStringLiteral("L")), 0);

    // Leaving during a notification shortens the list under the running loop.
    auto leaving = std::make_shared<Recorder>(QStringLiteral("leaving"), log);
    auto last = std::make_shared<Recorder>(QStringLiteral("last"), log);
    events.Register(leaving);
    events.Register(last);
    leaving->onHear = [&] { events.Unregister(leaving); };
    EXPECT_THROW(events.NotifyOfNewContext(nullptr), KorvaneError);
}

class EventsWithoutGui : public RootFixture
{};

TEST_F(EventsWithoutGui, everyNotificationReachesItsOwnListenerMethod)
{
    QStringList log;
    CGameEventMgr& events = Root().EventMgr();
    EXPECT_EQ(Root().Gui(), nullptr);
    events.Register(std::make_shared<Recorder>(QStringLiteral("L"), log));
    events.NotifyOfArrowAdd(QStringLiteral("a1"), nullptr);
    events.NotifyOfArrowDelete(QStringLiteral("a2"), nullptr);
    events.NotifyOfArrowEdit(QStringLiteral("a3"), nullptr);
    events.NotifyOfGameEdit(nullptr);
    events.NotifyOfGroupAdd(QStringLiteral("g1"), nullptr);
    events.NotifyOfGroupDelete(QStringLiteral("g2"), nullptr);
    events.NotifyOfGroupSwitch(QStringLiteral("g3"), QStringLiteral("g4"), nullptr);
    events.NotifyOfMapAdd(QStringLiteral("m1"), nullptr);
    events.NotifyOfMapDelete(QStringLiteral("m2"), nullptr);
    events.NotifyOfMapEdit(QStringLiteral("m3"), nullptr);
    events.NotifyOfMapSwitch(QStringLiteral("m4"), QStringLiteral("m5"), nullptr);
    events.NotifyOfNewContext(nullptr);
    events.NotifyOfNewGame(nullptr);
    events.NotifyOfUnitAdd(QStringLiteral("u1"), nullptr);
    events.NotifyOfUnitDelete(QStringLiteral("u2"), nullptr);
    events.NotifyOfUnitEdit(QStringLiteral("u3"), nullptr);
    EXPECT_EQ(
        log,
        (QStringList{"L:ArrowAdd(a1)", "L:ArrowDelete(a2)", "L:ArrowEdit(a3)", "L:GameEdit()",
                     "L:GroupAdd(g1)", "L:GroupDelete(g2)", "L:GroupSwitch(g3,g4)", "L:MapAdd(m1)",
                     "L:MapDelete(m2)", "L:MapEdit(m3)", "L:MapSwitch(m4,m5)", "L:NewContext()",
                     "L:NewGame()", "L:UnitAdd(u1)", "L:UnitDelete(u2)", "L:UnitEdit(u3)"}));
}

} // namespace
