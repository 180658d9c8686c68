#pragma once

// Told when a drag it started ended without a drop on any target.
class IDragDropObserver
{
public:
    virtual ~IDragDropObserver() = default;
    virtual void NotifyNullDrop() = 0;
};
