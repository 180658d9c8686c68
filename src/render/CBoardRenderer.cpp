#include "CBoardRenderer.h"

#include "actions/CArrowHandles.h"
#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "core/CTraceScope.h"
#include "core/KorvaneError.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

int clamped(std::int32_t value)
{
    return std::clamp(value, -CBoardRenderer::CoordinateLimit, CBoardRenderer::CoordinateLimit);
}

// A caption on one line: line breaks would push the label over the next unit.
QString singleLine(const QString& caption)
{
    QString line = caption;
    for (QChar& c : line) {
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t'))
            c = QLatin1Char(' ');
    }
    return line;
}

[[noreturn]] void failRender(const QString& description)
{
    throw KorvaneError(5, QStringLiteral("CBoardRenderer.RenderMap"), description);
}

} // namespace

CBoardRenderer::CBoardRenderer(std::shared_ptr<IGameContext> context)
    : m_context(std::move(context))
{
    if (!m_context)
        return;
    m_labelFont = MakeLabelFont(m_context->FontName(), m_context->FontSize());
    m_labelMetrics = QFontMetrics(m_labelFont);
    m_foreColor = ToColor(m_context->LabelForeColor());
    m_backColor = ToColor(m_context->LabelBackColor());
    m_movedColor = ToColor(m_context->LabelMovedColor());
    m_transparentLabels = m_context->HasTransparentLabel();
    for (const auto& token : m_context->Tokens()) {
        if (CArrowHandles::IsArrowToken(*token)) {
            m_arrowOrigin = QPoint(token->RegionLeft() + token->RegionWidth() / 2,
                                   token->RegionTop() + token->RegionHeight() / 2);
            break;
        }
    }
}

QPointF CBoardRenderer::headPoint(const CArrow& arrow) const
{
    return QPointF(clamped(arrow.HeadX()), clamped(arrow.HeadY())) + m_arrowOrigin;
}

QPointF CBoardRenderer::tailPoint(const CArrow& arrow) const
{
    return QPointF(clamped(arrow.TailX()), clamped(arrow.TailY())) + m_arrowOrigin;
}

QColor CBoardRenderer::ToColor(std::int32_t value)
{
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

QFont CBoardRenderer::MakeLabelFont(const QString& family, double pointSize)
{
    QFont font(family.isEmpty() ? QStringLiteral("Sans") : family);
    const double points = pointSize > 0 && pointSize <= 1000 ? pointSize : 9;
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 96.0 / 72.0))));
    font.setBold(true);
    return font;
}

QSize CBoardRenderer::BoardSize() const
{
    if (!m_context)
        return QSize();
    return QSize(std::max(0, m_context->MapWidth()), std::max(0, m_context->MapHeight()));
}

QRect CBoardRenderer::PictureRect(const CUnit& unit) const
{
    const IToken& token = *unit.Token();
    const int width = std::clamp(token.ImageWidth(), 0, CoordinateLimit);
    const int height = std::clamp(token.ImageHeight(), 0, CoordinateLimit);
    return QRect(clamped(unit.x()), clamped(unit.y()), width, height);
}

QRect CBoardRenderer::LabelRect(const CUnit& unit) const
{
    const QString caption = singleLine(unit.Caption());
    if (caption.isEmpty())
        return QRect();
    const int width = m_labelMetrics.horizontalAdvance(caption) + 2 * LabelPadding;
    const QRect picture = PictureRect(unit);
    const int centre = picture.left() + picture.width() / 2;
    return QRect(centre - width / 2, picture.top() + picture.height(), width,
                 m_labelMetrics.height());
}

QRect CBoardRenderer::UnitBounds(const CUnit& unit) const
{
    return PictureRect(unit).united(LabelRect(unit));
}

QRectF CBoardRenderer::ArrowBounds(const CArrow& arrow) const
{
    const double margin = std::max<double>(ArrowHeadHalfWidth, ArrowWidth) + 1;
    return QRectF(tailPoint(arrow), headPoint(arrow))
        .normalized()
        .adjusted(-margin, -margin, margin, margin);
}

