#include "CControlHost.h"

#include <QTimer>

CControlHost::CControlHost()
{
    auto* alarm = new QTimer(&m_form);
    alarm->setObjectName(QStringLiteral("tmrAlarm"));
    alarm->setInterval(AlarmIntervalMs);
    Register(alarm->objectName(), alarm);
}

void CControlHost::Register(const QString& name, QObject* control)
{
    m_controls.insert(name, QPointer<QObject>(control));
}

QObject* CControlHost::GetControl(const QString& name) const
{
    return m_controls.value(name).data();
}
