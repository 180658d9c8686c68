#include "CClock.h"

#include "core/CControlHost.h"
#include "core/CDebug.h"
#include "core/CKorvane.h"
#include "core/KorvaneError.h"

#include <QDateTime>
#include <QTimer>

#include <chrono>
#include <exception>

namespace {

using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, CClock::TicksPerSecond>>;

std::int64_t counterTicks()
{
    return std::chrono::duration_cast<Ticks>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// A callback failed inside a timer event, where nobody above can catch it:
// trace it and let the remaining events run.
void reportFailure(const char* what)
{
    const QString text = QStringLiteral("Clock event failed: ") + QString::fromUtf8(what);
    if (CKorvane* root = RootOrNull(); root && root->TracePtr())
        root->TracePtr()->DenoteMethod(text);
    qWarning("%s", qUtf8Printable(text));
}

} // namespace

CClock::CClock(CControlHost& controls)
{
    // The base is the whole seconds from 2000-01-01 to the moment the counter
    // started, plus the counter's reading now.
    const std::int64_t counter = counterTicks();
    const QDateTime counterStart =
        QDateTime::currentDateTime().addMSecs(-counter / (TicksPerSecond / 1000));
    const QDateTime epoch(QDate(2000, 1, 1), QTime(0, 0));
    m_base = epoch.secsTo(counterStart) * TicksPerSecond + counter;

    m_timer = qobject_cast<QTimer*>(controls.GetControl(QStringLiteral("tmrAlarm")));
    if (!m_timer)
        throw KorvaneError(5, QStringLiteral("CClock.Constructor"),
                           QStringLiteral("The alarm timer is missing"));
    m_timer->stop();
    m_connection = QObject::connect(m_timer.data(), &QTimer::timeout, [this] { alarm(); });
}

CClock::~CClock()
{
    *m_alive = false;
    QObject::disconnect(m_connection);
    if (m_timer)
        m_timer->stop();
}

std::int64_t CClock::GetTimestamp() const
{
    return m_base + counterTicks();
}

void CClock::InvokeAfter(std::int32_t ms, std::shared_ptr<IAsyncEvent> target,
                         std::int32_t argument, const QString& text)
{
    if (!target)
        return;
    auto event = std::make_shared<CClockEvent>();
    event->Due = GetTimestamp() + std::int64_t(ms) * (TicksPerSecond / 1000);
    event->Target = std::move(target);
    event->Argument = argument;
    event->Text = text;

    // Before the first event due strictly later, so equal due times keep
    // their scheduling order.
    std::int32_t at = 1;
    while (at <= m_queue.Count() && m_queue.Item(at)->Due <= event->Due)
        ++at;
    m_queue.InsertItem(std::move(event), at);

    if (m_queue.Count() == 1 && m_timer && !m_timer->isActive())
        m_timer->start();
}

void CClock::alarm()
{
    m_timer->stop();
    // A callback further up the stack is spinning the event loop.
    if (m_busy)
        return;
    m_busy = true;

    // Taken out first: events scheduled by the callbacks wait for a later tick.
    const std::int64_t now = GetTimestamp();
    CVector<CClockEvent> due;
    while (m_queue.Count() > 0 && m_queue.Item(1)->Due <= now) {
        due.AddItem(m_queue.Item(1));
        m_queue.DeleteItem(1);
    }

    const std::shared_ptr<bool> alive = m_alive;
    for (std::int32_t i = 1; i <= due.Count(); ++i) {
        try {
            due.Item(i)->Target->Invoke(due.Item(i)->Argument, due.Item(i)->Text);
        } catch (const std::exception& e) {
            reportFailure(e.what());
        }
        // A callback that ended the clock leaves the rest undone.
        if (!*alive)
            return;
    }

    if (m_queue.Count() > 0)
        m_timer->start();
    m_busy = false;
}
