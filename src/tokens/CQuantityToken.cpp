#include "CQuantityToken.h"

#include "actions/CActionAddUnit.h"
#include "actions/CActionDeleteUnit.h"
#include "actions/CActionEditUnit.h"
#include "actions/CActionGroup.h"
#include "actions/CActionHelper.h"
#include "actions/CActionMoveUnit.h"
#include "contexts/IGameContext.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/FEditUnitNumDlg.h"
#include "core/FSplitUnitDlg.h"
#include "model/CUnit.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Place
{
    std::int32_t X;
    std::int32_t Y;
};

// One region to the right of the old unit and one region above it. A
// position is the top-left corner of the unit's picture, so the offsets apply
// to it directly; the new region is kept inside the board's right edge and
// the new picture's top below the board's top.
Place splitPlace(const CUnit& unit, const IToken& token)
{
    const std::int64_t width = std::max(token.RegionWidth(), 0);
    const std::int64_t height = std::max(token.RegionHeight(), 0);
    const std::int64_t regionLeft = std::max(token.RegionLeft(), 0);

    std::int64_t x = static_cast<std::int64_t>(unit.x()) + width;
    CKorvane* root = RootOrNull();
    if (root && root->Context()) {
        const std::int64_t boardWidth = root->Context()->MapWidth();
        if (x + regionLeft + width > boardWidth)
            x = boardWidth - regionLeft - width;
    }
    x = std::max<std::int64_t>(x, 0);
    const std::int64_t y = std::max<std::int64_t>(static_cast<std::int64_t>(unit.y()) - height, 0);
    return {CActionHelper::Clamp32(x), CActionHelper::Clamp32(y)};
}

} // namespace

QString CQuantityToken::Class() const
{
    return QStringLiteral("CQuantityToken");
}

QString CQuantityToken::DefaultData() const
{
    return QStringLiteral("1");
}

QString CQuantityToken::DefaultCaption() const
{
    return MultiplierPrefix() + DefaultData();
}

void CQuantityToken::HandleRightClick(const std::shared_ptr<CUnit>& unit)
{
    CTraceScope scope("HandleRightClick", "CQuantityToken");
    if (!unit || CurrentMapId().isEmpty())
        return;
    const std::int32_t q = CountOf(unit->Data());

    std::vector<MenuEntry> menu{
        {QCoreApplication::translate("CTokenBase", "&Edit"), QStringLiteral("EDIT")}, Separator()};
    if (q < MaxCount)
        menu.push_back(
            {QCoreApplication::translate("CTokenBase", "&Add 1"), QStringLiteral("ADD_1")});
    if (q >= 2) {
        menu.push_back(
            {QCoreApplication::translate("CTokenBase", "&Subtract 1"), QStringLiteral("SUB_1")});
        menu.push_back(Separator());
        menu.push_back(
            {QCoreApplication::translate("CTokenBase", "Split Off &1"), QStringLiteral("SPLIT_1")});
        if (q >= 3)
            menu.push_back({QCoreApplication::translate("CTokenBase", "Split Off &2 "),
                            QStringLiteral("SPLIT_2")});
        if (q >= 6)
            menu.push_back({QCoreApplication::translate("CTokenBase", "Split Off &5"),
                            QStringLiteral("SPLIT_5")});
        if (q >= 11)
            menu.push_back({QCoreApplication::translate("CTokenBase", "Split Off 1&0"),
                            QStringLiteral("SPLIT_10")});
        menu.push_back({QCoreApplication::translate("CTokenBase", "&Custom Split"),
                        QStringLiteral("SPLIT_x")});
    }
    menu.push_back(Separator());
    menu.push_back(
        {QCoreApplication::translate("CTokenBase", "&Delete"), QStringLiteral("DELETE")});
    menu.push_back(Separator());
    menu.push_back(
        {QCoreApplication::translate("CTokenBase", "Toggle &Moved"), QStringLiteral("MOVED")});

    const QString key = ShowMenu(menu);
    if (key.isEmpty())
        return;
    CGui* gui = Root().Gui();
    if (key == QLatin1String("EDIT")) {
        FEditUnitNumDlg* dialog = gui ? gui->EditUnitNumDlg() : nullptr;
        if (!dialog || !dialog->Display(unit, 1, MaxCount))
            return;
        const std::int32_t value = dialog->Value();
        if (value >= 1 && value <= MaxCount)
            Execute(CountEditOf(*unit, value));
    } else if (key == QLatin1String("ADD_1")) {
        if (q < MaxCount)
            Execute(CountEditOf(*unit, static_cast<std::int64_t>(q) + 1));
    } else if (key == QLatin1String("SUB_1")) {
        if (q >= 2)
            Execute(CountEditOf(*unit, q - 1));
    } else if (key == QLatin1String("DELETE")) {
        DeleteUnit(unit);
    } else if (key == QLatin1String("MOVED")) {
        Execute(EditOf(*unit, unit->Data(), unit->Caption(), !unit->HasMoved()));
    } else if (key == QLatin1String("SPLIT_x")) {
        FSplitUnitDlg* dialog = gui ? gui->SplitUnitDlg() : nullptr;
        if (!dialog || !dialog->Display(unit))
            return;
        split(unit, dialog->Value());
    } else if (key.startsWith(QLatin1String("SPLIT_"))) {
        split(unit, CountOf(key.mid(6)));
    }
}

