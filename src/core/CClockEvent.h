#pragma once

#include "core/IAsyncEvent.h"

#include <QString>

#include <cstdint>
#include <memory>

// One scheduled call: when it is due (in the clock's timestamp scale), the
// target and the arguments handed back to it. The event keeps its target alive.
struct CClockEvent
{
    std::int64_t Due = 0;
    std::shared_ptr<IAsyncEvent> Target;
    std::int32_t Argument = 0;
    QString Text;
};
