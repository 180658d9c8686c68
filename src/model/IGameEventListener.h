#pragma once

#include <QString>

// Receives the announcements of model changes. Each does nothing unless a
// listener overrides it, so a listener names only the changes it follows.
// Identifiers are passed, not objects: a listener looks the object up
// through Root().Game() itself.
class IGameEventListener
{
public:
    virtual ~IGameEventListener() = default;

    virtual void NotifyOfArrowAdd(const QString& /*arrowId*/) {}
    virtual void NotifyOfArrowDelete(const QString& /*arrowId*/) {}
    virtual void NotifyOfArrowEdit(const QString& /*arrowId*/) {}
    virtual void NotifyOfGameEdit() {}
    virtual void NotifyOfGroupAdd(const QString& /*groupId*/) {}
    virtual void NotifyOfGroupDelete(const QString& /*groupId*/) {}
    virtual void NotifyOfGroupSwitch(const QString& /*previousGroupId*/, const QString& /*groupId*/)
    {}
    virtual void NotifyOfMapAdd(const QString& /*mapId*/) {}
    virtual void NotifyOfMapDelete(const QString& /*mapId*/) {}
    virtual void NotifyOfMapEdit(const QString& /*mapId*/) {}
    virtual void NotifyOfMapSwitch(const QString& /*previousMapId*/, const QString& /*mapId*/) {}
    virtual void NotifyOfNewContext() {}
    virtual void NotifyOfNewGame() {}
    virtual void NotifyOfUnitAdd(const QString& /*unitId*/) {}
    virtual void NotifyOfUnitDelete(const QString& /*unitId*/) {}
    virtual void NotifyOfUnitEdit(const QString& /*unitId*/) {}
};
