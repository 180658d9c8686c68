#pragma once

#include "tokens/CTokenBase.h"

// The palette entry from which arrows are drawn. It has no picture on the
// board, keeps its units' ids in game files, and its click region is a fixed
// 8 x 8 square centred in its image. Custom holds the line colour.
class CArrowToken : public CTokenBase
{
public:
    static constexpr std::int32_t RegionSize = 8;

    using CTokenBase::CTokenBase;

    QString Class() const override;
    QString UnitImage() const override { return QString(); }
    bool PersistId() const override { return true; }

    std::int32_t RegionLeft() const override { return (ImageWidth() - RegionSize) / 2; }
    std::int32_t RegionTop() const override { return (ImageHeight() - RegionSize) / 2; }
    std::int32_t RegionWidth() const override { return RegionSize; }
    std::int32_t RegionHeight() const override { return RegionSize; }

    void HandleRightClick(const std::shared_ptr<CUnit>& unit) override;
    void HandleMove(std::int32_t x, std::int32_t y, const std::shared_ptr<CUnit>& unit) override;
    void HandleDrop(std::int32_t x, std::int32_t y) override;
};
