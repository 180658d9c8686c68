#pragma once

#include "support/EnvScope.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QString>
#include <QTemporaryDir>

// A temporary home directory for one test: KORVANE_HOME points at it for the
// test's life, and the previous value comes back afterwards.
class TestHome
{
public:
    TestHome()
    {
        m_env.Set("KORVANE_HOME", m_dir.path().toLocal8Bit());
        // Each test starts with an empty settings store, whatever ran before
        // it in the same process.
        QSettings(QSettings::defaultFormat(), QSettings::UserScope, QStringLiteral("Korvane"),
                  QStringLiteral("Korvane"))
            .clear();
    }

    // The home, ending in "/".
    QString Path() const { return m_dir.path() + QLatin1Char('/'); }
    // A path inside the home.
    QString File(const QString& relative) const { return Path() + relative; }
    // Writes bytes to a file inside the home, creating folders; returns its path.
    QString WriteFile(const QString& relative, const QByteArray& bytes) const
    {
        return Write(File(relative), bytes);
    }
    // Writes bytes to a file anywhere, creating folders; returns the path.
    static QString Write(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(bytes);
        return path;
    }
    QByteArray ReadFile(const QString& relative) const
    {
        QFile file(File(relative));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_dir;
    EnvScope m_env;
};
