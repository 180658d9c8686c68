#ifdef KORVANE_TEST_WIDGETS
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QGuiApplication>
using TestApplication = QGuiApplication;
#endif
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Every test program runs on the offscreen platform, with its settings store
// in a temporary directory so no test touches the user's settings.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    TestApplication app(argc, argv);
    QTemporaryDir settingsDir;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
