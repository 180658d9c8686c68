#pragma once

#include "core/IDragDropObserver.h"
#include "ui/board/CBoardCursors.h"

#include <QObject>
#include <QPoint>
#include <QString>

#include <memory>

class CBoardScene;
class CUnit;
class IToken;
class QGraphicsView;
class QMouseEvent;
class QTimer;

// The board's mouse gestures as one state machine:
//
//   Idle --left press on a unit--> Pressed --moved far enough--> DraggingUnit
//                                                            or DraggingArrowEnd
//   Idle --Ctrl + left press on empty map--> ScrollingMap
//
// A left release over the map drops the dragged unit through its token
// (a move, or a merge onto a like stack); a release that ends a map scroll
// goes back to Idle. Every other way out runs through Cancel, which names
// its reason and puts back whatever was shown ahead of the model. While Idle,
// moves are hover: the cursor, the tool tip and the arrow handle's grip.
//
// Drops of tokens from the palette come here too, so that every gesture that
// places a counter turns a pointer position into a unit corner the same way.
// The model changes only through the tokens' handlers.
class CBoardDrag : public QObject, public IDragDropObserver
{
    Q_OBJECT

public:
    enum class State
    {
        Idle,
        Pressed,
        DraggingUnit,
        DraggingArrowEnd,
        ScrollingMap
    };
    enum class CancelReason
    {
        Escape,
        OtherButton,
        FocusLost,
        ModelChanged,
        // A release that dropped nothing: a click, off the map, a frozen map.
        NoDrop
    };

    CBoardDrag(QGraphicsView& view, CBoardScene& scene);
    ~CBoardDrag() override;

    State Current() const { return m_state; }

    // Mouse input from the view's viewport.
    void Press(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    // Ends the gesture under way; nothing happens while Idle.
    void Cancel(CancelReason reason);
    // A drag from the board ended with nobody taking it: the unit goes back.
    void NotifyNullDrop() override;

    // Whether a palette drag may drop at this board pixel.
    bool AcceptsToken(QPoint board) const;
    // A drop of the palette's token at a board pixel; false when no palette
    // drag is under way, the pixel is off the map or the token is not the module's.
    bool DropToken(const QString& tokenId, QPoint board);

    // The board pixel under a point of the view's viewport.
    static QPoint BoardPixel(const QGraphicsView& view, const QPointF& viewPoint);
    // Where a unit's picture goes so that its token region is centred on p.
    static QPoint CentredOn(const IToken& token, QPoint p);

Q_SIGNALS:
    void CursorWanted(tBoardCursor cursor);

private:
    void pressUnit(const QMouseEvent& event, const std::shared_ptr<CUnit>& unit, QPoint p);
    void startScroll();
    void endScroll();
    void drop(const QMouseEvent& event);
    void dropUnit(const QString& unitId, QPoint p);
    void dragStep(QPoint p);
    void scrollStep();
    // One line toward the signs of dx and dy.
    static void scrollToward(int dx, int dy);
    // Scrolls a line toward the edge the dragging pointer is near, and lets
    // the dragged unit follow; false when the pointer is near no edge.
    bool edgeScroll();
    void hover(QPoint p);

    QGraphicsView& m_view;
    CBoardScene& m_scene;
    QTimer* m_edgeTimer;

    State m_state = State::Idle;
    // The pressed or dragged unit, and where in the view the press was.
    QString m_unitId;
    QPoint m_pressPoint;

    QPoint m_savedCursorPos;
    double m_lastScrollTime = 0;
    bool m_inMove = false;
};
