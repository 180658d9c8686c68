#pragma once

#include <memory>

class QString;

class CRecoveryMgr;
class CTranslators;
class QApplication;
class mdiMain;

// The program from start to end: the splash window while the root and its
// services are built and the modules found, the main window, a game left by
// a crash or named on the command line, the event loop, and the shut-down
// once the main window has closed.
class CProgram
{
public:
    explicit CProgram(QApplication& application);
    // Shuts down: the recovery copy goes, then the root and its services.
    ~CProgram();
    CProgram(const CProgram&) = delete;
    CProgram& operator=(const CProgram&) = delete;

    // Everything up to the shown main window with its game. Returns the window.
    mdiMain* Start();
    // The event loop, until the main window closes.
    int Exec();

    static int Run(QApplication& application);

    // Opens the game file named on the command line (as the file manager
    // does). With no game open it goes as the command line always does, and
    // a refused file leaves no module active. Over a game already open (one
    // restored from a recovery copy) it opens as File > Open would, asking
    // first whether to save that game; that game's own file is already open.
    static void OpenAtStart(const QString& commandLine);

private:
    QApplication& m_application;
    std::unique_ptr<CTranslators> m_translators;
    std::unique_ptr<CRecoveryMgr> m_recovery;
    mdiMain* m_window = nullptr;
};
