#ifdef KORVANE_TEST_WIDGETS
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QGuiApplication>
using TestApplication = QGuiApplication;
#endif
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Every test program runs on the offscreen platform, with its settings store
// in a temporary directory so no test touches the user's settings. Tests
// compare the English texts, so the programs they start and Qt itself speak
// English whatever the machine's language; a test that wants another
// language installs it itself.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LANGUAGE", "en");
    qputenv("LC_ALL", "C.UTF-8");
    QLocale::setDefault(QLocale::c());

    TestApplication app(argc, argv);
    QTemporaryDir settingsDir;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
