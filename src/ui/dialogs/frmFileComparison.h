#pragma once

#include <QDialog>

class QLabel;
class QTreeWidget;
struct CGameComparison;

// The open game and another file of it, map by map (tvwMaps): which maps
// are the same, which differ (with the changes under them) and which only
// one of them holds. Plain words: what a difference means is the players'
// to decide.
class frmFileComparison : public QDialog
{
    Q_OBJECT

public:
    explicit frmFileComparison(QWidget* parent = nullptr);

    // Fills the list for the comparison of the file at path (older) with the
    // open game (newer).
    void Show(const QString& path, const CGameComparison& comparison);
    QTreeWidget* Tree() const { return m_tvwMaps; }

private:
    QLabel* m_heading;
    QTreeWidget* m_tvwMaps;
};
