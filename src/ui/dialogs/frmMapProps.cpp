#include "frmMapProps.h"

#include "model/CMap.h"
#include "ui/dialogs/CNameCheck.h"

#include <QCheckBox>
#include <QFormLayout>

frmMapProps::frmMapProps(QWidget* parent)
    : frmNameDialog(QStringLiteral("frmMapProps"), tr("Map Properties"), parent),
      m_chkProtected(new QCheckBox(tr("&Protected (no changes to this map)"), this))
{
    m_chkProtected->setObjectName(QStringLiteral("chkProtected"));
    Form()->addRow(QString(), m_chkProtected);
    // Tab goes from the remarks to the check box, then to the buttons.
    setTabOrder(findChild<QWidget*>(QStringLiteral("txtRemarks")), m_chkProtected);
}

bool frmMapProps::Display(const std::shared_ptr<CMap>& map)
{
    if (!map)
        return false;
    m_map = map;
    m_chkProtected->setChecked(map->Frozen());
    const bool confirmed = Run(map->Name(), map->Remarks());
    m_map.reset();
    return confirmed;
}

void frmMapProps::accept()
{
    m_protected = m_chkProtected->isChecked();
    frmNameDialog::accept();
}

bool frmMapProps::NameAccepted(QLineEdit* field)
{
    return CNameCheck::Accept(field, true, m_map);
}
