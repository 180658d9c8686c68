#include "FMessageBox.h"

#include "core/CGui.h"
#include "core/CKorvane.h"

FMessageBox* FMessageBox::Current()
{
    CKorvane* root = RootOrNull();
    CGui* gui = root ? root->Gui() : nullptr;
    return gui ? gui->Messages() : nullptr;
}

void FMessageBox::Tell(const QString& text, Icon icon)
{
    if (FMessageBox* box = Current())
        box->Information(CKorvane::Name(), text, icon);
}
