#pragma once

#include "ui/menus/CMenuHandler.h"

#include <array>

class QAction;

// "&Action": undo and redo with the names of the actions they would undo or
// redo, and up to five commands of the game module.
class CActionMenu : public CMenuHandler
{
    Q_OBJECT

public:
    static constexpr int CustomCount = 5;

    explicit CActionMenu(QMenu* menu);

protected:
    void Refresh() override;
    void ModuleChanged() override { rebuildCustom(); }

private:
    void rebuildCustom();
    static void runCustom(int index);

    QAction* m_undo;
    QAction* m_redo;
    std::array<QAction*, CustomCount> m_custom{};
};
