#pragma once

#include <QDockWidget>
#include <QPointer>

class CBoardReview;
class QLabel;
class QListWidget;

// The changes on the shown map in words (lvwChanges), with the summary over
// them. Clicking a change scrolls the board to it. Follows the board review:
// the list is filled again whenever the comparison changes.
class frmChanges : public QDockWidget
{
    Q_OBJECT

public:
    frmChanges(CBoardReview* review, QWidget* parent = nullptr);

    QListWidget* List() const { return m_list; }

private:
    void fill();

    QPointer<CBoardReview> m_review;
    QLabel* m_summary;
    QListWidget* m_list;
};
