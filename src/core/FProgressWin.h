#pragma once

#include "core/IProgressMonitor.h"

// The progress window shown while a context is activated or a game is built
// or loaded. UpdateStatus (from IProgressMonitor) shows its text.
class FProgressWin : public IProgressMonitor
{
public:
    ~FProgressWin() override = default;

    virtual void Load() = 0;
    virtual void Show() = 0;
    virtual void Hide() = 0;
    virtual void Unload() = 0;
};
