#pragma once

#include "core/FBoardMdc.h"
#include "core/IDragDropObserver.h"
#include "core/IScrollClient.h"
#include "ui/board/CBoardCursors.h"
#include "ui/board/CBoardZoom.h"

#include <QGraphicsView>
#include <QPoint>

#include <cstdint>
#include <memory>

class CBoardDrag;
class CBoardScene;
class CDigitKeyWatcher;
class CUnit;
class CUnitItem;
class arcArrows;

// The board window: the active map of the active group, seen through a view
// that zooms and scrolls. Three parts share the work:
// - this view is the board's face to the rest of the program (FBoardMdc):
//   zoom, scrolling, keys, the cursor and the hint on an empty board; it
//   hands mouse input to the drag controller and drops from the palette too;
// - CBoardScene holds the picture: map, unit items, arrow canvas, the layer
//   for drawings over the board, the update lock, the hit test and the
//   picture for print and export;
// - CBoardDrag runs the gestures (unit and arrow-end drags, tear-off, map
//   scrolling, hover) as one state machine with one way to cancel.
//
// Following the model: the main window registers this view with the game
// event hub (CGameEventMgr). Every notification arrives here and is handed
// to the scene, which brings one item in step or rebuilds; a new game also
// takes the zoom that game had. The model changes only through the tokens'
// handlers and actions, never from here.
//
// Every position the board hands to the model is a whole board pixel taken
// from the scene, so hit tests and drops land on the same pixel at any zoom.
class mdcBoard : public QGraphicsView,
                 public FBoardMdc,
                 public IDragDropObserver,
                 public IScrollClient
{
    Q_OBJECT

public:
    explicit mdcBoard(QWidget* parent = nullptr);
    ~mdcBoard() override;

    CBoardScene* Scene() const { return m_scene; }
    CBoardDrag* Drag() const { return m_drag; }

    std::int32_t UpdateLock() const override;
    void SetUpdateLock(std::int32_t level) override;
    QImage PaintToPbox() override;

    void ZoomIn();
    void ZoomOut();
    void ZoomReset();
    void ZoomFit();
    double Zoom() const { return m_zoom.Scale(); }

    // The scene's hit test: the first unit of the shown map, in model order,
    // whose token region holds the board pixel (edges included).
    std::shared_ptr<CUnit> HitTest(std::int32_t x, std::int32_t y,
                                   const QString& excludeId = QString()) const;
    CUnitItem* ItemFor(const QString& unitId) const;
    arcArrows* Arrows() const;
    tBoardCursor BoardCursor() const { return m_cursor; }
    // How many full rebuilds the board has made.
    int Rebuilds() const;

    // A drop of the palette's token at a board pixel; false when no palette
    // drag is under way, the pixel is off the map or the token is not the module's.
    bool DropToken(const QString& tokenId, QPoint board);

    void NotifyNullDrop() override;

    // The platform helper's scroll calls land here: a line is a scroll
    // bar's single step, a page its page step.
    void ScrollLines(int dx, int dy) override;
    void ScrollPages(int dx, int dy) override;

    void NotifyOfArrowAdd(const QString& id) override { followArrow("NotifyOfArrowAdd", id); }
    void NotifyOfArrowDelete(const QString& id) override { followArrow("NotifyOfArrowDelete", id); }
    void NotifyOfArrowEdit(const QString& id) override { followArrow("NotifyOfArrowEdit", id); }
    void NotifyOfGroupSwitch(const QString&, const QString&) override;
    void NotifyOfMapEdit(const QString& mapId) override;
    void NotifyOfMapSwitch(const QString&, const QString&) override;
    void NotifyOfNewContext() override;
    void NotifyOfNewGame() override;
    void NotifyOfUnitAdd(const QString& id) override { followUnit("NotifyOfUnitAdd", id); }
    void NotifyOfUnitDelete(const QString& id) override { followUnit("NotifyOfUnitDelete", id); }
    void NotifyOfUnitEdit(const QString& id) override { followUnit("NotifyOfUnitEdit", id); }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Traces a model notification and hands it to the scene.
    void followUnit(const char* method, const QString& id);
    void followArrow(const char* method, const QString& id);
    // The words shown on the empty board while no game is open.
    static QString emptyHint();
    void setBoardCursor(tBoardCursor cursor);
    void applyZoom(double scale, const QPointF& viewAnchor);

    CBoardScene* m_scene;
    CBoardDrag* m_drag;
    CDigitKeyWatcher* m_digits;
    CBoardZoom m_zoom;
    tBoardCursor m_cursor = tBoardCursor::CursorNormal;
};
