#pragma once

#include "core/IProgressMonitor.h"

// The window shown while the program starts; UpdateStatus shows its text.
class FSplashScr : public IProgressMonitor
{
public:
    ~FSplashScr() override = default;

    virtual void Show() = 0;
    virtual void Hide() = 0;
};
