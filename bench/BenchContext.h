#pragma once

#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "tokens/CTokenFactory.h"
#include "tokens/IToken.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <memory>

// The board benchmarks' context: a board picture, twenty quantity tokens
// "T1" to "T20" with 40 x 40 pictures, and a label look; nothing else is used.
class BenchContext : public IGameContext
{
public:
    static constexpr int TokenCount = 20;
    static constexpr int UnitSize = 40;

    // A board of size; with gridLines it is drawn on, so the picture is not
    // one flat colour.
    BenchContext(QSize size, bool gridLines) : m_board(size, QImage::Format_RGB32)
    {
        m_board.fill(QColor(40, 120, 60));
        if (gridLines) {
            QPainter painter(&m_board);
            painter.setPen(QColor(20, 80, 30));
            for (int at = 0; at < std::max(size.width(), size.height()); at += 50) {
                painter.drawLine(at, 0, at, size.height());
                painter.drawLine(0, at, size.width(), at);
            }
        }
        m_units = std::make_shared<CImageList>(0xFF00FF, UnitSize, UnitSize);
        for (std::int16_t i = 1; i <= TokenCount; ++i) {
            const QString id = QStringLiteral("T%1").arg(i);
            m_tokens.AddItem(CTokenFactory::Create(QStringLiteral("CQuantityToken"), id, i,
                                                   QStringLiteral("Units"), id, id, UnitSize,
                                                   UnitSize));
            QImage picture(UnitSize, UnitSize, QImage::Format_RGB32);
            picture.fill(QColor(10 * i, 200 - 5 * i, 90));
            m_units->Add(id, picture);
        }
    }
    QString Id() const override { return QStringLiteral("krm_bench_v1"); }
    QString Caption() const override { return QStringLiteral("Bench"); }
    QImage Picture() const override { return QImage(); }
    QString FontName() const override { return QStringLiteral("Sans"); }
    double FontSize() const override { return 9; }
    bool HasTransparentLabel() const override { return false; }
    QString MultiplierPrefix() const override { return QStringLiteral("x"); }
    std::int32_t LabelForeColor() const override { return 65535; }
    std::int32_t LabelBackColor() const override { return 0; }
    std::int32_t LabelMovedColor() const override { return 65280; }
    QString FileExtension() const override { return QString(); }
    QString FileCaption() const override { return QString(); }
    void Initialize(std::shared_ptr<CModuleDefinition>, std::shared_ptr<CResFileMgr>) override {}
    void Activate(IProgressMonitor*) override {}
    void Deactivate() override {}
    void Dispose() override {}
    std::shared_ptr<CGame> CreateDefaultGame() override { return nullptr; }
    QImage MapPicture() const override { return m_board; }
    std::int32_t MapWidth() const override { return m_board.width(); }
    std::int32_t MapHeight() const override { return m_board.height(); }
    std::shared_ptr<CImageList> PalletImgLst() const override { return nullptr; }
    std::shared_ptr<CImageList> DragImgLst() const override { return nullptr; }
    bool IsUserDefined() const override { return false; }
    std::shared_ptr<CImageList> UnitImgLst() const override { return m_units; }
    const CVector<IToken>& Tokens() const override { return m_tokens; }
    const CVector<IActionTool>& CustomTools() const override { return m_tools; }
    const CVector<IAction>& CustomActions() const override { return m_actions; }
    QString Url() const override { return QString(); }

private:
    QImage m_board;
    std::shared_ptr<CImageList> m_units;
    CVector<IToken> m_tokens;
    CVector<IActionTool> m_tools;
    CVector<IAction> m_actions;
};
