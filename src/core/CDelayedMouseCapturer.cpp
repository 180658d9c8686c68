#include "CDelayedMouseCapturer.h"

#include "core/CClock.h"
#include "core/CKorvane.h"

void CDelayedMouseCapturer::Start(QWindow* window)
{
    std::make_shared<CDelayedMouseCapturer>()->CaptureMouse(window);
}

void CDelayedMouseCapturer::CaptureMouse(QWindow* window)
{
    m_window = window;
    Root().Clock().InvokeAfter(1, shared_from_this());
}

void CDelayedMouseCapturer::Invoke(std::int32_t, const QString&)
{
    if (m_window)
        m_window->setMouseGrabEnabled(true);
}
