#pragma once

#include <QString>

class IDragDropObserver;

// The state of the one drag that may be under way: who started it (the token
// palette or the board) and what is dragged (a token id from the palette, a
// unit id from the board).
class CDragDropMgr
{
public:
    enum class Source
    {
        None,
        Palette,
        Board
    };

    // Starts a drag; observer (may be null) hears of a drag that ends unused.
    void StartDrag(Source source, const QString& draggedId, IDragDropObserver* observer);
    // A target took the drop: the drag is over and nobody is told.
    void Dropped();
    // The drag ended; when no target took it, the observer is told.
    void EndDrag();

    bool DragInProgress() const { return m_source != Source::None; }
    Source DragSource() const { return m_source; }
    const QString& DraggedId() const { return m_draggedId; }

private:
    Source m_source = Source::None;
    QString m_draggedId;
    IDragDropObserver* m_observer = nullptr;
};
