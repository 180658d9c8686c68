#include "frmSplitUnit.h"

#include "model/CUnit.h"
#include "ui/dialogs/UDialogButtons.h"
#include "ui/dialogs/UUnitBadge.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmSplitUnit::frmSplitUnit(QWidget* parent)
    : QDialog(parent), m_badge(new UUnitBadge(this)), m_cboSplitAmt(new QComboBox(this)),
      m_txtOldValue(new QLineEdit(this))
{
    setObjectName(QStringLiteral("frmSplitUnit"));
    setWindowTitle(tr("Split Stack"));
    m_cboSplitAmt->setObjectName(QStringLiteral("cboSplitAmt"));
    m_cboSplitAmt->setMaxVisibleItems(15);
    m_cboSplitAmt->setMinimumWidth(fontMetrics().averageCharWidth() * 18);
    m_txtOldValue->setObjectName(QStringLiteral("txtOldValue"));
    m_txtOldValue->setReadOnly(true);
    m_txtOldValue->setFocusPolicy(Qt::NoFocus);
    auto* form = new QFormLayout;
    form->addRow(tr("Stack count:"), m_txtOldValue);
    form->addRow(tr("&Split off:"), m_cboSplitAmt);

    auto* buttons = new UDialogButtons(this);
    m_ok = buttons->Ok();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_badge);
    layout->addLayout(form);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

bool frmSplitUnit::Display(const std::shared_ptr<CUnit>& unit)
{
    if (!unit)
        return false;
    bool ok = false;
    const int count = unit->Data().toInt(&ok);
    m_badge->ShowUnit(unit);
    m_cboSplitAmt->clear();
    m_txtOldValue->clear();
    if (ok && count > 1) {
        for (int amount = 1; amount < count; ++amount)
            m_cboSplitAmt->addItem(QString::number(amount), amount);
        m_txtOldValue->setText(QString::number(count));
    }
    m_ok->setEnabled(m_cboSplitAmt->count() > 0);
    m_cboSplitAmt->setFocus(Qt::OtherFocusReason);
    return exec() == QDialog::Accepted;
}

void frmSplitUnit::accept()
{
    if (m_cboSplitAmt->count() == 0)
        return;
    m_value = m_cboSplitAmt->currentData().toInt();
    QDialog::accept();
}
