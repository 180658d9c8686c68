#pragma once

#include "actions/IActionTool.h"

#include <QCoreApplication>

// Removes every arrow of the active map as one undoable step; does nothing
// on a map without arrows.
class CActToolClearArrows : public IActionTool
{
public:
    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Clear All Arro&ws");
    }
    void Invoke() override;
};
