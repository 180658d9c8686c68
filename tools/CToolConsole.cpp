#include "CToolConsole.h"

#include <cstdio>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

CToolConsole::CToolConsole() : m_out(stdout)
{
#ifdef Q_OS_UNIX
    const int copy = ::dup(STDERR_FILENO);
    const int null = ::open("/dev/null", O_WRONLY);
    if (copy >= 0 && null >= 0 && ::dup2(null, STDERR_FILENO) >= 0)
        s_errorDescriptor = copy;
    if (null >= 0)
        ::close(null);
#endif
    qInstallMessageHandler(&CToolConsole::messageHandler);
    m_errorFile.open(s_errorDescriptor, QIODevice::WriteOnly);
    m_err.setDevice(&m_errorFile);
}

CToolConsole::~CToolConsole()
{
    m_out.flush();
    m_err.flush();
}

void CToolConsole::messageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtCriticalMsg && type != QtFatalMsg)
        return;
    const QByteArray line = "korvane-tool: " + message.toLocal8Bit() + '\n';
#ifdef Q_OS_UNIX
    [[maybe_unused]] const auto written = ::write(s_errorDescriptor, line.constData(), line.size());
#else
    std::fputs(line.constData(), stderr);
#endif
}
