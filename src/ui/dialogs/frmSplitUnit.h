#pragma once

#include "core/FSplitUnitDlg.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;
class UUnitBadge;

// Chooses how many pieces leave a stack: cboSplitAmt lists 1 to the count
// less one, txtOldValue shows the count. A stack of one offers nothing, and
// OK stays disabled.
class frmSplitUnit : public QDialog, public FSplitUnitDlg
{
    Q_OBJECT

public:
    explicit frmSplitUnit(QWidget* parent = nullptr);

    bool Display(const std::shared_ptr<CUnit>& unit) override;
    std::int32_t Value() const override { return m_value; }

    void accept() override;

private:
    UUnitBadge* m_badge;
    QComboBox* m_cboSplitAmt;
    QLineEdit* m_txtOldValue;
    QPushButton* m_ok;
    std::int32_t m_value = 0;
};
