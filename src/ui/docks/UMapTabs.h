#pragma once

#include "model/IGameEventListener.h"

#include <QTabBar>

// One tab per map of the shown archive, captioned with the map's name, the
// shown map's tab selected. Choosing a tab shows that map; a closed archive's
// tabs and protected maps carry a lock. It does not listen to the event hub:
// the main window, which does, rebuilds it or moves its selection.
class UMapTabs : public QTabBar
{
    Q_OBJECT

public:
    explicit UMapTabs(QWidget* parent = nullptr);

    // Reads the maps of the active group again.
    void Rebuild();
    // Selects the shown map's tab without switching anything.
    void SelectActive();

private:
    void tabChosen(int index);

    bool m_filling = false;
};
