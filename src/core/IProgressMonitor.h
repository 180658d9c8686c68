#pragma once

#include <QString>

// Reports progress of long start-up and activation work. The text stays
// visible for at least minimumSeconds before the next call replaces it.
class IProgressMonitor
{
public:
    virtual ~IProgressMonitor() = default;
    virtual void UpdateStatus(const QString& text, float minimumSeconds) = 0;
};
