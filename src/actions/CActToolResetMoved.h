#pragma once

#include "actions/IActionTool.h"

#include <QCoreApplication>

// Clears the moved mark of every unit of the active map as one undoable
// step; does nothing when no unit is marked.
class CActToolResetMoved : public IActionTool
{
public:
    QString Caption() const override
    {
        return QCoreApplication::translate("IAction", "Reset &Moved");
    }
    void Invoke() override;
};
