#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

TestHome::TestHome()
    : m_previousHome(qgetenv("KORVANE_HOME")), m_hadHome(qEnvironmentVariableIsSet("KORVANE_HOME"))
{
    qputenv("KORVANE_HOME", m_dir.path().toLocal8Bit());
    // Each test starts with an empty settings store, whatever ran before it
    // in the same process.
    QSettings(QSettings::defaultFormat(), QSettings::UserScope, QStringLiteral("Korvane"),
              QStringLiteral("Korvane"))
        .clear();
}

TestHome::~TestHome()
{
    if (m_hadHome)
        qputenv("KORVANE_HOME", m_previousHome);
    else
        qunsetenv("KORVANE_HOME");
}

QString TestHome::Path() const
{
    return m_dir.path() + QLatin1Char('/');
}

QString TestHome::File(const QString& relative) const
{
    return Path() + relative;
}

QString TestHome::WriteFile(const QString& relative, const QByteArray& bytes) const
{
    const QString path = File(relative);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(bytes);
    return path;
}

QByteArray TestHome::ReadFile(const QString& relative) const
{
    QFile file(File(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
