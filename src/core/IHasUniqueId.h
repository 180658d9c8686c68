#pragma once

#include <QString>

// Anything that lists search by identifier.
class IHasUniqueId
{
public:
    virtual ~IHasUniqueId() = default;
    virtual QString UniqueId() const = 0;
};
