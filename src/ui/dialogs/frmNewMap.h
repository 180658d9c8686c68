#pragma once

#include "core/FNewMapDlg.h"
#include "ui/dialogs/frmNameDialog.h"

// Names a new map of the active group.
class frmNewMap : public frmNameDialog, public FNewMapDlg
{
    Q_OBJECT

public:
    explicit frmNewMap(QWidget* parent = nullptr);

    bool Display(const QString& proposedName) override;
    QString Name() const override { return EnteredName(); }
    QString Remarks() const override { return EnteredRemarks(); }

protected:
    bool NameAccepted(QLineEdit* field) override;
};
