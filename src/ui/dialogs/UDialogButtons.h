#pragma once

#include <QDialogButtonBox>

class QDialog;
class QPlainTextEdit;
class QPushButton;

// The OK (cmdOk, default: Enter) and Cancel (cmdCancel: Escape) buttons of
// the program's dialogs, wired to the dialog's accept and reject.
class UDialogButtons : public QDialogButtonBox
{
    Q_OBJECT

public:
    explicit UDialogButtons(QDialog* dialog);

    QPushButton* Ok() const { return m_ok; }
    // Enter in a multi-line field presses OK, as in the one-line fields;
    // Shift+Enter starts a new line.
    void AcceptOnEnter(QPlainTextEdit* field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPushButton* m_ok;
};
