#pragma once

#include <QHash>
#include <QPointer>
#include <QObject>
#include <QString>

// Named helper objects that services fetch by name (the clock's alarm timer
// is "tmrAlarm"). The host does not own them; a destroyed object reads as null.
class CControlHost
{
public:
    void Register(const QString& name, QObject* control);
    QObject* GetControl(const QString& name) const;

private:
    QHash<QString, QPointer<QObject>> m_controls;
};
