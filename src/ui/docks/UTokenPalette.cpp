#include "UTokenPalette.h"

#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "core/CDragDropMgr.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "tokens/IToken.h"

#include <QDrag>
#include <QListWidget>
#include <QMimeData>
#include <QToolBox>

namespace {

constexpr int TokenIdRole = Qt::UserRole + 1;

// One category's counters; a drag hands the token to the palette.
class TokenList : public QListWidget
{
public:
    TokenList(UTokenPalette* palette, QWidget* parent) : QListWidget(parent), m_palette(palette)
    {
        setViewMode(QListView::IconMode);
        setMovement(QListView::Static);
        setResizeMode(QListView::Adjust);
        setDragEnabled(true);
        setDragDropMode(QAbstractItemView::DragOnly);
        setSelectionMode(QAbstractItemView::SingleSelection);
        setSpacing(4);
        setWordWrap(true);
    }

protected:
    void startDrag(Qt::DropActions) override
    {
        if (const QListWidgetItem* item = currentItem())
            m_palette->DragToken(item->data(TokenIdRole).toString());
    }

private:
    UTokenPalette* m_palette;
};

} // namespace

UTokenPalette::UTokenPalette(QWidget* parent)
    : QDockWidget(tr("Counters"), parent), m_pages(new QToolBox(this))
{
    setObjectName(QStringLiteral("palTokens"));
    m_pages->setObjectName(QStringLiteral("palTokensPages"));
    setWidget(m_pages);
    // Wide enough for three counters with their captions side by side.
    m_pages->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
}

void UTokenPalette::Rebuild()
{
    while (m_pages->count() > 0) {
        QWidget* page = m_pages->widget(0);
        m_pages->removeItem(0);
        delete page;
    }
    const std::shared_ptr<IGameContext>& context = Root().Context();
    if (!context)
        return;
    const std::shared_ptr<CImageList> pictures = context->PalletImgLst();
    const QSize iconSize = pictures ? QSize(pictures->Width(), pictures->Height()) : QSize(32, 32);
    QHash<QString, TokenList*> lists;
    for (const auto& token : context->Tokens()) {
        if (!token->ShownInPallet())
            continue;
        const QString category =
            token->Category().isEmpty() ? QStringLiteral("Counters") : token->Category();
        TokenList*& list = lists[category];
        if (!list) {
            list = new TokenList(this, m_pages);
            list->setObjectName(QStringLiteral("palTokens_") + category);
            list->setIconSize(iconSize);
            list->setGridSize(QSize(std::max(iconSize.width() + 24, 72), iconSize.height() + 36));
            m_pages->addItem(list, token->Category().isEmpty() ? tr("Counters") : category);
        }
        auto* item = new QListWidgetItem(list);
        item->setText(token->Caption());
        item->setToolTip(token->Caption());
        item->setData(TokenIdRole, token->Id());
        const QImage picture = pictures ? pictures->Image(token->PalletImage()) : QImage();
        if (!picture.isNull())
            item->setIcon(QIcon(QPixmap::fromImage(picture)));
    }
}

QString UTokenPalette::DragTokenId() const
{
    const CDragDropMgr& manager = Root().DragDropMgr();
    return manager.DragSource() == CDragDropMgr::Source::Palette ? manager.DraggedId() : QString();
}

void UTokenPalette::DragToken(const QString& tokenId)
{
    const std::shared_ptr<IGameContext>& context = Root().Context();
    if (!context || tokenId.isEmpty())
        return;
    auto* mime = new QMimeData;
    mime->setData(QLatin1String(MimeType), tokenId.toUtf8());
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    const std::shared_ptr<CImageList> pictures = context->DragImgLst();
    const CVector<IToken>& tokens = context->Tokens();
    const std::int32_t index = CUtility::SearchById(tokens, tokenId);
    const QImage picture =
        pictures && index != 0 ? pictures->Image(tokens.Item(index)->DragImage()) : QImage();
    if (!picture.isNull()) {
        const QPixmap pixmap = QPixmap::fromImage(picture);
        drag->setPixmap(pixmap);
        drag->setHotSpot(QPoint(pixmap.width() / 2, pixmap.height() / 2));
    }
    CDragDropMgr& manager = Root().DragDropMgr();
    manager.StartDrag(CDragDropMgr::Source::Palette, tokenId, nullptr);
    drag->exec(Qt::CopyAction);
    manager.EndDrag();
}
