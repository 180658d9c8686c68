#pragma once

#include <QCoreApplication>

#include <functional>

// Runs a command started by the user. A failure the command did not handle
// itself is shown to the user and traced; it never reaches the event loop,
// which would end the program.
class CCommandGuard
{
    Q_DECLARE_TR_FUNCTIONS(CCommandGuard)

public:
    static void Run(const std::function<void()>& command);
};
