#include "UDialogButtons.h"

#include <QDialog>
#include <QPushButton>

UDialogButtons::UDialogButtons(QDialog* dialog)
    : QDialogButtonBox(dialog), m_ok(addButton(QStringLiteral("OK"), AcceptRole))
{
    m_ok->setObjectName(QStringLiteral("cmdOk"));
    m_ok->setDefault(true);
    QPushButton* cancel = addButton(QStringLiteral("Cancel"), RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(this, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(this, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
}
