#pragma once

#include "actions/IActionTool.h"

// Removes every arrow of the active map as one undoable step; does nothing
// on a map without arrows.
class CActToolClearArrows : public IActionTool
{
public:
    QString Caption() const override { return QStringLiteral("Clear All Arro&ws"); }
    void Invoke() override;
};
