#include "CControlHost.h"

void CControlHost::Register(const QString& name, QObject* control)
{
    m_controls.insert(name, QPointer<QObject>(control));
}

QObject* CControlHost::GetControl(const QString& name) const
{
    return m_controls.value(name).data();
}
