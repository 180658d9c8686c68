#pragma once

#include "core/FGamePropsDlg.h"
#include "ui/dialogs/frmNameDialog.h"

// Edits the game's name and remarks.
class frmGameProps : public frmNameDialog, public FGamePropsDlg
{
    Q_OBJECT

public:
    explicit frmGameProps(QWidget* parent = nullptr);

    bool Display(const QString& name, const QString& remarks) override;
    QString Name() const override { return EnteredName(); }
    QString Remarks() const override { return EnteredRemarks(); }

protected:
    bool NameAccepted(QLineEdit* field) override;
};
