#include "CTool.h"

#include <QFile>
#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

int errorDescriptor = 2;

// Libraries write notices of their own to stderr (libpng on a damaged
// picture, Qt on a missing runtime directory), which would spoil the promise
// of exactly one line there for a failure. stderr is pointed at /dev/null and
// the tool writes to a copy of the real one; only Qt's critical and fatal
// messages go there too.
void keepStderrForTheTool()
{
#ifdef Q_OS_UNIX
    const int copy = ::dup(STDERR_FILENO);
    const int null = ::open("/dev/null", O_WRONLY);
    if (copy >= 0 && null >= 0 && ::dup2(null, STDERR_FILENO) >= 0)
        errorDescriptor = copy;
    if (null >= 0)
        ::close(null);
#endif
}

void messageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtCriticalMsg && type != QtFatalMsg)
        return;
    const QByteArray line = "korvane-tool: " + message.toLocal8Bit() + '\n';
#ifdef Q_OS_UNIX
    [[maybe_unused]] const auto written = ::write(errorDescriptor, line.constData(), line.size());
#else
    std::fputs(line.constData(), stderr);
#endif
}

} // namespace

// korvane-tool draws pictures and reads fonts, so it needs a QGuiApplication,
// but never a display: it always runs on the offscreen platform.
int main(int argc, char** argv)
{
    keepStderrForTheTool();
    qInstallMessageHandler(messageHandler);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-tool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION_STRING));

    QFile errorFile;
    errorFile.open(errorDescriptor, QIODevice::WriteOnly);
    QTextStream out(stdout);
    QTextStream err(&errorFile);
    CTool tool;
    const int status = tool.Run(QCoreApplication::arguments(), out, err);
    out.flush();
    err.flush();
    return status;
}
