#include "CHelpMenu.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CWinApi.h"
#include "core/FAboutDlg.h"

#include <QAction>
#include <QMenu>

CHelpMenu::CHelpMenu(QMenu* menu) : CMenuHandler(menu, QStringLiteral("mnuHelp"), tr("&Help"))
{
    AddItem(QStringLiteral("mnuHelpEmailUs"), tr("&Email Us..."), [] {
        Root().WinApi().LauchUrl(QStringLiteral("mailto:") + QLatin1String(SupportAddress));
    });
    AddItem(QStringLiteral("mnuHelpVisitUs"), tr("&Visit Us On The Web..."),
            [] { Root().WinApi().LauchUrl(QLatin1String(WebSite)); });
    AddSeparator(QStringLiteral("mnuHelpBar1"));
    AddItem(QStringLiteral("mnuHelpAbout"), tr("&About..."), [] {
        if (FAboutDlg* about = Root().Gui() ? Root().Gui()->AboutDlg() : nullptr)
            about->Display();
    });
}