QImage CBoardRenderer::unitPicture(const CUnit& unit) const
{
    const QString key = unit.Token()->UnitImage();
    const std::shared_ptr<CImageList> list = m_context ? m_context->UnitImgLst() : nullptr;
    if (key.isEmpty() || !list)
        return QImage();
    return list->Image(key);
}

void CBoardRenderer::PaintBoard(QPainter& painter) const
{
    if (!m_context)
        return;
    const QImage board = m_context->MapPicture();
    if (!board.isNull())
        painter.drawImage(QPoint(0, 0), board);
}

void CBoardRenderer::PaintUnit(QPainter& painter, const CUnit& unit) const
{
    const QRect picture = PictureRect(unit);
    const QImage image = unitPicture(unit);
    if (!image.isNull())
        painter.drawImage(picture, image);

    const QRect label = LabelRect(unit);
    if (label.isEmpty())
        return;
    if (!m_transparentLabels)
        painter.fillRect(label, m_backColor);
    painter.save();
    painter.setFont(m_labelFont);
    painter.setPen(unit.HasMoved() ? m_movedColor : m_foreColor);
    painter.drawText(label, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine,
                     singleLine(unit.Caption()));
    painter.restore();
}

void CBoardRenderer::PaintArrow(QPainter& painter, const CArrow& arrow) const
{
    const QPointF head = headPoint(arrow);
    const QPointF tail = tailPoint(arrow);
    const QColor color = ToColor(arrow.Color());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);

    const QPointF delta = head - tail;
    const double length = std::hypot(delta.x(), delta.y());
    if (length < 1) {
        // Head on tail: a dot marks where the arrow is.
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(head, ArrowWidth, ArrowWidth);
        painter.restore();
        return;
    }
    const QPointF along = delta / length;
    const QPointF across(-along.y(), along.x());
    const QPointF base = head - along * std::min<double>(ArrowHeadLength, length);

    // The line stops at the head's base, so the tip stays sharp.
    painter.setPen(QPen(color, ArrowWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(tail, base);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QPolygonF headShape{head, base + across * ArrowHeadHalfWidth,
                              base - across * ArrowHeadHalfWidth};
    painter.drawPolygon(headShape);
    painter.restore();
}

void CBoardRenderer::PaintMap(QPainter& painter, const CMap& map) const
{
    PaintBoard(painter);
    if (const CVector<CUnit>* units = map.Units()) {
        for (const auto& unit : *units)
            PaintUnit(painter, *unit);
    }
    if (const CVector<CArrow>* arrows = map.Arrows()) {
        for (const auto& arrow : *arrows)
            PaintArrow(painter, *arrow);
    }
}

QImage CBoardRenderer::RenderMap(const CMap& map, double scale) const
{
    CTraceScope scope("RenderMap", "CBoardRenderer");
    const QSize board = BoardSize();
    if (board.isEmpty())
        failRender(
            QCoreApplication::translate("CBoardRenderer", "The board has no picture to draw on"));
    if (!std::isfinite(scale) || scale <= 0)
        failRender(
            QCoreApplication::translate("CBoardRenderer", "The scale must be a positive number"));
    const double width = std::ceil(board.width() * scale);
    const double height = std::ceil(board.height() * scale);
    if (width > MaxRenderSide || height > MaxRenderSide ||
        width * height > static_cast<double>(MaxRenderPixels))
        failRender(QCoreApplication::translate("CBoardRenderer",
                                               "A picture of %1 x %2 pixels is too large to make")
                       .arg(width, 0, 'f', 0)
                       .arg(height, 0, 'f', 0));

    QImage image(std::max(1, static_cast<int>(width)), std::max(1, static_cast<int>(height)),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        failRender(QCoreApplication::translate("CBoardRenderer",
                                               "There is not enough memory for the picture"));
    image.fill(Qt::white);
    QPainter painter(&image);
    if (scale != 1.0) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
        painter.scale(scale, scale);
    }
    PaintMap(painter, map);
    painter.end();
    return image;
}
