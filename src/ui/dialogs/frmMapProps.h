#pragma once

#include "core/FMapPropsDlg.h"
#include "ui/dialogs/frmNameDialog.h"

#include <memory>

class QCheckBox;

// Edits a map's name, remarks and protection (chkProtected, the map's Frozen).
class frmMapProps : public frmNameDialog, public FMapPropsDlg
{
    Q_OBJECT

public:
    explicit frmMapProps(QWidget* parent = nullptr);

    bool Display(const std::shared_ptr<CMap>& map) override;
    QString Name() const override { return EnteredName(); }
    QString Remarks() const override { return EnteredRemarks(); }
    bool Protected() const override { return m_protected; }

    void accept() override;

protected:
    bool NameAccepted(QLineEdit* field) override;

private:
    QCheckBox* m_chkProtected;
    std::shared_ptr<CMap> m_map;
    bool m_protected = false;
};
