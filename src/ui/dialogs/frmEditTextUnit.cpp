#include "frmEditTextUnit.h"

#include "model/CUnit.h"
#include "ui/dialogs/CNameCheck.h"
#include "ui/dialogs/UDialogButtons.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

QString frmEditTextUnit::BlankMessage()
{
    return tr("Text cannot be blank.");
}

frmEditTextUnit::frmEditTextUnit(QWidget* parent)
    : QDialog(parent), m_txtText(new QLineEdit(this)), m_txtExtended(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("frmEditTextUnit"));
    setWindowTitle(tr("Edit Text"));
    m_txtText->setObjectName(QStringLiteral("txtText"));
    m_txtText->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    m_txtExtended->setObjectName(QStringLiteral("txtExtended"));
    m_txtExtended->setTabChangesFocus(true);
    m_txtExtended->setMinimumHeight(fontMetrics().height() * 5);
    auto* form = new QFormLayout;
    form->addRow(tr("&Text:"), m_txtText);
    form->addRow(tr("&Details:"), m_txtExtended);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form, 1);
    auto* buttons = new UDialogButtons(this);
    buttons->AcceptOnEnter(m_txtExtended);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

bool frmEditTextUnit::Display(const std::shared_ptr<CUnit>& unit)
{
    if (!unit)
        return false;
    // A text counter keeps its caption as the text and the longer text as its data.
    m_txtText->setText(unit->Caption());
    m_txtExtended->setPlainText(unit->Data());
    m_txtText->selectAll();
    m_txtText->setFocus(Qt::OtherFocusReason);
    return exec() == QDialog::Accepted;
}

void frmEditTextUnit::accept()
{
    if (m_txtText->text().trimmed().isEmpty()) {
        CNameCheck::Tell(BlankMessage());
        m_txtText->setFocus(Qt::OtherFocusReason);
        return;
    }
    m_text = m_txtText->text();
    m_extended = m_txtExtended->toPlainText();
    QDialog::accept();
}
