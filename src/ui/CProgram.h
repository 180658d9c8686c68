#pragma once

class QApplication;

// The program from start to end: the splash window while the root and its
// services are built and the modules found, the main window, the game named on
// the command line, the event loop, and the shut-down once the main window has
// closed.
class CProgram
{
public:
    static int Run(QApplication& application);
};
