#pragma once

#include "core/FPopupMenu.h"

#include <QList>
#include <QMenu>
#include <QPair>
#include <QPointer>

class QMenu;
class QWidget;

// The tokens' right-click menu: up to fifteen entries, shown at the pointer.
class CPopupMenu : public FPopupMenu
{
public:
    explicit CPopupMenu(QWidget* parent);
    ~CPopupMenu() override;

    void Clear() override;
    void Add(const QString& caption, const QString& key) override;
    void Show() override;
    std::int32_t SelectedItem() const override { return m_selected; }
    QString SelectedItemContext() const override;

    // The menu itself, for tests that answer it while it is open.
    QMenu* Menu() const { return m_menu; }

private:
    QPointer<QMenu> m_menu;
    QList<QPair<QString, QString>> m_entries;
    std::int32_t m_selected = 0;
};
