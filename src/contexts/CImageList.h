#pragma once

#include <QImage>
#include <QString>

#include <cstdint>
#include <vector>

// Pictures of one fixed size, each under a unique key (a token's image key).
// Every picture is made transparent where it has the mask colour and scaled
// to the list's size when it differs.
class CImageList
{
public:
    // maskColor: 24-bit, red in the low byte; negative for no transparent colour.
    CImageList(std::int32_t maskColor, std::int32_t height, std::int32_t width);

    std::int32_t MaskColor() const { return m_maskColor; }
    std::int32_t Height() const { return m_height; }
    std::int32_t Width() const { return m_width; }

    // Adds a picture and returns its position (from 1). A null picture (one
    // that could not be read) is kept as a fully transparent one, so the key
    // still answers. Raises KorvaneError 457 when the key is already there.
    std::int32_t Add(const QString& key, const QImage& picture);

    std::int32_t Count() const { return static_cast<std::int32_t>(m_items.size()); }
    bool Exists(const QString& key) const { return IndexOf(key) != 0; }
    // Keys compare exactly; 0 when absent.
    std::int32_t IndexOf(const QString& key) const;
    // A null image when the key is absent.
    QImage Image(const QString& key) const;
    // 1-based; KorvaneError 9 outside 1..Count.
    const QImage& Image(std::int32_t index) const;
    const QString& Key(std::int32_t index) const;
    void Clear();

    // The picture as ARGB with every pixel of maskColor fully transparent.
    static QImage ApplyMask(const QImage& picture, std::int32_t maskColor);

private:
    struct Item
    {
        QString Key;
        QImage Picture;
    };
    const Item& item(std::int32_t index, const char* operation) const;

    std::int32_t m_maskColor;
    std::int32_t m_height;
    std::int32_t m_width;
    std::vector<Item> m_items;
};
