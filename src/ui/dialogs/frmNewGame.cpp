#include "frmNewGame.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "ui/dialogs/UDialogButtons.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int ContextIdRole = Qt::UserRole + 1;
constexpr int IconSide = 48;

} // namespace

frmNewGame::frmNewGame(QWidget* parent) : QDialog(parent), m_lvwGameTypes(new QListWidget(this))
{
    setObjectName(QStringLiteral("frmNewGame"));
    setWindowTitle(tr("New Game"));
    m_lvwGameTypes->setObjectName(QStringLiteral("lvwGameTypes"));
    m_lvwGameTypes->setIconSize(QSize(IconSide, IconSide));
    m_lvwGameTypes->setSpacing(2);
    m_lvwGameTypes->setMinimumSize(fontMetrics().averageCharWidth() * 44,
                                   (std::max(IconSide, fontMetrics().height()) + 8) * 4);
    auto* label = new QLabel(tr("&Game:"), this);
    label->setBuddy(m_lvwGameTypes);
    auto* buttons = new UDialogButtons(this);
    m_ok = buttons->Ok();
    // Enter reaches the default button; a double-click chooses at once.
    connect(m_lvwGameTypes, &QListWidget::itemDoubleClicked, this, &frmNewGame::accept);
    connect(m_lvwGameTypes, &QListWidget::currentRowChanged, this,
            [this](int row) { m_ok->setEnabled(row >= 0); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_lvwGameTypes, 1);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

void frmNewGame::fill()
{
    m_lvwGameTypes->clear();
    const CContextMgr& contexts = Root().ContextMgr();
    for (std::int32_t i = 1; i <= contexts.ContextCount(); ++i) {
        const std::shared_ptr<IGameContext> context = contexts.Context(i);
        auto* item = new QListWidgetItem(context->Caption(), m_lvwGameTypes);
        item->setData(ContextIdRole, context->Id());
        item->setToolTip(context->Id());
        const QImage icon = context->Picture();
        if (!icon.isNull())
            item->setIcon(QIcon(QPixmap::fromImage(icon)));
    }
}

bool frmNewGame::Display()
{
    fill();
    m_lvwGameTypes->setCurrentRow(0);
    m_lvwGameTypes->setFocus(Qt::OtherFocusReason);
    return exec() == QDialog::Accepted;
}

void frmNewGame::accept()
{
    const QListWidgetItem* item = m_lvwGameTypes->currentItem();
    if (!item)
        return;
    m_selectedId = item->data(ContextIdRole).toString();
    QDialog::accept();
}
