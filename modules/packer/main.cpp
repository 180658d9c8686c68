// korvane-modpack: builds one module pack from its source folder.
//
//     korvane-modpack <source folder> <output pack>

#include "CModulePacker.h"

#include "core/KorvaneError.h"

#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char** argv)
{
    // Pictures are drawn without a display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: korvane-modpack <source folder> <output pack>\n");
        return 2;
    }
    // The program's settings are none of the build's business.
    QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());

    try {
        CModulePacker::Pack(arguments[1], arguments[2]);
    } catch (const KorvaneError& error) {
        std::fprintf(stderr, "korvane-modpack: %s\n", qPrintable(error.Description()));
        return 1;
    }
    return 0;
}
