#include "frmNameDialog.h"

#include "ui/dialogs/UDialogButtons.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

frmNameDialog::frmNameDialog(const QString& objectName, const QString& title, QWidget* parent)
    : QDialog(parent), m_form(new QFormLayout), m_txtName(new QLineEdit(this)),
      m_txtRemarks(new QPlainTextEdit(this))
{
    setObjectName(objectName);
    setWindowTitle(title);
    m_txtName->setObjectName(QStringLiteral("txtName"));
    m_txtRemarks->setObjectName(QStringLiteral("txtRemarks"));
    // Tab leaves the remarks instead of typing a tab into them.
    m_txtRemarks->setTabChangesFocus(true);
    const int line = fontMetrics().height();
    m_txtRemarks->setMinimumHeight(line * 4);
    m_txtName->setMinimumWidth(fontMetrics().averageCharWidth() * 36);

    m_form->addRow(tr("&Name:"), m_txtName);
    m_form->addRow(tr("&Remarks:"), m_txtRemarks);

    auto* buttons = new UDialogButtons(this);
    buttons->AcceptOnEnter(m_txtRemarks);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(m_form, 1);
    layout->addWidget(buttons);
    // The dialog never shrinks below what its fields need, at any scaling.
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

bool frmNameDialog::Run(const QString& name, const QString& remarks)
{
    m_txtName->setText(name);
    m_txtRemarks->setPlainText(remarks);
    m_txtName->selectAll();
    m_txtName->setFocus(Qt::OtherFocusReason);
    return exec() == QDialog::Accepted;
}

void frmNameDialog::accept()
{
    // Both values are trimmed first, so the fields show what will be kept.
    m_txtName->setText(m_txtName->text().trimmed());
    const QString remarks = m_txtRemarks->toPlainText().trimmed();
    if (remarks != m_txtRemarks->toPlainText())
        m_txtRemarks->setPlainText(remarks);
    if (!NameAccepted(m_txtName))
        return;
    m_name = m_txtName->text();
    m_remarks = remarks;
    QDialog::accept();
}
