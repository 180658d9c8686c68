#include "CDelayedEnabler.h"

#include "core/CClock.h"
#include "core/CKorvane.h"

#include <QVariant>

void CDelayedEnabler::Start(QObject* control)
{
    std::make_shared<CDelayedEnabler>()->EnableLater(control);
}

void CDelayedEnabler::EnableLater(QObject* control)
{
    m_control = control;
    Root().Clock().InvokeAfter(1, shared_from_this());
}

void CDelayedEnabler::Invoke(std::int32_t, const QString&)
{
    if (m_control)
        m_control->setProperty("enabled", QVariant(true));
}
