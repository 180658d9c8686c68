#include "CDelayedMouseCapturer.h"

#include "core/CClock.h"
#include "core/CKorvane.h"

#include <QGuiApplication>

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
    // A button released before the grab came would leave the mouse grabbed
    // with no release left to end it.
    if (m_window && QGuiApplication::mouseButtons() != Qt::NoButton)
        m_window->setMouseGrabEnabled(true);
}
