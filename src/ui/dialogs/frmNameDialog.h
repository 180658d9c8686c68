#pragma once

#include <QDialog>

class QFormLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// The form the new-map, map-properties and game-properties dialogs share: a
// name (txtName), remarks (txtRemarks), OK (cmdOk, the default button) and
// Cancel (cmdCancel, also Escape). OK closes the dialog only once the name
// passes the check of the dialog at hand; the values are kept trimmed.
class frmNameDialog : public QDialog
{
    Q_OBJECT

public:
    QString EnteredName() const { return m_name; }
    QString EnteredRemarks() const { return m_remarks; }

    void accept() override;

protected:
    frmNameDialog(const QString& objectName, const QString& title, QWidget* parent);

    // Fills the fields, shows the dialog modally with the focus on the name
    // and returns whether OK closed it.
    bool Run(const QString& name, const QString& remarks);
    // The check the name must pass; the field is txtName.
    virtual bool NameAccepted(QLineEdit* field) = 0;

    // Further rows go here, below the remarks.
    QFormLayout* Form() const { return m_form; }

private:
    QFormLayout* m_form;
    QLineEdit* m_txtName;
    QPlainTextEdit* m_txtRemarks;
    QString m_name;
    QString m_remarks;
};
