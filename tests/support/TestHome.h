#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A temporary home directory for one test: KORVANE_HOME points at it for the
// test's life, and the previous value comes back afterwards.
class TestHome
{
public:
    TestHome();
    ~TestHome();
    TestHome(const TestHome&) = delete;
    TestHome& operator=(const TestHome&) = delete;

    // The home, ending in "/".
    QString Path() const;
    // A path inside the home.
    QString File(const QString& relative) const;
    // Writes bytes to a file inside the home, creating folders; returns its path.
    QString WriteFile(const QString& relative, const QByteArray& bytes) const;
    QByteArray ReadFile(const QString& relative) const;

private:
    QTemporaryDir m_dir;
    QByteArray m_previousHome;
    bool m_hadHome;
};
