#pragma once

#include <QString>

// A one-click command that a game context offers in the Tools menu. Invoke
// builds the actions it needs and executes them through the action manager.
class IActionTool
{
public:
    virtual ~IActionTool() = default;

    // The menu text, with "&" before the access key.
    virtual QString Caption() const = 0;
    virtual void Invoke() = 0;
};
