#include "frmCompareWith.h"

#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "ui/dialogs/UDialogButtons.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmCompareWith::frmCompareWith(QWidget* parent)
    : QDialog(parent), m_tvwMaps(new QTreeWidget(this)), m_buttons(new UDialogButtons(this))
{
    setObjectName(QStringLiteral("frmCompareWith"));
    setWindowTitle(tr("Compare With"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Show the changes since this map:"), this));
    m_tvwMaps->setObjectName(QStringLiteral("tvwMaps"));
    m_tvwMaps->setHeaderHidden(true);
    m_tvwMaps->setColumnCount(1);
    layout->addWidget(m_tvwMaps, 1);
    layout->addWidget(m_buttons);
    resize(360, 420);
    connect(m_tvwMaps, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        if (item->parent())
            accept();
    });
    connect(m_tvwMaps, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { m_buttons->Ok()->setEnabled(item && item->parent()); });
}

bool frmCompareWith::Display(const CGame& game, const std::shared_ptr<CMap>& shown,
                             const std::shared_ptr<CMap>& current)
{
    m_game = &game;
    fill(game, shown, current);
    return exec() == QDialog::Accepted && Chosen();
}

void frmCompareWith::fill(const CGame& game, const std::shared_ptr<CMap>& shown,
                          const std::shared_ptr<CMap>& current)
{
    m_tvwMaps->clear();
    m_buttons->Ok()->setEnabled(false);
    const CVector<CMapGroup>& groups = game.MapGroups();
    for (std::int32_t g = 1; g <= groups.Count(); ++g) {
        auto* archive = new QTreeWidgetItem(m_tvwMaps, {tr("Archive %1").arg(g)});
        archive->setFlags(Qt::ItemIsEnabled);
        const CVector<CMap>& maps = groups.Item(g)->Maps();
        for (std::int32_t m = 1; m <= maps.Count(); ++m) {
            const std::shared_ptr<CMap>& map = maps.Item(m);
            if (map == shown)
                continue;
            auto* item = new QTreeWidgetItem(archive, {map->Name()});
            item->setData(0, Qt::UserRole, map->Id());
            if (map == current)
                m_tvwMaps->setCurrentItem(item);
        }
        archive->setExpanded(true);
    }
}

std::shared_ptr<CMap> frmCompareWith::Chosen() const
{
    const QTreeWidgetItem* item = m_tvwMaps->currentItem();
    if (!m_game || !item || !item->parent())
        return nullptr;
    return m_game->MapById(item->data(0, Qt::UserRole).toString());
}
