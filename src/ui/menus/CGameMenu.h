#pragma once

#include "ui/menus/CMenuHandler.h"

class QAction;

// "&Game": the game's and the shown map's properties, adding a map and
// removing the shown one.
class CGameMenu : public CMenuHandler
{
    Q_OBJECT

public:
    // An archive holds this many maps; the next map starts a new archive.
    static constexpr std::int32_t MapsPerArchive = 100;

    explicit CGameMenu(QMenu* menu);

    // Whether a map may be added to, or the shown map removed from, the
    // active archive.
    static bool CanAddMap();
    static bool CanRemoveMap();

protected:
    void Refresh() override;

private:
    void gameProperties();
    void addMap();
    void removeMap();
    void mapProperties();

    QAction* m_props;
    QAction* m_add;
    QAction* m_remove;
    QAction* m_mapProps;
};
