#include "CRecentFiles.h"

#include "core/CConfiguration.h"
#include "core/CKorvane.h"

namespace {

const QString section = QStringLiteral("RecentFiles");

QString key(int n)
{
    return QStringLiteral("File") + QString::number(n);
}

} // namespace

QStringList CRecentFiles::List()
{
    QStringList files;
    for (int n = 1; n <= MaxFiles; ++n) {
        const QString file = Root().Config().GetValue(section, key(n));
        if (!file.isEmpty() && !files.contains(file))
            files << file;
    }
    return files;
}

void CRecentFiles::Add(const QString& path)
{
    QStringList files = List();
    files.removeAll(path);
    files.prepend(path);
    store(files);
}

void CRecentFiles::Remove(const QString& path)
{
    QStringList files = List();
    files.removeAll(path);
    store(files);
}

void CRecentFiles::store(const QStringList& files)
{
    for (int n = 1; n <= MaxFiles; ++n)
        Root().Config().SetValue(section, key(n), n <= files.size() ? files[n - 1] : QString());
}
