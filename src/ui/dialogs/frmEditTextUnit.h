#pragma once

#include "core/FEditUnitTextDlg.h"

#include <QDialog>

class QLineEdit;
class QPlainTextEdit;

// Edits a text counter: its caption (txtText, never blank) and its longer
// text (txtExtended).
class frmEditTextUnit : public QDialog, public FEditUnitTextDlg
{
    Q_OBJECT

public:
    static QString BlankMessage();

    explicit frmEditTextUnit(QWidget* parent = nullptr);

    bool Display(const std::shared_ptr<CUnit>& unit) override;
    QString Text() const override { return m_text; }
    QString Extended() const override { return m_extended; }

    void accept() override;

private:
    QLineEdit* m_txtText;
    QPlainTextEdit* m_txtExtended;
    QString m_text;
    QString m_extended;
};
