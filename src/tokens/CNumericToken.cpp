#include "CNumericToken.h"

#include "actions/CActionEditUnit.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/FEditUnitNumDlg.h"
#include "model/CUnit.h"

#include <QCoreApplication>

QString CNumericToken::Class() const
{
    return QStringLiteral("CNumericToken");
}

QString CNumericToken::DefaultData() const
{
    return QStringLiteral("0");
}

QString CNumericToken::DefaultCaption() const
{
    return MultiplierPrefix() + DefaultData();
}

void CNumericToken::HandleRightClick(const std::shared_ptr<CUnit>& unit)
{
    CTraceScope scope("HandleRightClick", "CNumericToken");
    if (!unit || CurrentMapId().isEmpty())
        return;
    const std::int32_t v = CountOf(unit->Data());

    std::vector<MenuEntry> menu{
        {QCoreApplication::translate("CTokenBase", "&Edit"), QStringLiteral("EDIT")}, Separator()};
    if (v < MaxValue)
        menu.push_back(
            {QCoreApplication::translate("CTokenBase", "&Add 1"), QStringLiteral("ADD_1")});
    if (v > MinValue)
        menu.push_back(
            {QCoreApplication::translate("CTokenBase", "&Subtract 1"), QStringLiteral("SUB_1")});
    menu.push_back(Separator());
    menu.push_back(
        {QCoreApplication::translate("CTokenBase", "&Delete"), QStringLiteral("DELETE")});

    const QString key = ShowMenu(menu);
    if (key == QLatin1String("EDIT")) {
        CGui* gui = Root().Gui();
        FEditUnitNumDlg* dialog = gui ? gui->EditUnitNumDlg() : nullptr;
        if (!dialog || !dialog->Display(unit, MinValue, MaxValue))
            return;
        const std::int32_t value = dialog->Value();
        if (value >= MinValue && value <= MaxValue)
            Execute(CountEditOf(*unit, value));
    } else if (key == QLatin1String("ADD_1")) {
        if (v < MaxValue)
            Execute(CountEditOf(*unit, static_cast<std::int64_t>(v) + 1));
    } else if (key == QLatin1String("SUB_1")) {
        if (v > MinValue)
            Execute(CountEditOf(*unit, static_cast<std::int64_t>(v) - 1));
    } else if (key == QLatin1String("DELETE")) {
        DeleteUnit(unit);
    }
}
