#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

// Named helper objects that services fetch by name. The host owns the
// controls it makes itself (the clock's alarm timer "tmrAlarm", ticking
// every AlarmIntervalMs while enabled); objects registered from outside stay
// their owner's, and a destroyed one reads as null.
class CControlHost
{
public:
    static constexpr int AlarmIntervalMs = 10;

    CControlHost();
    CControlHost(const CControlHost&) = delete;
    CControlHost& operator=(const CControlHost&) = delete;

    void Register(const QString& name, QObject* control);
    QObject* GetControl(const QString& name) const;

private:
    // Parent of the host's own controls.
    QObject m_form;
    QHash<QString, QPointer<QObject>> m_controls;
};
