#pragma once

#include "tokens/IToken.h"

#include <QString>

#include <cstdint>

// The fields every token kind shares and the answers of the plain counter;
// the kinds override what differs.
class CTokenBase : public IToken
{
public:
    // A region argument of -1 means the default: left and top 0, width and
    // height those of the image. Every other value is kept as given.
    CTokenBase(QString id, std::int16_t index, QString category, QString caption, QString image,
               std::int32_t imageWidth, std::int32_t imageHeight, std::int32_t regionLeft = -1,
               std::int32_t regionTop = -1, std::int32_t regionWidth = -1,
               std::int32_t regionHeight = -1);

    QString Id() const override { return m_id; }
    std::int16_t Index() const override { return m_index; }
    QString Category() const override { return m_category; }
    QString Caption() const override { return m_caption; }
    QString Image() const override { return m_image; }
    QString PalletImage() const override { return m_image; }
    QString DragImage() const override { return m_image; }
    QString UnitImage() const override { return m_image; }
    QString DefaultCaption() const override { return QString(); }
    QString DefaultData() const override { return QString(); }
    bool ShownInPallet() const override { return true; }
    bool PersistId() const override { return false; }
    QString Custom() const override { return m_custom; }
    void SetCustom(const QString& custom) override { m_custom = custom; }
    bool SupportsMoveOnto() const override { return false; }

    void HandleRightClick(const std::shared_ptr<CUnit>& unit) override;
    void HandleMove(std::int32_t x, std::int32_t y, const std::shared_ptr<CUnit>& unit) override;
    void HandleMoveOnto(const std::shared_ptr<CUnit>& unit,
                        const std::shared_ptr<CUnit>& target) override;
    void HandleDrop(std::int32_t x, std::int32_t y) override;

    std::int32_t ImageWidth() const override { return m_imageWidth; }
    std::int32_t ImageHeight() const override { return m_imageHeight; }
    std::int32_t RegionLeft() const override { return m_regionLeft; }
    std::int32_t RegionTop() const override { return m_regionTop; }
    std::int32_t RegionWidth() const override { return m_regionWidth; }
    std::int32_t RegionHeight() const override { return m_regionHeight; }

protected:
    // The active context's multiplier prefix, "x" when no context is active.
    static QString MultiplierPrefix();

private:
    QString m_id;
    std::int16_t m_index;
    QString m_category;
    QString m_caption;
    QString m_image;
    std::int32_t m_imageWidth;
    std::int32_t m_imageHeight;
    std::int32_t m_regionLeft;
    std::int32_t m_regionTop;
    std::int32_t m_regionWidth;
    std::int32_t m_regionHeight;
    QString m_custom;
};
