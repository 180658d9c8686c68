#pragma once

#include "core/CVector.h"
#include "core/IHasName.h"
#include "core/IHasUniqueId.h"

#include <QImage>
#include <QString>

#include <cstdint>
#include <memory>

class CGame;
class CImageList;
class CModuleDefinition;
class CResFileMgr;
class IAction;
class IActionTool;
class IProgressMonitor;
class IToken;

// A game's look and token set: board picture, tokens with their image lists,
// label font and colours, file extension and a default new game. Colours are
// 24-bit values with red in the low byte.
class IGameContext : public IHasName, public IHasUniqueId
{
public:
    ~IGameContext() override = default;

    virtual QString Id() const = 0;
    virtual QString Caption() const = 0;
    virtual QImage Picture() const = 0;
    virtual QString FontName() const = 0;
    virtual double FontSize() const = 0;
    virtual bool HasTransparentLabel() const = 0;
    virtual QString MultiplierPrefix() const = 0;
    virtual std::int32_t LabelForeColor() const = 0;
    virtual std::int32_t LabelBackColor() const = 0;
    virtual std::int32_t LabelMovedColor() const = 0;
    virtual QString FileExtension() const = 0;
    virtual QString FileCaption() const = 0;

    // definition is null for the fixed built-in classes.
    virtual void Initialize(std::shared_ptr<CModuleDefinition> definition,
                            std::shared_ptr<CResFileMgr> resFile) = 0;
    virtual void Activate(IProgressMonitor* progress) = 0;
    virtual void Deactivate() = 0;
    virtual void Dispose() = 0;
    virtual std::shared_ptr<CGame> CreateDefaultGame() = 0;

    virtual QImage MapPicture() const = 0;
    virtual std::int32_t MapWidth() const = 0;
    virtual std::int32_t MapHeight() const = 0;
    virtual std::shared_ptr<CImageList> PalletImgLst() const = 0;
    virtual std::shared_ptr<CImageList> DragImgLst() const = 0;
    virtual bool IsUserDefined() const = 0;
    virtual std::shared_ptr<CImageList> UnitImgLst() const = 0;
    virtual const CVector<IToken>& Tokens() const = 0;
    virtual const CVector<IActionTool>& CustomTools() const = 0;
    virtual const CVector<IAction>& CustomActions() const = 0;
    virtual QString Url() const = 0;

    QString Name() const override { return Caption(); }
    QString UniqueId() const override { return Id(); }
};
