#include "CTokenBase.h"

#include "actions/CActionAddUnit.h"
#include "actions/CActionDeleteUnit.h"
#include "actions/CActionEditUnit.h"
#include "actions/CActionHelper.h"
#include "actions/CActionMgr.h"
#include "actions/CActionMoveUnit.h"
#include "contexts/IGameContext.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/FPopupMenu.h"
#include "model/CMap.h"
#include "model/CUnit.h"

#include <QCoreApplication>

namespace {

const QLatin1String deleteKey("DELETE");

} // namespace

CTokenBase::CTokenBase(QString id, std::int16_t index, QString category, QString caption,
                       QString image, std::int32_t imageWidth, std::int32_t imageHeight,
                       std::int32_t regionLeft, std::int32_t regionTop, std::int32_t regionWidth,
                       std::int32_t regionHeight)
    : m_id(std::move(id)), m_index(index), m_category(std::move(category)),
      m_caption(std::move(caption)), m_image(std::move(image)), m_imageWidth(imageWidth),
      m_imageHeight(imageHeight), m_regionLeft(regionLeft == -1 ? 0 : regionLeft),
      m_regionTop(regionTop == -1 ? 0 : regionTop),
      m_regionWidth(regionWidth == -1 ? imageWidth : regionWidth),
      m_regionHeight(regionHeight == -1 ? imageHeight : regionHeight)
{}

std::int32_t CTokenBase::CountOf(const QString& data)
{
    bool ok = false;
    const int value = data.trimmed().toInt(&ok, 10);
    return ok ? value : 0;
}

QString CTokenBase::MultiplierPrefix()
{
    CKorvane* root = RootOrNull();
    if (root && root->Context())
        return root->Context()->MultiplierPrefix();
    return QStringLiteral("x");
}

QString CTokenBase::CurrentMapId()
{
    const std::shared_ptr<CMap> map = CActionHelper::CurrentMap();
    return map ? map->Id() : QString();
}

QString CTokenBase::ShowMenu(const std::vector<MenuEntry>& entries)
{
    CTraceScope scope("ShowMenu", "CTokenBase");
    CKorvane* root = RootOrNull();
    CGui* gui = root ? root->Gui() : nullptr;
    FPopupMenu* menu = gui ? gui->PopupMenu() : nullptr;
    if (!menu)
        return QString();
    menu->Clear();
    for (const MenuEntry& entry : entries)
        menu->Add(entry.Caption, entry.Key);
    scope.Denote(QStringLiteral("Showing Menu"));
    menu->Show();
    if (menu->SelectedItem() <= 0)
        return QString();
    return menu->SelectedItemContext();
}

void CTokenBase::Execute(std::shared_ptr<IAction> action)
{
    Root().ActionMgr().Execute(std::move(action));
}

std::shared_ptr<CActionEditUnit> CTokenBase::EditOf(const CUnit& unit, const QString& data,
                                                    const QString& caption, bool moved)
{
    auto edit = std::make_shared<CActionEditUnit>();
    edit->SetMapId(CurrentMapId());
    edit->SetUnitId(unit.Id());
    edit->SetData(data);
    edit->SetUnitCaption(caption);
    edit->SetHasMoved(moved);
    return edit;
}

std::shared_ptr<CActionEditUnit> CTokenBase::CountEditOf(const CUnit& unit, std::int64_t count)
{
    const QString text = QString::number(count);
    return EditOf(unit, text, MultiplierPrefix() + text, unit.HasMoved());
}

void CTokenBase::DeleteUnit(const std::shared_ptr<CUnit>& unit)
{
    auto action = std::make_shared<CActionDeleteUnit>();
    action->SetMapId(CurrentMapId());
    action->SetUnit(unit);
    Execute(std::move(action));
}

void CTokenBase::HandleRightClick(const std::shared_ptr<CUnit>& unit)
{
    CTraceScope scope("HandleRightClick", "CTokenBase");
    if (!unit || CurrentMapId().isEmpty())
        return;
    if (ShowMenu({{QCoreApplication::translate("CTokenBase", "&Delete"), deleteKey}}) == deleteKey)
        DeleteUnit(unit);
}

void CTokenBase::HandleMove(std::int32_t x, std::int32_t y, const std::shared_ptr<CUnit>& unit)
{
    CTraceScope scope("HandleMove", "CTokenBase");
    const QString mapId = CurrentMapId();
    if (!unit || mapId.isEmpty())
        return;
    auto action = std::make_shared<CActionMoveUnit>();
    action->SetMapId(mapId);
    action->SetPosition(static_cast<float>(x), static_cast<float>(y));
    action->SetUnitId(unit->Id());
    action->SetHasMoved(true);
    Execute(std::move(action));
}

// A plain counter accepts nothing dropped onto it.
void CTokenBase::HandleMoveOnto(const std::shared_ptr<CUnit>&, const std::shared_ptr<CUnit>&) {}

void CTokenBase::HandleDrop(std::int32_t x, std::int32_t y)
{
    CTraceScope scope("HandleDrop", "CTokenBase");
    const QString mapId = CurrentMapId();
    if (mapId.isEmpty())
        return;
    auto action = std::make_shared<CActionAddUnit>();
    action->SetMapId(mapId);
    action->SetTokenId(m_id);
    action->SetPosition(x, y);
    Execute(std::move(action));
}
