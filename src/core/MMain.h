#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class IGameContext;

// Start-up helpers shared by the program and the tests.
namespace MMain {

// Rebuilds the single command-line string from the program's arguments:
// arguments holding a blank are wrapped in double quotes, all joined by one blank.
QString JoinArguments(const QStringList& arguments);

// The path of an existing file named by the command line, or "". Only the
// first argument counts; lines under 5 characters are ignored.
QString ExtractFileArgument(const QString& commandLine);

// Opens the game file named on the command line, if any: activates the
// context that wrote it (announcing the change) and makes it the current game.
// A file of a module that is not installed is ignored silently.
void HandleCommandLine(const QString& commandLine);

// Makes context the active one: another active context is removed first and
// the change announced; the active context itself stays as it is. False when
// the new context cannot be activated (no context is active then, and the
// user has been told why).
bool SwitchContext(const std::shared_ptr<IGameContext>& context);

// Removes the active context, announcing the change, as SwitchContext does
// before it activates another. Nothing happens when no context is active.
void DropContext();

// Disposes and releases the root.
void ShutdownApplication();

} // namespace MMain
