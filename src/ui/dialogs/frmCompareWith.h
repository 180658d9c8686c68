#pragma once

#include <QDialog>

#include <memory>

class CGame;
class CMap;
class QTreeWidget;
class UDialogButtons;

// Chooses the map the shown one is compared with: every map of the game,
// archive by archive, the shown map itself left out. Returns the choice and
// changes nothing.
class frmCompareWith : public QDialog
{
    Q_OBJECT

public:
    explicit frmCompareWith(QWidget* parent = nullptr);

    // Lists game's maps with current selected; false when cancelled.
    bool Display(const CGame& game, const std::shared_ptr<CMap>& shown,
                 const std::shared_ptr<CMap>& current);
    // The chosen map, or null.
    std::shared_ptr<CMap> Chosen() const;

private:
    void fill(const CGame& game, const std::shared_ptr<CMap>& shown,
              const std::shared_ptr<CMap>& current);

    QTreeWidget* m_tvwMaps;
    UDialogButtons* m_buttons;
    const CGame* m_game = nullptr;
};
