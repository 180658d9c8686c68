#pragma once

#include <QFile>
#include <QTextStream>

// The tool's stdout and stderr. Libraries write notices of their own to
// stderr (libpng about a damaged picture, Qt about a missing runtime
// directory), which would spoil the promise of exactly one line there for a
// failure. So stderr is pointed at /dev/null while the console lives, and the
// tool writes to a copy of the real one; Qt's critical and fatal messages go
// there too, everything else Qt says is dropped. Make it before anything else.
class CToolConsole
{
public:
    CToolConsole();
    // Flushes both streams.
    ~CToolConsole();
    CToolConsole(const CToolConsole&) = delete;
    CToolConsole& operator=(const CToolConsole&) = delete;

    QTextStream& Out() { return m_out; }
    QTextStream& Err() { return m_err; }

private:
    static void messageHandler(QtMsgType type, const QMessageLogContext& context,
                               const QString& message);

    static inline int s_errorDescriptor = 2;
    QFile m_errorFile;
    QTextStream m_out;
    QTextStream m_err;
};
