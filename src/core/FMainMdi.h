#pragma once

#include "model/IGameEventListener.h"

// The main window as the engine sees it. It hears every model change itself
// and hands out the components that hear them after it; any of them may be
// null while the window is being built or torn down.
class FMainMdi : public IGameEventListener
{
public:
    ~FMainMdi() override = default;

    virtual IGameEventListener* BoardMdc() = 0;
    virtual IGameEventListener* MapTextWin() = 0;
    virtual IGameEventListener* FileMenu() = 0;
    virtual IGameEventListener* ActionMenu() = 0;
    virtual IGameEventListener* ViewMenu() = 0;
    virtual IGameEventListener* GameMenu() = 0;
    virtual IGameEventListener* ToolsMenu() = 0;
    virtual IGameEventListener* HelpMenu() = 0;
};
