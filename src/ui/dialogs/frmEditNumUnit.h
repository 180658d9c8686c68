#pragma once

#include "core/FEditUnitNumDlg.h"

#include <QDialog>

class QComboBox;
class UUnitBadge;

// Chooses a unit's new whole-number value from cboNewValue, which lists the
// bounds given and every number between, ascending.
class frmEditNumUnit : public QDialog, public FEditUnitNumDlg
{
    Q_OBJECT

public:
    explicit frmEditNumUnit(QWidget* parent = nullptr);

    bool Display(const std::shared_ptr<CUnit>& unit, std::int32_t lower,
                 std::int32_t upper) override;
    std::int32_t Value() const override { return m_value; }

    void accept() override;

private:
    UUnitBadge* m_badge;
    QComboBox* m_cboNewValue;
    std::int32_t m_value = 0;
};
