#pragma once

#include <QStringList>

// The last games opened or saved, newest first, kept in the settings store
// (section "RecentFiles", keys "File1" to "File8").
class CRecentFiles
{
public:
    static constexpr int MaxFiles = 8;

    static QStringList List();
    // Puts path first; an older entry of the same file moves up.
    static void Add(const QString& path);
    static void Remove(const QString& path);

private:
    static void store(const QStringList& files);
};
