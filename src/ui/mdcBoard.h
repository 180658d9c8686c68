#pragma once

#include "core/FBoardMdc.h"
#include "core/IDragDropObserver.h"

#include <QGraphicsView>

class QGraphicsPixmapItem;

// The board window: the active map as a picture. (A first version; the
// interactive board replaces it.)
class mdcBoard : public QGraphicsView, public FBoardMdc, public IDragDropObserver
{
    Q_OBJECT

public:
    explicit mdcBoard(QWidget* parent = nullptr);

    std::int32_t UpdateLock() const override { return m_updateLock; }
    void SetUpdateLock(std::int32_t level) override;
    QImage PaintToPbox() override;

    void ZoomIn();
    void ZoomOut();
    void ZoomReset();
    void ZoomFit();
    double Zoom() const { return m_zoom; }

    void NotifyNullDrop() override { refresh(); }

    void NotifyOfArrowAdd(const QString&) override { refresh(); }
    void NotifyOfArrowDelete(const QString&) override { refresh(); }
    void NotifyOfArrowEdit(const QString&) override { refresh(); }
    void NotifyOfGameEdit() override {}
    void NotifyOfGroupAdd(const QString&) override {}
    void NotifyOfGroupDelete(const QString&) override {}
    void NotifyOfGroupSwitch(const QString&, const QString&) override { refresh(); }
    void NotifyOfMapAdd(const QString&) override {}
    void NotifyOfMapDelete(const QString&) override {}
    void NotifyOfMapEdit(const QString&) override { refresh(); }
    void NotifyOfMapSwitch(const QString&, const QString&) override { refresh(); }
    void NotifyOfNewContext() override { refresh(); }
    void NotifyOfNewGame() override { refresh(); }
    void NotifyOfUnitAdd(const QString&) override { refresh(); }
    void NotifyOfUnitDelete(const QString&) override { refresh(); }
    void NotifyOfUnitEdit(const QString&) override { refresh(); }

private:
    void refresh();
    void setZoom(double zoom);

    QGraphicsPixmapItem* m_picture = nullptr;
    std::int32_t m_updateLock = 0;
    bool m_pending = false;
    double m_zoom = 1.0;
};