CQuantityToken::SplitSteps CQuantityToken::SplitOff(const CUnit& unit, std::int32_t n,
                                                    std::int32_t x, std::int32_t y)
{
    const std::int32_t q = CountOf(unit.Data());
    // At least one piece stays behind.
    if (!dynamic_cast<const CQuantityToken*>(unit.Token().get()) || n < 1 || n >= q)
        return {};
    auto added = std::make_shared<CActionAddUnit>();
    added->SetMapId(CurrentMapId());
    added->SetUnitId(CUtility::GenerateId());
    added->SetTokenId(unit.Token()->Id());
    added->SetPosition(x, y);

    // The new stack shares the old one's moved mark: its pieces came along.
    auto newCount = CountEditOf(unit, n);
    newCount->SetUnitId(added->UnitId());

    auto group = std::make_shared<CActionGroup>();
    group->SetCaption(QCoreApplication::translate("IAction", "Split Off %1").arg(n));

    group->AddAction(CountEditOf(unit, q - n));
    group->AddAction(added);
    group->AddAction(newCount);
    return {std::move(group), added->UnitId()};
}

void CQuantityToken::split(const std::shared_ptr<CUnit>& unit, std::int32_t n)
{
    const Place place = splitPlace(*unit, *this);
    SplitSteps steps = SplitOff(*unit, n, place.X, place.Y);
    if (steps.Group)
        Execute(std::move(steps.Group));
}

QString CQuantityToken::TearOff(const std::shared_ptr<CUnit>& unit, std::int32_t amount,
                                std::int32_t x, std::int32_t y)
{
    CTraceScope scope("TearOff", "CQuantityToken");
    if (!unit || CurrentMapId().isEmpty())
        return QString();
    SplitSteps steps = SplitOff(*unit, amount, x, y);
    if (!steps.Group)
        return QString();
    // The group ends with a move of the new stack, so that the drag that
    // follows chains into it and one undo takes back tear-off and drag.
    auto placed = std::make_shared<CActionMoveUnit>();
    placed->SetMapId(CurrentMapId());
    placed->SetUnitId(steps.NewUnitId);
    placed->SetPosition(static_cast<float>(x), static_cast<float>(y));
    placed->SetHasMoved(unit->HasMoved());
    steps.Group->SetCaption(QCoreApplication::translate("IAction", "Tear Off %1").arg(amount));

    steps.Group->SetAllowChain(true);
    steps.Group->AddAction(placed);
    Execute(steps.Group);
    return steps.NewUnitId;
}

void CQuantityToken::HandleMoveOnto(const std::shared_ptr<CUnit>& unit,
                                    const std::shared_ptr<CUnit>& target)
{
    CTraceScope scope("HandleMoveOnto", "CQuantityToken");
    if (!unit || !target || unit == target || CurrentMapId().isEmpty())
        return;
    const std::int64_t onTarget = CountOf(target->Data());
    const std::int64_t onUnit = CountOf(unit->Data());

    auto group = std::make_shared<CActionGroup>();
    group->SetCaption(QCoreApplication::translate("IAction", "Merge Units"));

    if (onTarget + onUnit <= MaxCount) {
        group->AddAction(CountEditOf(*target, onTarget + onUnit));
        auto removed = std::make_shared<CActionDeleteUnit>();
        removed->SetMapId(CurrentMapId());
        removed->SetUnit(unit);
        group->AddAction(removed);
    } else {
        // Fill the target up; what does not fit stays on the dragged stack.
        const std::int64_t moved = MaxCount - onTarget;
        if (moved <= 0)
            return;
        group->AddAction(CountEditOf(*target, MaxCount));
        group->AddAction(CountEditOf(*unit, onUnit - moved));
    }
    Execute(std::move(group));
}
