#include "frmGameProps.h"

#include "ui/dialogs/CNameCheck.h"

frmGameProps::frmGameProps(QWidget* parent)
    : frmNameDialog(QStringLiteral("frmGameProps"), tr("Game Properties"), parent)
{}

bool frmGameProps::Display(const QString& name, const QString& remarks)
{
    return Run(name, remarks);
}

bool frmGameProps::NameAccepted(QLineEdit* field)
{
    return CNameCheck::Accept(field, false);
}
