#include "CProgram.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FMessageBox.h"
#include "core/MMain.h"
#include "model/CGame.h"
#include "persist/CRecoveryMgr.h"
#include "ui/app/CFocusReturn.h"
#include "ui/app/CGameCommands.h"
#include "ui/app/CTranslators.h"
#include "ui/app/CWidgetGui.h"
#include "ui/app/mdiMain.h"
#include "ui/dialogs/frmSplash.h"

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QLocale>

CProgram::CProgram(QApplication& application) : m_application(application)
{
    QApplication::setApplicationName(CKorvane::Name());
    QApplication::setOrganizationName(CKorvane::Name());
    QApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION_STRING));
    // Ties the windows to the installed desktop entry (its icon and name).
    QGuiApplication::setDesktopFileName(QStringLiteral("korvane"));
    // The main window's close ends the program; the shut-down follows.
    QApplication::setQuitOnLastWindowClosed(true);
    // The player's language, before the first window is made.
    m_translators = std::make_unique<CTranslators>(QLocale::system().uiLanguages());
    new CFocusReturn(&m_application);
}

CProgram::~CProgram()
{
    if (m_window)
        m_window->SetRecovery(nullptr);
    if (m_recovery)
        m_recovery->Exit();
    m_recovery.reset();
    MMain::ShutdownApplication();
    m_translators.reset();
}

mdiMain* CProgram::Start()
{
    auto splash = std::make_unique<frmSplash>();
    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    auto root = std::make_shared<CKorvane>();
    root->SetGuiFactory([this] {
        auto gui = std::make_unique<CWidgetGui>();
        m_window = gui->MainWindow();
        return gui;
    });
    InstallRoot(root);
    splash->Show();
    root->Constructor(splash.get());
    m_window->Load();
    m_window->show();
    splash->Hide();
    splash.reset();
    QApplication::restoreOverrideCursor();

    // Changes left by a Korvane that crashed come first; a file named on
    // the command line is opened after the question.
    m_recovery = std::make_unique<CRecoveryMgr>();
    if (FMessageBox* messages = root->Gui() ? root->Gui()->Messages() : nullptr)
        m_recovery->OfferRecovery(*messages);
    QStringList arguments = QApplication::arguments();
    arguments.removeFirst();
    OpenAtStart(MMain::JoinArguments(arguments));
    m_recovery->Start();
    m_window->SetRecovery(m_recovery.get());
    return m_window;
}

void CProgram::OpenAtStart(const QString& commandLine)
{
    const std::shared_ptr<CGame> open = Root().Game();
    if (!open) {
        MMain::HandleCommandLine(commandLine);
        CGameCommands::DropIdleModule();
        return;
    }
    const QString path = MMain::ExtractFileArgument(commandLine.trimmed());
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (!path.isEmpty() && canonical != QFileInfo(open->FilePath()).canonicalFilePath())
        CGameCommands::OpenFile(path);
}

int CProgram::Exec()
{
    return m_application.exec();
}

int CProgram::Run(QApplication& application)
{
    CProgram program(application);
    program.Start();
    return program.Exec();
}
