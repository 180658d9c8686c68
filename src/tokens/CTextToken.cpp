#include "CTextToken.h"

#include "actions/CActionEditUnit.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/FEditUnitTextDlg.h"
#include "model/CUnit.h"

#include <QCoreApplication>

QString CTextToken::Class() const
{
    return QStringLiteral("CTextToken");
}

QString CTextToken::DefaultCaption() const
{
    const QString custom = Custom();
    return custom.isEmpty() ? Caption() : custom;
}

void CTextToken::HandleRightClick(const std::shared_ptr<CUnit>& unit)
{
    CTraceScope scope("HandleRightClick", "CTextToken");
    if (!unit || CurrentMapId().isEmpty())
        return;
    const QString key = ShowMenu(
        {{QCoreApplication::translate("CTokenBase", "&Edit"), QStringLiteral("EDIT")},
         Separator(),
         {QCoreApplication::translate("CTokenBase", "&Delete"), QStringLiteral("DELETE")}});
    if (key == QLatin1String("EDIT")) {
        CGui* gui = Root().Gui();
        FEditUnitTextDlg* dialog = gui ? gui->EditUnitTextDlg() : nullptr;
        if (!dialog || !dialog->Display(unit))
            return;
        // The short text is the label on the board; the long one is kept as data.
        Execute(EditOf(*unit, dialog->Extended(), dialog->Text(), unit->HasMoved()));
    } else if (key == QLatin1String("DELETE")) {
        DeleteUnit(unit);
    }
}
