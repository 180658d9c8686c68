#pragma once

// Work deferred until the program ends (after the windows are gone, before
// any service is released).
class IShutdownTask
{
public:
    virtual ~IShutdownTask() = default;
    virtual void Execute() = 0;
};
