#pragma once

#include "tokens/IToken.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class CActionEditUnit;
class IAction;

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

    // The decimal value of a count or value held in a unit's Data; text that
    // is not a whole decimal number in the 32-bit range counts as 0.
    static std::int32_t CountOf(const QString& data);
    // An edit that gives a counted unit a new count and the matching caption.
    static std::shared_ptr<CActionEditUnit> CountEditOf(const CUnit& unit, std::int64_t count);

protected:
    struct MenuEntry
    {
        QString Caption;
        QString Key;
    };
    static MenuEntry Separator() { return {QStringLiteral("-"), QString()}; }

    // The active context's multiplier prefix, "x" when no context is active.
    static QString MultiplierPrefix();
    // The id of the map on the board, empty when there is none.
    static QString CurrentMapId();
    // Fills the shared popup menu, shows it and returns the chosen entry's
    // key; empty when the menu was dismissed or there is no menu to show.
    static QString ShowMenu(const std::vector<MenuEntry>& entries);
    static void Execute(std::shared_ptr<IAction> action);
    // An edit of a unit on the current map to the given values.
    static std::shared_ptr<CActionEditUnit> EditOf(const CUnit& unit, const QString& data,
                                                   const QString& caption, bool moved);
    static void DeleteUnit(const std::shared_ptr<CUnit>& unit);

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
