#pragma once

#include <QGraphicsObject>

// A layer of drawings over the board: it paints nothing itself and holds the
// items drawn in it. Being a QObject, a QPointer to it notices when the
// board clears its scene and the layer goes with it.
class CBoardLayer : public QGraphicsObject
{
    Q_OBJECT

public:
    explicit CBoardLayer(double z);

    QRectF boundingRect() const override { return QRectF(); }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override {}
};
