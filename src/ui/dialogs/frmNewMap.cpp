#include "frmNewMap.h"

#include "ui/dialogs/CNameCheck.h"

frmNewMap::frmNewMap(QWidget* parent)
    : frmNameDialog(QStringLiteral("frmNewMap"), tr("Add Map"), parent)
{}

bool frmNewMap::Display(const QString& proposedName)
{
    return Run(proposedName, QString());
}

bool frmNewMap::NameAccepted(QLineEdit* field)
{
    return CNameCheck::Accept(field, true);
}
