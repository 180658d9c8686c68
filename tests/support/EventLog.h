#pragma once

#include "model/IGameEventListener.h"

#include <QStringList>

// Writes "Event(arguments)" for every announcement it hears into Lines, or
// "name:Event(arguments)" into a log shared with other listeners. Base is the
// listener interface or a window interface deriving from it.
template <typename Base> class EventLogOf : public Base
{
public:
    EventLogOf() = default;
    EventLogOf(const QString& name, QStringList& shared)
        : m_prefix(name + QLatin1Char(':')), m_log(&shared)
    {}

    QStringList Lines;

    void NotifyOfArrowAdd(const QString& id) override { hear("ArrowAdd", id); }
    void NotifyOfArrowDelete(const QString& id) override { hear("ArrowDelete", id); }
    void NotifyOfArrowEdit(const QString& id) override { hear("ArrowEdit", id); }
    void NotifyOfGameEdit() override { hear("GameEdit", QString()); }
    void NotifyOfGroupAdd(const QString& id) override { hear("GroupAdd", id); }
    void NotifyOfGroupDelete(const QString& id) override { hear("GroupDelete", id); }
    void NotifyOfGroupSwitch(const QString& a, const QString& b) override
    {
        hear("GroupSwitch", a + QLatin1Char(',') + b);
    }
    void NotifyOfMapAdd(const QString& id) override { hear("MapAdd", id); }
    void NotifyOfMapDelete(const QString& id) override { hear("MapDelete", id); }
    void NotifyOfMapEdit(const QString& id) override { hear("MapEdit", id); }
    void NotifyOfMapSwitch(const QString& a, const QString& b) override
    {
        hear("MapSwitch", a + QLatin1Char(',') + b);
    }
    void NotifyOfNewContext() override { hear("NewContext", QString()); }
    void NotifyOfNewGame() override { hear("NewGame", QString()); }
    void NotifyOfUnitAdd(const QString& id) override { hear("UnitAdd", id); }
    void NotifyOfUnitDelete(const QString& id) override { hear("UnitDelete", id); }
    void NotifyOfUnitEdit(const QString& id) override { hear("UnitEdit", id); }

private:
    void hear(const char* event, const QString& arguments)
    {
        *m_log << m_prefix + QLatin1String(event) + QLatin1Char('(') + arguments + QLatin1Char(')');
    }

    QString m_prefix;
    QStringList* m_log = &Lines;
};

using EventLog = EventLogOf<IGameEventListener>;
