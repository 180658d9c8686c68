#pragma once

#include "ui/menus/CMenuHandler.h"

#include <array>

class CReviewWindows;
class QAction;
class frmMapText;
class mdcBoard;

// "&View": the map text window, the full-screen view, the archives of the
// game, zoom and stepping through the maps of the shown archive.
class CViewMenu : public CMenuHandler
{
    Q_OBJECT

public:
    static constexpr int ArchiveCount = 9;

    // Zooms board and shows its picture full screen; Map Text shows mapText;
    // the changes since another map are review's.
    CViewMenu(QMenu* menu, mdcBoard* board, frmMapText* mapText, CReviewWindows* review);

    // "&1.  'Turn 1'" or "&2.  'Turn 5'  to  'Turn 9'".
    static QString ArchiveCaption(int number, const QString& firstMap, const QString& lastMap,
                                  int mapCount);

protected:
    void Refresh() override;

private:
    void fullScreen();
    void switchToGroup(int number);
    void stepMap(int step);

    mdcBoard* m_board;
    frmMapText* m_mapText;
    CReviewWindows* m_review;
    QMenu* m_archives;
    QAction* m_current;
    std::array<QAction*, ArchiveCount> m_groups{};
    QAction* m_fullScreen;
    QAction* m_showChanges;
    QAction* m_compareWith;
    QAction* m_replay;
};
