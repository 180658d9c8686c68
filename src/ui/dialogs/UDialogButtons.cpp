#include "UDialogButtons.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>

UDialogButtons::UDialogButtons(QDialog* dialog)
    : QDialogButtonBox(dialog), m_ok(addButton(tr("OK"), AcceptRole))
{
    m_ok->setObjectName(QStringLiteral("cmdOk"));
    m_ok->setDefault(true);
    QPushButton* cancel = addButton(tr("Cancel"), RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(this, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(this, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
}

void UDialogButtons::AcceptOnEnter(QPlainTextEdit* field)
{
    field->installEventFilter(this);
}

bool UDialogButtons::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            !(key->modifiers() & Qt::ShiftModifier)) {
            if (m_ok->isEnabled())
                m_ok->click();
            return true;
        }
    }
    return QDialogButtonBox::eventFilter(watched, event);
}
