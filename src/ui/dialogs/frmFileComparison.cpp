#include "frmFileComparison.h"

#include "review/CGameComparison.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmFileComparison::frmFileComparison(QWidget* parent)
    : QDialog(parent), m_heading(new QLabel(this)), m_tvwMaps(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("frmFileComparison"));
    setWindowTitle(tr("Compare With File"));
    auto* layout = new QVBoxLayout(this);
    m_heading->setWordWrap(true);
    layout->addWidget(m_heading);
    m_tvwMaps->setObjectName(QStringLiteral("tvwMaps"));
    m_tvwMaps->setHeaderLabels({tr("Map"), tr("Compared")});
    m_tvwMaps->setColumnWidth(0, 240);
    layout->addWidget(m_tvwMaps, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("cmdClose"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(620, 460);
}

void frmFileComparison::Show(const QString& path, const CGameComparison& comparison)
{
    using Status = CGameComparison::Entry::EntryStatus;
    const QString file = QFileInfo(path).fileName();
    m_heading->setText(
        tr("The open game compared with %1, map by map (archive and position).").arg(file));
    m_tvwMaps->clear();
    for (const CGameComparison::Entry& entry : comparison.Maps) {
        QString status;
        switch (entry.Status) {
        case Status::Same:
            status = tr("same");
            break;
        case Status::Changed:
            status = tr("changed: %1").arg(entry.Comparison.Summary());
            break;
        case Status::Added:
            status = tr("only in the open game");
            break;
        case Status::Removed:
            status = tr("only in %1").arg(file);
            break;
        }
        auto* row = new QTreeWidgetItem(
            m_tvwMaps,
            {tr("Archive %1, map %2: %3").arg(entry.Group).arg(entry.Map).arg(entry.Name), status});
        if (entry.Status == Status::Changed) {
            for (const QString& line : entry.Comparison.Lines())
                new QTreeWidgetItem(row, {line});
            row->setExpanded(true);
            for (int i = 0; i < row->childCount(); ++i)
                row->child(i)->setFirstColumnSpanned(true);
        }
    }
}
