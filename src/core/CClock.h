#pragma once

#include "core/CClockEvent.h"
#include "core/CVector.h"

#include <QMetaObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <memory>

class CControlHost;
class IAsyncEvent;

// Deferred calls on the one UI thread. Events wait in a queue ordered by due
// time (equal due times in scheduling order) and run from the host's
// "tmrAlarm" timer, which runs only while something is queued. Events still
// queued when the clock goes are dropped without being run.
class CClock
{
public:
    // Timestamps are fixed-point seconds with four decimals.
    static constexpr std::int64_t TicksPerSecond = 10000;

    explicit CClock(CControlHost& controls);
    ~CClock();
    CClock(const CClock&) = delete;
    CClock& operator=(const CClock&) = delete;

    // Calls target->Invoke(argument, text) from a later tick, at the earliest
    // after ms milliseconds; never from inside this call. A null target is ignored.
    void InvokeAfter(std::int32_t ms, std::shared_ptr<IAsyncEvent> target,
                     std::int32_t argument = 0, const QString& text = QString());
    // Ten-thousandths of a second; only differences carry meaning.
    std::int64_t GetTimestamp() const;

    std::int32_t QueuedCount() const { return m_queue.Count(); }

private:
    void alarm();

    std::int64_t m_base = 0;
    CVector<CClockEvent> m_queue;
    QPointer<QTimer> m_timer; // owned by the control host
    QMetaObject::Connection m_connection;
    bool m_busy = false;
    // Reset when the clock goes, so a pass whose callback ended the clock stops.
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};
