#pragma once

#include <QDialogButtonBox>

class QDialog;
class QPushButton;

// The OK (cmdOk, default: Enter) and Cancel (cmdCancel: Escape) buttons of
// the program's dialogs, wired to the dialog's accept and reject.
class UDialogButtons : public QDialogButtonBox
{
    Q_OBJECT

public:
    explicit UDialogButtons(QDialog* dialog);

    QPushButton* Ok() const { return m_ok; }

private:
    QPushButton* m_ok;
};
