#include "CGameEventMgr.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/FMainMdi.h"

namespace {

bool isSource(const IGameEventListener* recipient, const void* source)
{
    return source && (static_cast<const void*>(recipient) == source ||
                      dynamic_cast<const void*>(recipient) == source);
}

template <typename Call>
void deliver(IGameEventListener* recipient, const void* source, const Call& call)
{
    if (recipient && !isSource(recipient, source))
        call(*recipient);
}

// The main window's components in the order they hear a change.
using ComponentGetter = IGameEventListener* (FMainMdi::*)();
constexpr ComponentGetter components[] = {
    &FMainMdi::BoardMdc, &FMainMdi::MapTextWin, &FMainMdi::FileMenu,  &FMainMdi::ActionMenu,
    &FMainMdi::ViewMenu, &FMainMdi::GameMenu,   &FMainMdi::ToolsMenu, &FMainMdi::HelpMenu,
};

} // namespace

void CGameEventMgr::Register(std::shared_ptr<IGameEventListener> listener)
{
    CTraceScope scope("Register", "CGameEventMgr");
    m_listeners.AddItem(std::move(listener));
}

void CGameEventMgr::Unregister(const std::shared_ptr<IGameEventListener>& listener)
{
    CTraceScope scope("Unregister", "CGameEventMgr");
    m_listeners.RemoveItem(listener);
}

template <typename Call> void CGameEventMgr::dispatch(const void* source, const Call& call)
{
    CKorvane* root = RootOrNull();
    CGui* gui = root ? root->Gui() : nullptr;
    if (FMainMdi* main = gui ? gui->MainMdi() : nullptr) {
        deliver(main, source, call);
        // Fetched anew each time: a recipient may rebuild the window's parts.
        for (ComponentGetter component : components)
            deliver((main->*component)(), source, call);
    }
    // The count is taken once. A listener that unregisters during a
    // notification makes the last round fail with "Out Of Bounds".
    const std::int32_t count = m_listeners.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const std::shared_ptr<IGameEventListener> listener = m_listeners.Item(i);
        deliver(listener.get(), source, call);
    }
}

void CGameEventMgr::NotifyOfArrowAdd(const QString& arrowId, const void* source)
{
    CTraceScope scope("NotifyOfArrowAdd", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfArrowAdd(arrowId); });
}

void CGameEventMgr::NotifyOfArrowDelete(const QString& arrowId, const void* source)
{
    CTraceScope scope("NotifyOfArrowDelete", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfArrowDelete(arrowId); });
}

void CGameEventMgr::NotifyOfArrowEdit(const QString& arrowId, const void* source)
{
    CTraceScope scope("NotifyOfArrowEdit", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfArrowEdit(arrowId); });
}

void CGameEventMgr::NotifyOfGameEdit(const void* source)
{
    CTraceScope scope("NotifyOfGameEdit", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfGameEdit(); });
}

void CGameEventMgr::NotifyOfGroupAdd(const QString& groupId, const void* source)
{
    CTraceScope scope("NotifyOfGroupAdd", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfGroupAdd(groupId); });
}

void CGameEventMgr::NotifyOfGroupDelete(const QString& groupId, const void* source)
{
    CTraceScope scope("NotifyOfGroupDelete", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfGroupDelete(groupId); });
}

void CGameEventMgr::NotifyOfGroupSwitch(const QString& previousGroupId, const QString& groupId,
                                        const void* source)
{
    CTraceScope scope("NotifyOfGroupSwitch", "CGameEventMgr");
    dispatch(source,
             [&](IGameEventListener& l) { l.NotifyOfGroupSwitch(previousGroupId, groupId); });
}

void CGameEventMgr::NotifyOfMapAdd(const QString& mapId, const void* source)
{
    CTraceScope scope("NotifyOfMapAdd", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfMapAdd(mapId); });
}

void CGameEventMgr::NotifyOfMapDelete(const QString& mapId, const void* source)
{
    CTraceScope scope("NotifyOfMapDelete", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfMapDelete(mapId); });
}

void CGameEventMgr::NotifyOfMapEdit(const QString& mapId, const void* source)
{
    CTraceScope scope("NotifyOfMapEdit", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfMapEdit(mapId); });
}

void CGameEventMgr::NotifyOfMapSwitch(const QString& previousMapId, const QString& mapId,
                                      const void* source)
{
    CTraceScope scope("NotifyOfMapSwitch", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfMapSwitch(previousMapId, mapId); });
}

void CGameEventMgr::NotifyOfNewContext(const void* source)
{
    CTraceScope scope("NotifyOfNewContext", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfNewContext(); });
}

void CGameEventMgr::NotifyOfNewGame(const void* source)
{
    CTraceScope scope("NotifyOfNewGame", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfNewGame(); });
}

void CGameEventMgr::NotifyOfUnitAdd(const QString& unitId, const void* source)
{
    CTraceScope scope("NotifyOfUnitAdd", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfUnitAdd(unitId); });
}

void CGameEventMgr::NotifyOfUnitDelete(const QString& unitId, const void* source)
{
    CTraceScope scope("NotifyOfUnitDelete", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfUnitDelete(unitId); });
}

void CGameEventMgr::NotifyOfUnitEdit(const QString& unitId, const void* source)
{
    CTraceScope scope("NotifyOfUnitEdit", "CGameEventMgr");
    dispatch(source, [&](IGameEventListener& l) { l.NotifyOfUnitEdit(unitId); });
}
