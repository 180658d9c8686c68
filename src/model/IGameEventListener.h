#pragma once

#include <QString>

// Receives the announcements of model changes. Identifiers are passed, not
// objects: a listener looks the object up through Root().Game() itself.
class IGameEventListener
{
public:
    virtual ~IGameEventListener() = default;

    virtual void NotifyOfArrowAdd(const QString& arrowId) = 0;
    virtual void NotifyOfArrowDelete(const QString& arrowId) = 0;
    virtual void NotifyOfArrowEdit(const QString& arrowId) = 0;
    virtual void NotifyOfGameEdit() = 0;
    virtual void NotifyOfGroupAdd(const QString& groupId) = 0;
    virtual void NotifyOfGroupDelete(const QString& groupId) = 0;
    virtual void NotifyOfGroupSwitch(const QString& previousGroupId, const QString& groupId) = 0;
    virtual void NotifyOfMapAdd(const QString& mapId) = 0;
    virtual void NotifyOfMapDelete(const QString& mapId) = 0;
    virtual void NotifyOfMapEdit(const QString& mapId) = 0;
    virtual void NotifyOfMapSwitch(const QString& previousMapId, const QString& mapId) = 0;
    virtual void NotifyOfNewContext() = 0;
    virtual void NotifyOfNewGame() = 0;
    virtual void NotifyOfUnitAdd(const QString& unitId) = 0;
    virtual void NotifyOfUnitDelete(const QString& unitId) = 0;
    virtual void NotifyOfUnitEdit(const QString& unitId) = 0;
};
