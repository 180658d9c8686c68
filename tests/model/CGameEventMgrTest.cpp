#include "model/CGameEventMgr.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FMainMdi.h"
#include "model/ModelTestSupport.h"
#include "support/EventLog.h"
#include "support/RootFixture.h"

#include <QStringList>

#include <array>

#include <gtest/gtest.h>

namespace {

// A listener whose listener part does not start at the object's address.
struct Padding
{
    virtual ~Padding() = default;
    std::int64_t filler = 0;
};
class OffsetRecorder : public Padding, public EventLog
{
public:
    using EventLog::EventLogOf;
};

class FakeMain : public EventLogOf<FMainMdi>
{
public:
    explicit FakeMain(QStringList& log) : EventLogOf<FMainMdi>(QStringLiteral("main"), log)
    {
        const char* names[] = {"board", "text", "file", "action", "view", "game", "tools", "help"};
        for (std::size_t i = 0; i < parts.size(); ++i)
            parts[i] = std::make_unique<EventLog>(QLatin1String(names[i]), log);
    }
    IGameEventListener* BoardMdc() override { return parts[0].get(); }
    IGameEventListener* MapTextWin() override { return parts[1].get(); }
    IGameEventListener* FileMenu() override { return parts[2].get(); }
    IGameEventListener* ActionMenu() override { return parts[3].get(); }
    IGameEventListener* ViewMenu() override { return parts[4].get(); }
    IGameEventListener* GameMenu() override { return parts[5].get(); }
    IGameEventListener* ToolsMenu() override { return parts[6].get(); }
    IGameEventListener* HelpMenu() override { return parts[7].get(); }

    std::array<std::unique_ptr<EventLog>, 8> parts;
};

class FakeGui : public CGui
{
public:
    explicit FakeGui(QStringList& log) : main(log) {}
    FMainMdi* MainMdi() override { return &main; }
    FakeMain main;
};

class EventFanOut : public RootFixture
{
protected:
    std::unique_ptr<CGui> MakeGui() override
    {
        auto made = std::make_unique<FakeGui>(log);
        gui = made.get();
        return made;
    }

    // The names of the recipients since the last call, in order.
    QString heard()
    {
        QStringList names;
        for (const QString& line : std::as_const(log))
            names << line.section(QLatin1Char(':'), 0, 0);
        log.clear();
        return names.join(QLatin1Char(' '));
    }

    QStringList log;
    FakeGui* gui = nullptr;
};

TEST_F(EventFanOut, theWindowComesFirstThenItsPartsThenListenersAndTheSourceIsSkipped)
{
    CGameEventMgr& events = Root().EventMgr();
    ASSERT_EQ(Root().Gui(), gui);
    auto first = std::make_shared<EventLog>(QStringLiteral("L1"), log);
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
    auto listener = std::make_shared<EventLog>(QStringLiteral("L"), log);
    events.Register(listener);
    events.Register(listener);
    events.NotifyOfNewGame(&gui->main);
    EXPECT_TRUE(heard().endsWith(QStringLiteral("help L L")));

    events.Unregister(listener);
    events.Unregister(listener);
    EXPECT_EQ(errorOf([&] { events.Unregister(listener); }),
              QStringLiteral("1 CVector.RemoveItem: Not Found"));

    // Leaving during a notification shortens the list under the running loop.
    auto leaving = std::make_shared<EventLog>(QStringLiteral("leaving"), log);
    events.Register(leaving);
    events.Register(listener);
    leaving->OnHear = [&] { events.Unregister(leaving); };
    EXPECT_THROW(events.NotifyOfNewContext(nullptr), KorvaneError);
}

class EventsWithoutGui : public RootFixture
{};

TEST_F(EventsWithoutGui, everyNotificationReachesItsOwnListenerMethod)
{
    CGameEventMgr& events = Root().EventMgr();
    EXPECT_EQ(Root().Gui(), nullptr);
    const auto log = std::make_shared<EventLog>();
    events.Register(log);
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
    EXPECT_EQ(log->Lines.join(QLatin1Char(' ')),
              QStringLiteral("ArrowAdd(a) ArrowDelete(a) ArrowEdit(a) GameEdit() GroupAdd(a) "
                             "GroupDelete(a) GroupSwitch(a,b) MapAdd(a) MapDelete(a) MapEdit(a) "
                             "MapSwitch(b,a) NewContext() NewGame() UnitAdd(a) UnitDelete(a) "
                             "UnitEdit(a)"));
}

} // namespace
