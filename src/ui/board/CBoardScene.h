#pragma once

#include "actions/CArrowHandles.h"

#include <QGraphicsScene>
#include <QHash>
#include <QImage>
#include <QPoint>

#include <cstdint>
#include <memory>

class CBoardRenderer;
class CMapPictureItem;
class CUnit;
class CUnitItem;
class CUnitPictureCache;
class IGameContext;
class QGraphicsRectItem;
class arcArrows;

// The board's picture: the map picture, one item per unit of the shown map
// in model order (a later unit drawn over an earlier one), the arrow canvas
// over the units, and a layer on top for whatever other features draw over
// the board. Positions are board pixels; the scene knows nothing of views.
//
// Following the model: the board window (mdcBoard) listens to the game event
// hub and hands every notification to the scene. A unit or arrow notification
// brings that one item in step; a switch of map, group, game or context
// rebuilds everything. While the update lock is held, notifications only mark
// a refresh as pending, and releasing the outermost level rebuilds once.
//
// Drawing over the board without touching the model:
// - OverlayLayer() is an empty item above the arrows. Items made its children
//   are drawn over everything, also into PaintToPbox's picture (print,
//   export, full screen); they survive rebuilds and are their adder's to
//   remove. A unit's picture elsewhere, such as a ghost, is a new
//   CUnitItem(unit, Renderer(), Pictures()) made a child of the layer and
//   moved; it looks like the unit's own item at every zoom.
// - ShowUnitAt shows a unit's own item at another place, and ShowArrowEnd an
//   arrow with one end elsewhere, until RestoreUnit, a notification of that
//   unit or a rebuild puts them back where the model has them.
class CBoardScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit CBoardScene(QObject* parent = nullptr);
    ~CBoardScene() override;

    std::int32_t UpdateLock() const { return m_updateLock; }
    void SetUpdateLock(std::int32_t level);
    // How many full rebuilds the scene has made.
    int Rebuilds() const { return m_rebuilds; }

    // Rebuilds picture, units and arrows for the active map (deferred while locked).
    void Rebuild();
    // The map picture again (deferred while locked).
    void FollowMapEdit();
    // The item of one unit or arrow brought in step (deferred while locked).
    void FollowUnit(const QString& unitId);
    void FollowArrow(const QString& arrowId);

    const std::shared_ptr<IGameContext>& Context() const { return m_context; }
    std::shared_ptr<const CBoardRenderer> Renderer() const { return m_renderer; }
    // The unit items' pictures at the view's scale, shared by every unit item.
    const std::shared_ptr<CUnitPictureCache>& Pictures() const { return m_pictures; }
    // Whether a map is shown (a game is open and has an active map).
    bool ShowsMap() const;
    // Whether a board pixel lies on the map picture.
    bool OnBoard(QPoint p) const;

    // The first unit of the shown map, in model order, whose token region
    // holds the board pixel (edges included), skipping excludeId. The region
    // is taken where the unit's item stands.
    std::shared_ptr<CUnit> HitTest(std::int32_t x, std::int32_t y,
                                   const QString& excludeId = QString()) const;
    CUnitItem* ItemFor(const QString& unitId) const { return m_items.value(unitId); }
    arcArrows* Arrows() const { return m_arrows; }
    QGraphicsItem* OverlayLayer() const { return m_overlay; }

    // The picture at full size: map, units, arrows and the overlay layer.
    QImage PaintToPbox();

    // Shows a unit's picture with its corner at corner, above the other units.
    void ShowUnitAt(const QString& unitId, QPoint corner);
    // Shows an arrow with one end at p (a handle's corner, as the model keeps it).
    void ShowArrowEnd(const QString& arrowId, CArrowHandles::End end, QPoint p);
    // Puts a unit's item (and, for an arrow handle, its arrow) back where the
    // model has it, whatever the update lock.
    void RestoreUnit(const QString& unitId);
    // Marks the token region of an arrow handle as a place to grab; null hides it.
    void ShowGrip(const CUnit* handle);

Q_SIGNALS:
    // The scene was rebuilt: every item is new.
    void Rebuilt();
    // The item of a unit went away (the unit was deleted or replaced).
    void UnitGone(const QString& unitId);
    // A unit, an arrow or the map changed in the model (also while the
    // update lock defers the items): drawings over the board follow it.
    void ModelFollowed();

private:
    // True (and the pending refresh marked) while the update lock holds.
    bool deferred();
    void redrawBackground();
    void rebuildUnits();
    void rebuildArrows();
    void addUnitItem(const std::shared_ptr<CUnit>& unit);
    void syncUnit(const QString& unitId);
    void syncArrow(const QString& arrowId);

    std::shared_ptr<IGameContext> m_context;
    std::shared_ptr<CBoardRenderer> m_renderer;
    // Made anew with the renderer.
    std::shared_ptr<CUnitPictureCache> m_pictures;
    // Items below are owned by the scene.
    CMapPictureItem* m_picture;
    arcArrows* m_arrows = nullptr;
    QGraphicsRectItem* m_grip = nullptr;
    QGraphicsItem* m_overlay;
    QHash<QString, CUnitItem*> m_items;

    std::int32_t m_updateLock = 0;
    bool m_pendingRefresh = false;
    int m_rebuilds = 0;
};
