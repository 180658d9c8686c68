#include "frmChanges.h"

#include "ui/board/CBoardReview.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

frmChanges::frmChanges(CBoardReview* review, QWidget* parent)
    : QDockWidget(tr("Changes"), parent), m_review(review)
{
    setObjectName(QStringLiteral("frmChanges"));
    auto* body = new QWidget(this);
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(4, 4, 4, 4);
    m_summary = new QLabel(body);
    m_summary->setObjectName(QStringLiteral("lblSummary"));
    m_summary->setWordWrap(true);
    m_list = new QListWidget(body);
    m_list->setObjectName(QStringLiteral("lvwChanges"));
    // A change reads as a sentence: long ones wrap instead of being cut.
    m_list->setWordWrap(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    setWidget(body);
    connect(review, &CBoardReview::ComparisonChanged, this, &frmChanges::fill);
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        const QVariant index = item->data(Qt::UserRole);
        if (m_review && index.isValid())
            m_review->ScrollTo(index.toInt());
    });
    fill();
}

void frmChanges::fill()
{
    m_list->clear();
    const bool shown = m_review && m_review->Shown();
    if (!shown) {
        m_summary->setText(
            tr("Turn on View > Show Changes to list what changed since the map before."));
        return;
    }
    if (!m_review->Available()) {
        m_summary->setText(tr("This is the game's first map: there is no map before it."));
        return;
    }
    m_summary->setText(m_review->Summary());
    const CMapComparison& comparison = m_review->Comparison();
    int index = 0;
    for (const CMapChange& change : comparison.Changes) {
        auto* item = new QListWidgetItem(change.Words(), m_list);
        item->setData(Qt::UserRole, index++);
        item->setToolTip(change.Words());
    }
    // The name and text lines come after the changes and lead nowhere.
    const QStringList lines = comparison.Lines();
    for (qsizetype i = static_cast<qsizetype>(comparison.Changes.size()); i < lines.size(); ++i)
        new QListWidgetItem(lines[i], m_list);
}
