#pragma once

#include "ui/menus/CMenuHandler.h"

#include <array>

class QAction;

// "&Tools": installing a module and up to three tools of the game module.
class CToolsMenu : public CMenuHandler
{
    Q_OBJECT

public:
    static constexpr int CustomCount = 3;

    explicit CToolsMenu(QMenu* menu);

protected:
    void Refresh() override;
    void ModuleChanged() override { rebuildCustom(); }

private:
    void installModule();
    void rebuildCustom();
    static void runCustom(int index);

    std::array<QAction*, CustomCount> m_custom{};
};
