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

    // The recipients since the last call, in order, then what they heard.
    QString heard()
    {
        QStringList names, events;
        for (const QString& line : std::as_const(log)) {
            names << line.section(QLatin1Char(':'), 0, 0);
            events << line.section(QLatin1Char(':'), 1);
        }
        events.removeDuplicates();
        log.clear();
        return names.join(QLatin1Char(' ')) + QStringLiteral(" / ") + events.join(QLatin1Char(' '));
    }

    QStringList log;
    FakeGui* gui = nullptr;
};

// Each notification reaches its own listener method.
TEST_F(EventFanOut, theWindowComesFirstThenItsPartsThenListenersAndTheSourceIsSkipped)
{
    CGameEventMgr& events = Root().EventMgr();
    auto first = std::make_shared<EventLog>(QStringLiteral("L1"), log);
    auto second = std::make_shared<OffsetRecorder>(QStringLiteral("L2"), log);
    auto gone = std::make_shared<EventLog>(QStringLiteral("L3"), log);
    events.Register(first);
    events.Register(gone);
    events.Register(second);
    events.Unregister(gone); // hears nothing from here on
    const QString parts = QStringLiteral("board text file action view game tools help");

    events.NotifyOfUnitAdd(QStringLiteral("U"), nullptr);
    EXPECT_EQ(heard(), "main " + parts + " L1 L2 / UnitAdd(U)");

    // Each recipient passing itself, whole or as its listener part, is left out.
    events.NotifyOfMapEdit(QStringLiteral("M"), &gui->main);
    EXPECT_EQ(heard(), parts + " L1 L2 / MapEdit(M)");
    events.NotifyOfArrowDelete(QStringLiteral("A"), static_cast<IGameEventListener*>(&gui->main));
    EXPECT_EQ(heard(), parts + " L1 L2 / ArrowDelete(A)");
    events.NotifyOfArrowEdit(QStringLiteral("A"), gui->main.parts[7].get());
    EXPECT_EQ(heard(), QStringLiteral("main board text file action view game tools L1 L2 / "
                                      "ArrowEdit(A)"));
    events.NotifyOfMapDelete(QStringLiteral("M"), first.get());
    EXPECT_EQ(heard(), "main " + parts + " L2 / MapDelete(M)");
    events.NotifyOfGroupDelete(QStringLiteral("G"), second.get());
    EXPECT_EQ(heard(), "main " + parts + " L1 / GroupDelete(G)");
    events.NotifyOfMapSwitch(QStringLiteral("M"), QStringLiteral("N"),
                             static_cast<IGameEventListener*>(second.get()));
    EXPECT_EQ(heard(), "main " + parts + " L1 / MapSwitch(M,N)");

    // Parts are fetched at every call: a missing one is passed over.
    gui->main.parts[1].reset();
    events.NotifyOfGameEdit(gui->main.parts[0].get());
    EXPECT_EQ(heard(), QStringLiteral("main file action view game tools help L1 L2 / GameEdit()"));
}

} // namespace
