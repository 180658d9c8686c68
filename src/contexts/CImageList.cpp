#include "CImageList.h"

#include "core/KorvaneError.h"

CImageList::CImageList(std::int32_t maskColor, std::int32_t height, std::int32_t width)
    : m_maskColor(maskColor), m_height(height), m_width(width)
{
    if (height < 1 || width < 1)
        throw KorvaneError(5, QStringLiteral("CImageList.Constructor"),
                           QStringLiteral("Invalid picture size"));
}

QImage CImageList::ApplyMask(const QImage& picture, std::int32_t maskColor)
{
    QImage result = picture.convertToFormat(QImage::Format_ARGB32);
    if (maskColor < 0)
        return result;
    // Colour values keep red in the low byte; QRgb keeps blue there.
    const QRgb mask = qRgb(maskColor & 0xFF, (maskColor >> 8) & 0xFF, (maskColor >> 16) & 0xFF);
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            if ((line[x] & 0x00FFFFFFu) == (mask & 0x00FFFFFFu))
                line[x] = 0;
        }
    }
    return result;
}

std::int32_t CImageList::Add(const QString& key, const QImage& picture)
{
    if (Exists(key))
        throw KorvaneError(457, QStringLiteral("CImageList.Add"),
                           QStringLiteral("Key is not unique in collection: ") + key);
    QImage stored;
    if (picture.isNull()) {
        stored = QImage(m_width, m_height, QImage::Format_ARGB32);
        stored.fill(Qt::transparent);
    } else {
        // Masking before scaling keeps the mask colour from bleeding into edges.
        stored = ApplyMask(picture, m_maskColor);
        if (stored.width() != m_width || stored.height() != m_height)
            stored =
                stored.scaled(m_width, m_height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    m_items.push_back({key, std::move(stored)});
    return Count();
}

std::int32_t CImageList::IndexOf(const QString& key) const
{
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        if (m_items[i].Key == key)
            return static_cast<std::int32_t>(i + 1);
    }
    return 0;
}

QImage CImageList::Image(const QString& key) const
{
    const std::int32_t index = IndexOf(key);
    return index == 0 ? QImage() : m_items[static_cast<std::size_t>(index - 1)].Picture;
}

const CImageList::Item& CImageList::item(std::int32_t index, const char* operation) const
{
    if (index < 1 || index > Count())
        throw KorvaneError(9, QStringLiteral("CImageList.") + QLatin1String(operation),
                           QStringLiteral("Subscript out of range"));
    return m_items[static_cast<std::size_t>(index - 1)];
}

const QImage& CImageList::Image(std::int32_t index) const
{
    return item(index, "Image").Picture;
}

const QString& CImageList::Key(std::int32_t index) const
{
    return item(index, "Key").Key;
}

void CImageList::Clear()
{
    m_items.clear();
}
