#pragma once

#include "model/IGameEventListener.h"

// The window that shows and edits the active map's free text.
class FMapTextWin : public IGameEventListener
{
public:
    ~FMapTextWin() override = default;

    virtual void Show() = 0;
    virtual void Hide() = 0;
    virtual bool Visible() const = 0;
};
