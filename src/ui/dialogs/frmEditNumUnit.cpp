#include "frmEditNumUnit.h"

#include "model/CUnit.h"
#include "ui/dialogs/UDialogButtons.h"
#include "ui/dialogs/UUnitBadge.h"

#include <QComboBox>
#include <QFormLayout>
#include <QVBoxLayout>

frmEditNumUnit::frmEditNumUnit(QWidget* parent)
    : QDialog(parent), m_badge(new UUnitBadge(this)), m_cboNewValue(new QComboBox(this))
{
    setObjectName(QStringLiteral("frmEditNumUnit"));
    setWindowTitle(tr("Edit Value"));
    m_cboNewValue->setObjectName(QStringLiteral("cboNewValue"));
    // Long lists scroll instead of covering the screen.
    m_cboNewValue->setMaxVisibleItems(15);
    m_cboNewValue->setMinimumWidth(fontMetrics().averageCharWidth() * 18);
    auto* form = new QFormLayout;
    form->addRow(tr("&New value:"), m_cboNewValue);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_badge);
    layout->addLayout(form);
    layout->addWidget(new UDialogButtons(this));
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

bool frmEditNumUnit::Display(const std::shared_ptr<CUnit>& unit, std::int32_t lower,
                             std::int32_t upper)
{
    if (!unit || lower > upper)
        return false;
    m_badge->ShowUnit(unit);
    m_cboNewValue->clear();
    for (std::int32_t v = lower; v <= upper; ++v)
        m_cboNewValue->addItem(QString::number(v), v);
    // The list opens at the unit's present value when it lies in the bounds.
    bool ok = false;
    const int current = unit->Data().toInt(&ok);
    m_cboNewValue->setCurrentIndex(ok && current >= lower && current <= upper ? current - lower
                                                                              : 0);
    m_cboNewValue->setFocus(Qt::OtherFocusReason);
    return exec() == QDialog::Accepted;
}

void frmEditNumUnit::accept()
{
    m_value = m_cboNewValue->currentData().toInt();
    QDialog::accept();
}
