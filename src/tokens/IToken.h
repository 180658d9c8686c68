#pragma once

#include "core/IHasUniqueId.h"

#include <QString>

#include <cstdint>
#include <memory>

class CUnit;

// One kind of counter a game context offers. The token decides how its units
// look, what a fresh unit holds, and what the user's mouse gestures do to its
// units; the handlers never change the model themselves but execute actions.
class IToken : public IHasUniqueId
{
public:
    ~IToken() override = default;

    virtual QString Class() const = 0;
    virtual QString Id() const = 0;
    virtual std::int16_t Index() const = 0;
    virtual QString Category() const = 0;
    virtual QString Caption() const = 0;
    // The image key given at construction.
    virtual QString Image() const = 0;
    virtual QString PalletImage() const = 0;
    virtual QString DragImage() const = 0;
    virtual QString UnitImage() const = 0;
    virtual QString DefaultCaption() const = 0;
    virtual QString DefaultData() const = 0;
    virtual bool ShownInPallet() const = 0;
    // Whether units of this token keep their id in game files.
    virtual bool PersistId() const = 0;
    virtual QString Custom() const = 0;
    virtual void SetCustom(const QString& custom) = 0;

    virtual void HandleRightClick(const std::shared_ptr<CUnit>& unit) = 0;
    virtual void HandleMove(std::int32_t x, std::int32_t y, const std::shared_ptr<CUnit>& unit) = 0;
    virtual bool SupportsMoveOnto() const = 0;
    virtual void HandleMoveOnto(const std::shared_ptr<CUnit>& unit,
                                const std::shared_ptr<CUnit>& target) = 0;
    virtual void HandleDrop(std::int32_t x, std::int32_t y) = 0;

    virtual std::int32_t ImageWidth() const = 0;
    virtual std::int32_t ImageHeight() const = 0;
    // The click region, in pixels relative to the unit image's top-left corner.
    virtual std::int32_t RegionLeft() const = 0;
    virtual std::int32_t RegionTop() const = 0;
    virtual std::int32_t RegionWidth() const = 0;
    virtual std::int32_t RegionHeight() const = 0;

    QString UniqueId() const override { return Id(); }
};
