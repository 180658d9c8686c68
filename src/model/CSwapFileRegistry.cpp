#include "CSwapFileRegistry.h"

#include "core/CUtility.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QSet>

#include <memory>

namespace {

const QString listSuffix = QStringLiteral(".list");
// A list holds one short name per swap file; a larger one is not ours.
constexpr qint64 maximumListSize = 64 * 1024 * 1024;

struct Registry
{
    QString Directory;
    QString Base;
    std::unique_ptr<QLockFile> Lock;
    QFile List;
    QSet<QString> Files;
};

Registry& registry()
{
    static Registry r;
    return r;
}

// Only names a swap file can have are removed, whatever a list says.
bool isSwapName(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^[0-9A-F]{32}\\.tmp$"));
    return pattern.match(name).hasMatch();
}

void removeLeftoversOfDeadProcesses(const QString& directory)
{
    const QStringList lists =
        QDir(directory).entryList(QStringList{QStringLiteral("swap-*") + listSuffix}, QDir::Files);
    for (const QString& list : lists) {
        const QString base = directory + list.chopped(listSuffix.size());
        const auto lock = CUtility::OwnerLock(base);
        if (!lock->tryLock(0))
            continue; // its process still runs
        QFile file(base + listSuffix);
        if (file.size() <= maximumListSize && file.open(QIODevice::ReadOnly)) {
            for (const QByteArray& line : file.readAll().split('\n')) {
                const QString name = QString::fromLatin1(line.trimmed());
                if (isSwapName(name))
                    QFile::remove(directory + name);
            }
            file.close();
        }
        QFile::remove(base + listSuffix);
        lock->unlock();
    }
}

void close(Registry& r)
{
    r.List.close();
    if (!r.Base.isEmpty())
        QFile::remove(r.Base + listSuffix);
    r.Lock.reset();
    r.Base.clear();
    r.Directory.clear();
}

} // namespace

void CSwapFileRegistry::Register(const QString& path)
{
    Registry& r = registry();
    const QFileInfo info(path);
    const QString directory = info.absolutePath() + QLatin1Char('/');
    if (directory != r.Directory) {
        // The cache folder moved (a new home): the old list is finished with.
        for (const QString& file : std::as_const(r.Files))
            QFile::remove(file);
        r.Files.clear();
        close(r);
        r.Directory = directory;
        if (!CUtility::DirExists(directory))
            CUtility::BuildDirectory(directory);
        removeLeftoversOfDeadProcesses(directory);
        r.Base = directory + QStringLiteral("swap-") + CUtility::GenerateId();
        r.Lock = CUtility::OwnerLock(r.Base);
        // Without a lock or a list the files are still removed at the end;
        // only a crash would leave them.
        if (r.Lock->tryLock(0))
            r.List.setFileName(r.Base + listSuffix);
    }
    r.Files.insert(path);
    if (!r.List.fileName().isEmpty() &&
        (r.List.isOpen() || r.List.open(QIODevice::WriteOnly | QIODevice::Append))) {
        r.List.write(info.fileName().toLatin1() + '\n');
        r.List.flush();
    }
}

void CSwapFileRegistry::Forget(const QString& path)
{
    Registry& r = registry();
    r.Files.remove(path);
    // With no swap file left the process has nothing to list.
    if (r.Files.isEmpty())
        close(r);
}

void CSwapFileRegistry::RemoveAll()
{
    Registry& r = registry();
    for (const QString& file : std::as_const(r.Files))
        QFile::remove(file);
    r.Files.clear();
    close(r);
}
