#pragma once

#include "ui/CMenuHandler.h"

class QAction;
class QMenu;
class mdiMain;

// "&File": new, open, save, save as, print, the recent games and exit.
class CFileMenu : public CMenuHandler
{
    Q_OBJECT

public:
    CFileMenu(QMenu* menu, mdiMain* window);

    void Print();

protected:
    void Refresh() override;

private:
    void fillRecent();
    void openRecent(const QString& path);

    mdiMain* m_window;
    QAction* m_save = nullptr;
    QAction* m_saveAs = nullptr;
    QAction* m_print = nullptr;
    QMenu* m_recent = nullptr;
};
