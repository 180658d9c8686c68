#include "CMenuHandler.h"

#include "core/CKorvane.h"
#include "ui/app/CCommandGuard.h"
#include "ui/board/CMapState.h"

#include <QAction>
#include <QMenu>
#include <QTimer>

CMenuHandler::CMenuHandler(QMenu* menu, const QString& name, const QString& caption)
    : QObject(menu), m_menu(menu)
{
    m_menu->setObjectName(name);
    m_menu->setTitle(caption);
    connect(m_menu, &QMenu::aboutToShow, this, &CMenuHandler::RefreshNow);
}

void CMenuHandler::RefreshNow()
{
    CCommandGuard::Run([this] { Refresh(); });
}

void CMenuHandler::refreshSoon()
{
    if (m_refreshDue)
        return;
    m_refreshDue = true;
    QTimer::singleShot(0, this, [this] {
        m_refreshDue = false;
        RefreshNow();
    });
}

void CMenuHandler::NotifyOfNewContext()
{
    ModuleChanged();
    refreshSoon();
}

void CMenuHandler::NotifyOfNewGame()
{
    ModuleChanged();
    refreshSoon();
}

QAction* CMenuHandler::AddItem(const QString& name, const QString& caption,
                               std::function<void()> onClick)
{
    QAction* item = m_menu->addAction(caption);
    item->setObjectName(name);
    connect(item, &QAction::triggered, this,
            [onClick = std::move(onClick)] { CCommandGuard::Run(onClick); });
    return item;
}

QAction* CMenuHandler::AddSeparator(const QString& name)
{
    QAction* bar = m_menu->addSeparator();
    bar->setObjectName(name);
    return bar;
}

void CMenuHandler::AddModuleItems(std::span<QAction*> items, const QString& prefix,
                                  const std::function<void(int)>& run)
{
    for (int i = 0; i < static_cast<int>(items.size()); ++i) {
        items[i] = AddItem(prefix + QString::number(i + 1), QString(), [run, i] { run(i); });
        items[i]->setVisible(false);
    }
}

void CMenuHandler::EnableModuleItems(std::span<QAction* const> items)
{
    for (QAction* item : items)
        item->setEnabled(ModuleCommandsUsable());
}

void CMenuHandler::SetCaption(QAction* item, const QString& caption, bool enabled)
{
    item->setText(caption);
    item->setEnabled(enabled);
}

bool CMenuHandler::ModuleCommandsUsable()
{
    return Root().Game() && !CMapState::ActiveFrozen();
}
