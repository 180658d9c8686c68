#include "CPopupMenu.h"

#include <QAction>
#include <QCursor>
#include <QMenu>

CPopupMenu::CPopupMenu(QWidget* parent) : m_menu(new QMenu(parent))
{
    m_menu->setObjectName(QStringLiteral("mnuPopup"));
}

CPopupMenu::~CPopupMenu() = default;

void CPopupMenu::Clear()
{
    m_entries.clear();
    m_selected = 0;
}

void CPopupMenu::Add(const QString& caption, const QString& key)
{
    if (m_entries.size() < MaxEntries)
        m_entries.append({caption, key});
}

void CPopupMenu::Show()
{
    m_selected = 0;
    if (!m_menu)
        return;
    m_menu->clear();
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].first == QLatin1String("-")) {
            m_menu->addSeparator();
            continue;
        }
        QAction* item = m_menu->addAction(m_entries[i].first);
        item->setObjectName(QStringLiteral("mnuPopupChild%1").arg(i + 1));
        item->setData(static_cast<int>(i + 1));
    }
    if (const QAction* chosen = m_menu->exec(QCursor::pos()))
        m_selected = chosen->data().toInt();
}

QString CPopupMenu::SelectedItemContext() const
{
    return m_selected > 0 ? m_entries[m_selected - 1].second : QString();
}
