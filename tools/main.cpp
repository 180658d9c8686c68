#include "CTool.h"

#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>

namespace {

QtMessageHandler qtHandler = nullptr;

// Qt's own notices (a missing runtime directory and the like) would spoil the
// promise of exactly one line on stderr for a failure; only critical and
// fatal messages go through.
void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        qtHandler(type, context, message);
}

} // namespace

// korvane-tool draws pictures and reads fonts, so it needs a QGuiApplication,
// but never a display: it always runs on the offscreen platform.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qtHandler = qInstallMessageHandler(quietHandler);
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-tool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION_STRING));

    QTextStream out(stdout);
    QTextStream err(stderr);
    CTool tool;
    const int status = tool.Run(QCoreApplication::arguments(), out, err);
    out.flush();
    err.flush();
    return status;
}
