#pragma once

#include <QString>

// Anything that lists search and sort by name.
class IHasName
{
public:
    virtual ~IHasName() = default;
    virtual QString Name() const = 0;
};
