#pragma once

#include "core/IAsyncEvent.h"

#include <QPointer>
#include <QWindow>

#include <memory>

// Grabs the mouse for a window once the current event has been processed
// (1 ms later, from the clock), if a mouse button is still down then. A
// window destroyed in the meantime is ignored.
class CDelayedMouseCapturer : public IAsyncEvent,
                              public std::enable_shared_from_this<CDelayedMouseCapturer>
{
public:
    // Makes a helper that the clock's queue keeps alive until it has run.
    static void Start(QWindow* window);

    // The helper must be owned by a shared_ptr: it queues itself.
    void CaptureMouse(QWindow* window);
    void Invoke(std::int32_t argument, const QString& text) override;

private:
    QPointer<QWindow> m_window;
};
