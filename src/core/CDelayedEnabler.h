#pragma once

#include "core/IAsyncEvent.h"

#include <QObject>
#include <QPointer>

#include <memory>

// Enables a control once the current event has finished (1 ms later, from the
// clock). A control destroyed in the meantime is left alone.
class CDelayedEnabler : public IAsyncEvent, public std::enable_shared_from_this<CDelayedEnabler>
{
public:
    // Makes a helper that the clock's queue keeps alive until it has run.
    static void Start(QObject* control);

    // The helper must be owned by a shared_ptr: it queues itself.
    void EnableLater(QObject* control);
    void Invoke(std::int32_t argument, const QString& text) override;

private:
    QPointer<QObject> m_control;
};
