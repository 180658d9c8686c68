#pragma once

#include "core/CVector.h"
#include "model/IGameEventListener.h"

#include <QString>

#include <memory>

// Announces every model change: first to the main window and its components
// (fetched from the root's GUI at each call, in a fixed order), then to the
// registered listeners in registration order. The recipient that is the
// source is skipped; the source is compared with the recipient's listener
// address and with the address of its whole object, so passing `this` from
// any class works.
class CGameEventMgr
{
public:
    // Registering twice means hearing everything twice.
    void Register(std::shared_ptr<IGameEventListener> listener);
    // Fails with the vector's "Not Found" for a listener that is not registered.
    void Unregister(const std::shared_ptr<IGameEventListener>& listener);
    std::int32_t ListenerCount() const { return m_listeners.Count(); }

    void NotifyOfArrowAdd(const QString& arrowId, const void* source);
    void NotifyOfArrowDelete(const QString& arrowId, const void* source);
    void NotifyOfArrowEdit(const QString& arrowId, const void* source);
    void NotifyOfGameEdit(const void* source);
    void NotifyOfGroupAdd(const QString& groupId, const void* source);
    void NotifyOfGroupDelete(const QString& groupId, const void* source);
    void NotifyOfGroupSwitch(const QString& previousGroupId, const QString& groupId,
                             const void* source);
    void NotifyOfMapAdd(const QString& mapId, const void* source);
    void NotifyOfMapDelete(const QString& mapId, const void* source);
    void NotifyOfMapEdit(const QString& mapId, const void* source);
    void NotifyOfMapSwitch(const QString& previousMapId, const QString& mapId, const void* source);
    void NotifyOfNewContext(const void* source);
    void NotifyOfNewGame(const void* source);
    void NotifyOfUnitAdd(const QString& unitId, const void* source);
    void NotifyOfUnitDelete(const QString& unitId, const void* source);
    void NotifyOfUnitEdit(const QString& unitId, const void* source);

private:
    template <typename Call> void dispatch(const void* source, const Call& call);

    CVector<IGameEventListener> m_listeners;
};
