#pragma once

#include "actions/IActionTool.h"

// Clears the moved mark of every unit of the active map as one undoable
// step; does nothing when no unit is marked.
class CActToolResetMoved : public IActionTool
{
public:
    QString Caption() const override { return QStringLiteral("Reset &Moved"); }
    void Invoke() override;
};
