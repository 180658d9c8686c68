#pragma once

#include <QString>

#include <stdexcept>

// Ends a command: the reason korvane-tool prints after "korvane-tool: " on
// stderr, and the exit status that goes with it.
class CToolFailure : public std::runtime_error
{
public:
    enum class Status
    {
        // The input (a file, a folder, a module) cannot be processed.
        Input = 1,
        // The command line is wrong.
        Usage = 2
    };

    // "subject: reason", subject naming the file or folder at fault.
    static CToolFailure Input(const QString& subject, const QString& reason)
    {
        return CToolFailure(Status::Input, subject + QStringLiteral(": ") + reason);
    }
    static CToolFailure Usage(const QString& message)
    {
        return CToolFailure(Status::Usage, message);
    }

    Status ExitStatus() const { return m_status; }
    const QString& Message() const { return m_message; }

private:
    CToolFailure(Status status, const QString& message)
        : std::runtime_error(message.toStdString()), m_status(status), m_message(message)
    {}

    Status m_status;
    QString m_message;
};
