#pragma once

#include "contexts/IGameContext.h"
#include "tokens/CTokenFactory.h"
#include "tokens/IToken.h"

#include <QImage>
#include <QString>

#include <memory>

// A game context with nothing but a token list and a multiplier prefix, for
// tests of the model and the tokens.
class TestContext : public IGameContext
{
public:
    explicit TestContext(QString prefix = QStringLiteral("x"),
                         QString id = QStringLiteral("krm_test_v1"))
        : m_prefix(std::move(prefix)), m_id(std::move(id))
    {}

    // Appends a token made by class name, its index being its position.
    std::shared_ptr<IToken> AddToken(const QString& className, const QString& id,
                                     std::int32_t width = 40, std::int32_t height = 30)
    {
        const auto index = static_cast<std::int16_t>(m_tokens.Count() + 1);
        m_tokens.AddItem(CTokenFactory::Create(className, id, index, QStringLiteral("Units"), id,
                                               id, width, height));
        return m_tokens.Item(m_tokens.Count());
    }
    // The benchmarks' boards are larger than the default 800 x 600.
    void SetBoardSize(std::int32_t width, std::int32_t height)
    {
        m_mapWidth = width;
        m_mapHeight = height;
    }
    // A board picture; the board's size becomes the picture's.
    void SetMapPicture(QImage picture)
    {
        m_mapPicture = std::move(picture);
        SetBoardSize(m_mapPicture.width(), m_mapPicture.height());
    }
    void SetUnitImages(std::shared_ptr<CImageList> images) { m_unitImages = std::move(images); }
    CVector<IAction>& ActionList() { return m_actions; }

    QString Id() const override { return m_id; }
    QString Caption() const override { return QStringLiteral("Test"); }
    QImage Picture() const override { return QImage(); }
    QString FontName() const override { return QStringLiteral("Sans"); }
    double FontSize() const override { return 8; }
    bool HasTransparentLabel() const override { return false; }
    QString MultiplierPrefix() const override { return m_prefix; }
    std::int32_t LabelForeColor() const override { return 0; }
    std::int32_t LabelBackColor() const override { return 0xFFFFFF; }
    std::int32_t LabelMovedColor() const override { return 0xFF; }
    QString FileExtension() const override { return QStringLiteral("krf"); }
    QString FileCaption() const override { return QStringLiteral("Test Games"); }
    void Initialize(std::shared_ptr<CModuleDefinition>, std::shared_ptr<CResFileMgr>) override {}
    void Activate(IProgressMonitor*) override {}
    void Deactivate() override {}
    void Dispose() override {}
    std::shared_ptr<CGame> CreateDefaultGame() override { return nullptr; }
    QImage MapPicture() const override { return m_mapPicture; }
    std::int32_t MapWidth() const override { return m_mapWidth; }
    std::int32_t MapHeight() const override { return m_mapHeight; }
    std::shared_ptr<CImageList> PalletImgLst() const override { return nullptr; }
    std::shared_ptr<CImageList> DragImgLst() const override { return nullptr; }
    bool IsUserDefined() const override { return false; }
    std::shared_ptr<CImageList> UnitImgLst() const override { return m_unitImages; }
    const CVector<IToken>& Tokens() const override { return m_tokens; }
    const CVector<IActionTool>& CustomTools() const override { return m_tools; }
    const CVector<IAction>& CustomActions() const override { return m_actions; }
    QString Url() const override { return QString(); }

private:
    std::int32_t m_mapWidth = 800;
    std::int32_t m_mapHeight = 600;
    QImage m_mapPicture;
    std::shared_ptr<CImageList> m_unitImages;
    QString m_prefix;
    QString m_id;
    CVector<IToken> m_tokens;
    CVector<IActionTool> m_tools;
    CVector<IAction> m_actions;
};
