#include "UUnitBadge.h"

#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QHBoxLayout>
#include <QLabel>

UUnitBadge::UUnitBadge(QWidget* parent)
    : QWidget(parent), m_imgUnit(new QLabel(this)), m_lblUnit(new QLabel(this))
{
    m_imgUnit->setObjectName(QStringLiteral("imgUnit"));
    m_lblUnit->setObjectName(QStringLiteral("lblUnit"));
    m_imgUnit->setAlignment(Qt::AlignCenter);
    m_lblUnit->setWordWrap(true);
    // A token caption is shown as written, never as rich text.
    m_lblUnit->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_imgUnit);
    layout->addWidget(m_lblUnit, 1);
}

void UUnitBadge::ShowUnit(const std::shared_ptr<CUnit>& unit)
{
    const std::shared_ptr<IToken> token = unit ? unit->Token() : nullptr;
    m_lblUnit->setText(token ? token->Caption() : QString());
    CKorvane* root = RootOrNull();
    const std::shared_ptr<IGameContext> context = root ? root->Context() : nullptr;
    const std::shared_ptr<CImageList> pictures = context ? context->UnitImgLst() : nullptr;
    const QImage picture = token && pictures ? pictures->Image(token->UnitImage()) : QImage();
    if (!picture.isNull()) {
        m_imgUnit->setPixmap(QPixmap::fromImage(picture));
        m_imgUnit->show();
    } else {
        m_imgUnit->clear();
        m_imgUnit->hide();
    }
}
