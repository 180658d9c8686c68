#include "model/CGameEventMgr.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FMainMdi.h"
#include "core/KorvaneError.h"
#include "support/RootFixture.h"

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
    void NotifyOfGroupSwitch(const QString& a, const QString& b) override
    {
        hear("GroupSwitch", a + QLatin1Char(',') + b);
    }
    void NotifyOfMapAdd(const QString& id) override { hear("MapAdd", id); }
    void NotifyOfMapDelete(const QString& id) override { hear("MapDelete", id); }
    void NotifyOfMapEdit(const QString& id) override { hear("MapEdit", id); }
    void NotifyOfMapSwitch(const QString& a, const QString& b) override
    {
        hear("MapSwitch", a + QLatin1Char(',') + b);
    }
    void NotifyOfNewContext() override { hear("NewContext", QString()); }
    void NotifyOfNewGame() override { hear("NewGame", QString()); }
    void NotifyOfUnitAdd(const QString& id) override { hear("UnitAdd", id); }
    void NotifyOfUnitDelete(const QString& id) override { hear("UnitDelete", id); }
    void NotifyOfUnitEdit(const QString& id) override { hear("UnitEdit", id); }

private:
    void hear(const char* event, const QString& arguments)
    {
        m_log << QStringLiteral("%1:%2(%3)").arg(m_name, QLatin1String(event), arguments);
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

    // The names of the recipients since the last call, in order.
    QString heard()
    {
        QStringList names;
        for (const QString& line : std::as_const(log))
            names << line.section(QLatin1Char(':'), 0, 0);
        log.clear();
        return names.join(QLatin1Char(' '));
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
    const QString everyone = QStringLiteral("main board text file action view game tools help");

    events.NotifyOfUnitAdd(QStringLiteral("U"), nullptr);
    EXPECT_EQ(heard(), everyone + QStringLiteral(" L1 L2"));

    // Each recipient passing itself, whole or as its listener part, is left out.
    events.NotifyOfMapEdit(QStringLiteral("M"), &gui->main);
    EXPECT_EQ(heard(), QStringLiteral("board text file action view game tools help L1 L2"));
    events.NotifyOfMapEdit(QStringLiteral("M"), static_cast<IGameEventListener*>(&gui->main));
    EXPECT_EQ(heard(), QStringLiteral("board text file action view game tools help L1 L2"));
    events.NotifyOfMapEdit(QStringLiteral("M"), gui->main.parts[7].get());
    EXPECT_EQ(heard(), QStringLiteral("main board text file action view game tools L1 L2"));
    events.NotifyOfMapEdit(QStringLiteral("M"), first.get());
    EXPECT_EQ(heard(), everyone + QStringLiteral(" L2"));
    events.NotifyOfMapEdit(QStringLiteral("M"), second.get());
    EXPECT_EQ(heard(), everyone + QStringLiteral(" L1"));
    events.NotifyOfMapEdit(QStringLiteral("M"), static_cast<IGameEventListener*>(second.get()));
    EXPECT_EQ(heard(), everyone + QStringLiteral(" L1"));

    // Parts are fetched at every call: a missing one is passed over.
    gui->main.parts[1].reset();
    events.NotifyOfGameEdit(gui->main.parts[0].get());
    EXPECT_EQ(heard(), QStringLiteral("main file action view game tools help L1 L2"));
}

TEST_F(EventFanOut, registrationIsAPlainList)
{
    CGameEventMgr& events = Root().EventMgr();
    auto listener = std::make_shared<Recorder>(QStringLiteral("L"), log);
    events.Register(listener);
    events.Register(listener);
    events.NotifyOfNewGame(&gui->main);
    EXPECT_TRUE(heard().endsWith(QStringLiteral("help L L")));

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

    // Leaving during a notification shortens the list under the running loop.
    auto leaving = std::make_shared<Recorder>(QStringLiteral("leaving"), log);
    events.Register(leaving);
    events.Register(listener);
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
    const QString a = QStringLiteral("a"), b = QStringLiteral("b");
    events.NotifyOfArrowAdd(a, nullptr);
    events.NotifyOfArrowDelete(a, nullptr);
    events.NotifyOfArrowEdit(a, nullptr);
    events.NotifyOfGameEdit(nullptr);
    events.NotifyOfGroupAdd(a, nullptr);
    events.NotifyOfGroupDelete(a, nullptr);
    events.NotifyOfGroupSwitch(a, b, nullptr);
    events.NotifyOfMapAdd(a, nullptr);
    events.NotifyOfMapDelete(a, nullptr);
    events.NotifyOfMapEdit(a, nullptr);
    events.NotifyOfMapSwitch(b, a, nullptr);
    events.NotifyOfNewContext(nullptr);
    events.NotifyOfNewGame(nullptr);
    events.NotifyOfUnitAdd(a, nullptr);
    events.NotifyOfUnitDelete(a, nullptr);
    events.NotifyOfUnitEdit(a, nullptr);
    EXPECT_EQ(log.join(QLatin1Char(' ')).remove(QStringLiteral("L:")),
              QStringLiteral("ArrowAdd(a) ArrowDelete(a) ArrowEdit(a) GameEdit() GroupAdd(a) "
                             "GroupDelete(a) GroupSwitch(a,b) MapAdd(a) MapDelete(a) MapEdit(a) "
                             "MapSwitch(b,a) NewContext() NewGame() UnitAdd(a) UnitDelete(a) "
                             "UnitEdit(a)"));
}

} // namespace
