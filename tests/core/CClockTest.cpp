#include "core/CClock.h"

#include "core/CDelayedEnabler.h"
#include "core/CGameTerminator.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/CWinApi.h"
#include "core/IScrollClient.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "support/RootFixture.h"

#include <QAction>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <stdexcept>

namespace {

// Logs its argument when run, then does whatever the test asks of it.
struct Probe : IAsyncEvent
{
    Probe(QStringList& log, std::function<void()> also) : log(log), also(std::move(also)) {}
    void Invoke(std::int32_t argument, const QString& text) override
    {
        log << text + QString::number(argument);
        if (also)
            also();
    }
    QStringList& log;
    std::function<void()> also;
};

using Clock = RootFixture;

void schedule(QStringList& log, std::int32_t ms, std::int32_t argument, const QString& text,
              std::function<void()> also = {})
{
    Root().Clock().InvokeAfter(ms, std::make_shared<Probe>(log, std::move(also)), argument, text);
}

} // namespace

TEST_F(Clock, RunsEventsInDueOrderFromLaterTicksOnly)
{
    QStringList log, expected;
    schedule(log, 40, 0, QStringLiteral("late"));
    // Calls microseconds apart share due times; they must keep their order.
    for (int i = 1; i <= 30; ++i) {
        schedule(log, 20, i, QStringLiteral("e"));
        expected << QStringLiteral("e") + QString::number(i);
    }
    expected << QStringLiteral("late0");
    schedule(log, 0, 0, QStringLiteral("now"));
    EXPECT_TRUE(log.isEmpty()) << "0 ms still waits for a tick";
    ASSERT_TRUE(QTest::qWaitFor([&] { return log.size() == 32; }));
    EXPECT_EQ(log.first(), QStringLiteral("now0"));
    EXPECT_EQ(log.mid(1), expected);

    // Scheduled from a callback: runs only after the event loop got control back.
    log.clear();
    bool loopRan = false;
    schedule(log, 0, 1, QStringLiteral("outer"), [&] {
        QTimer::singleShot(0, [&] { loopRan = true; });
        schedule(log, 0, 2, QStringLiteral("inner"), [&] { log << (loopRan ? "after" : "same"); });
    });
    // A callback that spins the event loop gets no nested pass.
    schedule(log, 30, 3, QStringLiteral("spin"), [&] {
        schedule(log, 0, 4, QStringLiteral("queued"));
        QTest::qWait(60);
        log << QStringLiteral("spun");
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return log.size() == 6; }));
    EXPECT_EQ(log, QStringList({"outer1", "inner2", "after", "spin3", "spun", "queued4"}));

    // A failing callback does not stop the clock.
    log.clear();
    schedule(log, 0, 5, QStringLiteral("fails"), [] { throw std::runtime_error("broken"); });
    schedule(log, 5, 6, QStringLiteral("next"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return log.size() == 2; }));
    EXPECT_EQ(log, QStringList({"fails5", "next6"}));

    // Delayed enabling; a control destroyed meanwhile is skipped.
    QAction action;
    action.setEnabled(false);
    CDelayedEnabler::Start(&action);
    auto doomed = std::make_unique<QAction>();
    CDelayedEnabler::Start(doomed.get());
    doomed.reset();
    EXPECT_FALSE(action.isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return action.isEnabled(); }));

    // Events still queued when the root goes are dropped unrun, with their targets.
    auto held = std::make_shared<Probe>(log, nullptr);
    std::weak_ptr<Probe> watch = held;
    Root().Clock().InvokeAfter(5000, std::move(held));
    log.clear();
    Root().Dispose();
    EXPECT_TRUE(watch.expired());
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(Clock, TerminatorTearsGameDownInSlicesBetweenEvents)
{
    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    for (int g = 0; g < 20; ++g) {
        auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        for (int m = 0; m < 100; ++m)
            group->Maps().AddItem(std::make_shared<CMap>(CUtility::GenerateId(), group->Id()));
        game->MapGroups().AddItem(group);
    }
    std::weak_ptr<CGame> watch = game;

    // Every reading of this time source costs 0.3 ms: 334 maps fill a slice.
    auto fakeNow = std::make_shared<std::chrono::steady_clock::time_point>();
    CGameTerminator::Start(std::move(game),
                           [fakeNow] { return *fakeNow += std::chrono::microseconds(300); });

    // A 0 ms timer keeps firing while the game goes and counts what is left.
    std::set<int> seen;
    QTimer observer;
    QObject::connect(&observer, &QTimer::timeout, [&] {
        if (const auto left = watch.lock())
            seen.insert(left->GetMapCount());
    });
    observer.start(0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return watch.expired(); }, 5000));
    EXPECT_EQ(seen, std::set<int>({2000, 1666, 1332, 998, 664, 330}));

    // A game without groups is held, not scheduled.
    CGameTerminator::Start(std::make_shared<CGame>(CUtility::GenerateId()));
    EXPECT_EQ(Root().Clock().QueuedCount(), 0);
}

TEST(WinApi, DigitKeysAndScrollingReachTheirTargets)
{
    CWinApi api;
    const auto pressed = [&api](std::initializer_list<std::pair<int, bool>> keys) {
        api.ReleaseAllKeys();
        for (const auto& [key, keypad] : keys)
            api.KeyDown(key, keypad);
        return api.GetPressedNumeric();
    };
    // The smallest digit held counts, 0 as ten; the board checks single keys.
    EXPECT_EQ(pressed({{Qt::Key_A, false}}), 0);
    EXPECT_EQ(pressed({{Qt::Key_5, false}, {Qt::Key_3, true}}), 3);
    EXPECT_EQ(pressed({{Qt::Key_9, false}, {Qt::Key_0, true}}), 9);
    // Releasing the pad key leaves the row key of the same digit held.
    pressed({{Qt::Key_4, true}, {Qt::Key_4, false}});
    api.KeyUp(Qt::Key_4, true);
    EXPECT_EQ(api.GetPressedNumeric(), 4);
    api.KeyUp(Qt::Key_4, false);
    EXPECT_EQ(api.GetPressedNumeric(), 0);

    struct Scroller : IScrollClient
    {
        void ScrollLines(int dx, int dy) override
        {
            log << QStringLiteral("L%1,%2").arg(dx).arg(dy);
        }
        void ScrollPages(int dx, int dy) override
        {
            log << QStringLiteral("P%1,%2").arg(dx).arg(dy);
        }
        QStringList log;
    } scroller;
    api.WndScrollDown(); // no client: nothing happens
    api.SetScrollClient(&scroller);
    for (auto scroll :
         {&CWinApi::WndScrollDown, &CWinApi::WndScrollDownLarge, &CWinApi::WndScrollUp,
          &CWinApi::WndScrollUpLarge, &CWinApi::WndScrollLeft, &CWinApi::WndScrollLeftLarge,
          &CWinApi::WndScrollRight, &CWinApi::WndScrollRightLarge})
        (api.*scroll)();
    EXPECT_EQ(scroller.log,
              QStringList({"L0,1", "P0,1", "L0,-1", "P0,-1", "L-1,0", "P-1,0", "L1,0", "P1,0"}));
}
