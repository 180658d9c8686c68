#pragma once

#include "support/ContextTestSupport.h"
#include "support/GameFixture.h"
#include "ui/frmEditNumUnit.h"
#include "ui/frmEditTextUnit.h"
#include "ui/frmSplitUnit.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <vector>

// The real unit dialogs behind a scripted GUI whose message boxes are recorded.
class DialogGui : public ScriptedGui
{
public:
    ScriptedMessages Boxes;
    frmEditNumUnit EditNum;
    frmEditTextUnit EditText;
    frmSplitUnit Split;

    FMessageBox* Messages() override { return &Boxes; }
    FEditUnitNumDlg* EditUnitNumDlg() override { return &EditNum; }
    FEditUnitTextDlg* EditUnitTextDlg() override { return &EditText; }
    FSplitUnitDlg* SplitUnitDlg() override { return &Split; }
};

// The game fixture with DialogGui as the root's GUI.
class DialogFixture : public GameFixture
{
protected:
    using Step = std::function<void(QDialog&)>;

    std::unique_ptr<CGui> MakeGui() override
    {
        auto made = std::make_unique<DialogGui>();
        dialogs = made.get();
        gui = made.get();
        return made;
    }

    // Runs each step on the modal dialog about to open, one event-loop turn
    // apart, as a user would act; a dialog still open after the last step is
    // cancelled. Call it just before the call that opens the dialog.
    static void drive(std::vector<Step> steps)
    {
        next(std::make_shared<std::vector<Step>>(std::move(steps)), 0);
    }

    DialogGui* dialogs = nullptr;

private:
    // Each chain of steps keeps to the dialog it started on: once that one
    // has closed, a later dialog is left alone.
    static void next(std::shared_ptr<std::vector<Step>> steps, std::size_t i,
                     QPointer<QDialog> driven = nullptr)
    {
        QTimer::singleShot(0, [steps, i, driven] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || (i > 0 && dialog != driven))
                return;
            if (i == steps->size()) {
                dialog->reject();
                return;
            }
            (*steps)[i](*dialog);
            if (dialog->isVisible())
                next(steps, i + 1, dialog);
        });
    }
};
