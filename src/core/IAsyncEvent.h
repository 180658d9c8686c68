#pragma once

#include <QString>

#include <cstdint>

// A callback the clock runs later from the event loop; argument and text come
// back exactly as they were scheduled.
class IAsyncEvent
{
public:
    virtual ~IAsyncEvent() = default;
    virtual void Invoke(std::int32_t argument, const QString& text) = 0;
};
