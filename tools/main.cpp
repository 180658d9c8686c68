#include "CTool.h"
#include "CToolConsole.h"

#include "core/CDebug.h"

#include <QGuiApplication>

// korvane-tool draws pictures and reads fonts, so it needs a QGuiApplication,
// but never a display: it always runs on the offscreen platform.
int main(int argc, char** argv)
{
    CToolConsole console;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The program's "debug.txt" in a shared home is the program's own, unless
    // the tool is asked to trace.
    CDebug::KeepEarlierTrace(qEnvironmentVariable("KORVANE_TRACE") != QLatin1String("1"));
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-tool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION_STRING));
    return CTool().Run(QCoreApplication::arguments(), console.Out(), console.Err());
}
