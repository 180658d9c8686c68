#pragma once

#include "ui/menus/CMenuHandler.h"

// "&Help": writing to the makers, their web site and the about box.
class CHelpMenu : public CMenuHandler
{
    Q_OBJECT

public:
    static constexpr const char* SupportAddress = "support@example.org";
    static constexpr const char* WebSite = "https://example.org/korvane/";

    explicit CHelpMenu(QMenu* menu);
};
