#include "CDragDropMgr.h"

#include "core/IDragDropObserver.h"

void CDragDropMgr::StartDrag(Source source, const QString& draggedId, IDragDropObserver* observer)
{
    m_source = source;
    m_draggedId = draggedId;
    m_observer = observer;
}

void CDragDropMgr::Dropped()
{
    m_source = Source::None;
    m_draggedId.clear();
    m_observer = nullptr;
}

void CDragDropMgr::EndDrag()
{
    if (!DragInProgress())
        return;
    IDragDropObserver* observer = m_observer;
    Dropped();
    if (observer)
        observer->NotifyNullDrop();
}
