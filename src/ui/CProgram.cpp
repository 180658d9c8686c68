#include "CProgram.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FMessageBox.h"
#include "core/MMain.h"
#include "persist/CRecoveryMgr.h"
#include "ui/CWidgetGui.h"
#include "ui/frmSplash.h"
#include "ui/mdiMain.h"

#include <QApplication>
#include <QCursor>

#include <memory>

int CProgram::Run(QApplication& application)
{
    QApplication::setApplicationName(CKorvane::Name());
    QApplication::setOrganizationName(CKorvane::Name());
    QApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION_STRING));
    // Ties the windows to the installed desktop entry (its icon and name).
    QGuiApplication::setDesktopFileName(QStringLiteral("korvane"));
    // The main window's close ends the program; the shut-down below follows.
    QApplication::setQuitOnLastWindowClosed(true);

    auto splash = std::make_unique<frmSplash>();
    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    auto root = std::make_shared<CKorvane>();
    mdiMain* window = nullptr;
    root->SetGuiFactory([&window] {
        auto gui = std::make_unique<CWidgetGui>();
        window = gui->MainWindow();
        return gui;
    });
    InstallRoot(root);
    splash->Show();
    root->Constructor(splash.get());
    window->Load();
    window->show();
    splash->Hide();
    splash.reset();
    QApplication::restoreOverrideCursor();

    // Changes left by a Korvane that crashed come first; a game restored
    // from them is not replaced by a file named on the command line.
    CRecoveryMgr recovery;
    FMessageBox* messages = root->Gui() ? root->Gui()->Messages() : nullptr;
    if (!messages || !recovery.OfferRecovery(*messages)) {
        QStringList arguments = QApplication::arguments();
        arguments.removeFirst();
        MMain::HandleCommandLine(MMain::JoinArguments(arguments));
    }
    recovery.Start();

    const int status = application.exec();
    recovery.Exit();
    MMain::ShutdownApplication();
    return status;
}
