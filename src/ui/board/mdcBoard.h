#pragma once

#include "core/FBoardMdc.h"
#include "core/IDragDropObserver.h"
#include "core/IScrollClient.h"
#include "ui/board/CBoardCursors.h"
#include "ui/board/CBoardZoom.h"

#include <QGraphicsView>
#include <QHash>
#include <QPoint>

#include <cstdint>
#include <memory>

class CBoardRenderer;
class CDigitKeyWatcher;
class CMapPictureItem;
class CUnit;
class CUnitItem;
class IGameContext;
class IToken;
class QGraphicsRectItem;
class QTimer;
class arcArrows;

// The board window: the active map of the active group, with one item per
// unit and the arrow canvas over them. Mouse and keys become scrolling,
// drags, drops and calls on the units' tokens; the model changes only through
// the tokens' handlers and actions, and the board follows the notifications.
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

    std::int32_t UpdateLock() const override { return m_updateLock; }
    void SetUpdateLock(std::int32_t level) override;
    QImage PaintToPbox() override;

    void ZoomIn();
    void ZoomOut();
    void ZoomReset();
    void ZoomFit();
    double Zoom() const { return m_zoom.Scale(); }

    // The first unit of the shown map, in model order, whose token region
    // holds the board pixel (edges included), skipping excludeId.
    std::shared_ptr<CUnit> HitTest(std::int32_t x, std::int32_t y,
                                   const QString& excludeId = QString()) const;
    CUnitItem* ItemFor(const QString& unitId) const { return m_items.value(unitId); }
    arcArrows* Arrows() const { return m_arrows; }
    const std::shared_ptr<CBoardRenderer>& Renderer() const { return m_renderer; }
    tBoardCursor BoardCursor() const { return m_cursor; }
    // How many full rebuilds the board has made.
    int Rebuilds() const { return m_rebuilds; }

    // A drop of the palette's token at a board pixel; false when no palette
    // drag is under way, the pixel is off the map or the token is not the module's.
    bool DropToken(const QString& tokenId, QPoint board);

    void NotifyNullDrop() override;

    // The platform helper's scroll calls land here: a line is a scroll
    // bar's single step, a page its page step.
    void ScrollLines(int dx, int dy) override;
    void ScrollPages(int dx, int dy) override;

    void NotifyOfArrowAdd(const QString& id) override
    {
        follow("NotifyOfArrowAdd", &mdcBoard::syncArrow, id);
    }
    void NotifyOfArrowDelete(const QString& id) override
    {
        follow("NotifyOfArrowDelete", &mdcBoard::syncArrow, id);
    }
    void NotifyOfArrowEdit(const QString& id) override
    {
        follow("NotifyOfArrowEdit", &mdcBoard::syncArrow, id);
    }
    void NotifyOfGroupSwitch(const QString&, const QString&) override { rebuild(); }
    void NotifyOfMapEdit(const QString& mapId) override;
    void NotifyOfMapSwitch(const QString&, const QString&) override { rebuild(); }
    void NotifyOfNewContext() override { rebuild(); }
    void NotifyOfNewGame() override;
    void NotifyOfUnitAdd(const QString& id) override
    {
        follow("NotifyOfUnitAdd", &mdcBoard::syncUnit, id);
    }
    void NotifyOfUnitDelete(const QString& id) override
    {
        follow("NotifyOfUnitDelete", &mdcBoard::syncUnit, id);
    }
    void NotifyOfUnitEdit(const QString& id) override
    {
        follow("NotifyOfUnitEdit", &mdcBoard::syncUnit, id);
    }

Q_SIGNALS:
    // Layers over the board (the changes overlay, the replay) follow these:
    // the scene was cleared and filled again, or the model changed.
    void Rebuilt();
    void ModelFollowed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // True (and the pending refresh marked) while the update lock holds.
    bool deferred();
    void rebuild();
    void redrawBackground();
    // The words shown on the empty board while no game is open.
    static QString emptyHint();
    void rebuildUnits();
    void rebuildArrows();
    void addUnitItem(const std::shared_ptr<CUnit>& unit);
    void syncUnit(const QString& unitId);
    void syncArrow(const QString& arrowId);
    // Traces a model notification and, unless the update lock defers it,
    // brings the board's item for id in step.
    void follow(const char* method, void (mdcBoard::*sync)(const QString&), const QString& id);

    QPointF toBoard(const QPointF& viewPoint) const;
    static QPoint boardPixel(const QPointF& boardPoint);
    // Whether a board pixel lies on the map picture.
    bool onBoard(QPoint p) const;
    // Where a unit's picture goes so that its token region is centred on p.
    static QPoint centredOn(const IToken& token, QPoint p);

    QString tearOff(const std::shared_ptr<CUnit>& unit, int amount, QPoint p);
    void dragStep(QPoint p);
    void dropUnit(const QString& unitId, QPoint p);
    void endUnitDrag(QMouseEvent* event);
    // Ends a unit drag as one that nobody took: the unit goes back.
    void cancelUnitDrag();
    void scrollStep();
    void hover(QPoint p);
    // Scrolls a line toward the edge the dragging pointer is near, and lets
    // the dragged unit follow; false when the pointer is near no edge.
    bool edgeScroll();
    void setBoardCursor(tBoardCursor cursor);
    void applyZoom(double scale, const QPointF& viewAnchor);

    std::shared_ptr<IGameContext> m_context;
    std::shared_ptr<CBoardRenderer> m_renderer;
    CMapPictureItem* m_picture;
    arcArrows* m_arrows;
    // Shows where an arrow end can be taken, while the pointer is over it.
    QGraphicsRectItem* m_grip;
    QTimer* m_edgeTimer;
    QHash<QString, CUnitItem*> m_items;
    CDigitKeyWatcher* m_digits;
    CBoardZoom m_zoom;

    std::int32_t m_updateLock = 0;
    bool m_pendingRefresh = false;
    int m_rebuilds = 0;

    // A unit drag from the board: the unit, where the press was, and whether
    // the pointer has gone far enough to count as a drag.
    QString m_dragUnitId;
    QPoint m_pressPoint;
    bool m_dragMoved = false;

    bool m_mapScroll = false;
    QPoint m_savedCursorPos;
    double m_lastScrollTime = 0;
    bool m_inMouseMove = false;
    tBoardCursor m_cursor = tBoardCursor::CursorNormal;
};
