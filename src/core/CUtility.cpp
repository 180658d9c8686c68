#include "CUtility.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <chrono>

namespace {

QString withSlash(QString path)
{
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return path;
}

// The user's own data folder of an installed Korvane.
QString userDataDir()
{
    return withSlash(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) +
           QStringLiteral("korvane/");
}

// $XDG_STATE_HOME (an absolute path, as the rules for it demand), else its
// default; platforms without the variable keep the trace with the data.
QString userStateDir()
{
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!state.isEmpty() && QDir::isAbsolutePath(state))
        return withSlash(state) + QStringLiteral("korvane/");
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return withSlash(QDir::homePath()) + QStringLiteral(".local/state/korvane/");
#else
    return userDataDir();
#endif
}

} // namespace

QString CUtility::GenerateId()
{
    // A version 4 UUID as 32 upper-case hex digits. The bits come from the
    // global generator, seeded once from the system: asking the system for
    // every id (QUuid::createUuid) cost a loaded game most of its reading
    // time, one id per map and unit.
    QRandomGenerator* random = QRandomGenerator::global();
    const quint64 high = (random->generate64() & ~quint64(0xF000)) | 0x4000;
    const quint64 low = (random->generate64() & ~(quint64(3) << 62)) | (quint64(2) << 62);
    static constexpr char digits[] = "0123456789ABCDEF";
    QString text(32, Qt::Uninitialized);
    QChar* out = text.data();
    for (int i = 0; i < 16; ++i) {
        out[i] = QLatin1Char(digits[(high >> (60 - 4 * i)) & 0xF]);
        out[16 + i] = QLatin1Char(digits[(low >> (60 - 4 * i)) & 0xF]);
    }
    return text;
}

bool CUtility::IsPortable()
{
    if (!qEnvironmentVariableIsEmpty("KORVANE_HOME") || !QCoreApplication::instance())
        return true;
    return QFileInfo(QCoreApplication::applicationDirPath() + QStringLiteral("/modules")).isDir();
}

QString CUtility::GetAppPath()
{
    const QString home = qEnvironmentVariable("KORVANE_HOME");
    if (!home.isEmpty())
        return withSlash(home);
    if (QCoreApplication::instance())
        return withSlash(QCoreApplication::applicationDirPath());
    return GetCurrentPath();
}

QString CUtility::GetCurrentPath()
{
    return withSlash(QDir::currentPath());
}

QString CUtility::JoinPath(const QString& directory, const QString& name, const QString& extension)
{
    return extension.isEmpty() ? directory + name : directory + name + QLatin1Char('.') + extension;
}

QString CUtility::GetModuleDir()
{
    if (IsPortable())
        return GetAppPath() + QStringLiteral("modules/");
    return userDataDir() + QStringLiteral("modules/");
}

QStringList CUtility::GetModuleDirs()
{
    if (IsPortable())
        return {GetModuleDir()};
    return {GetModuleDir(), GetInstalledModuleDir()};
}

QString CUtility::GetInstalledModuleDir()
{
    // Relative to the executable, so an installed tree works wherever it is
    // unpacked (a DESTDIR, a moved prefix).
    const QString base =
        QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
    return withSlash(QDir::cleanPath(base + QStringLiteral("/../share/korvane/modules")));
}

QString CUtility::GetCacheDir()
{
    if (IsPortable())
        return GetAppPath() + QStringLiteral("cache/");
    return withSlash(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)) +
           QStringLiteral("korvane/");
}

QString CUtility::GetUserModuleDir()
{
    if (IsPortable())
        return GetAppPath() + QStringLiteral("usermods/");
    return userDataDir() + QStringLiteral("usermods/");
}

QString CUtility::GetTraceFile()
{
    if (IsPortable())
        return GetAppPath() + QStringLiteral("debug.txt");
    return userStateDir() + QStringLiteral("debug.txt");
}

QString CUtility::GetRecoveryDir()
{
    return GetCacheDir() + QStringLiteral("recovery/");
}

QString CUtility::CreateTempFile()
{
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/KRXXXXXX.tmp"));
    file.setAutoRemove(false);
    if (!file.open())
        throw KorvaneError(75, QStringLiteral("CUtility.CreateTempFile"),
                           QStringLiteral("Cannot create a temporary file in ") + QDir::tempPath());
    return file.fileName();
}

bool CUtility::ResDataToFile(const QString& resourcePath, const QString& fileName)
{
    QFile resource(resourcePath);
    if (!resource.open(QIODevice::ReadOnly))
        return false;
    QFile target(fileName);
    if (!target.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray data = resource.readAll();
    return target.write(data) == data.size();
}

std::unique_ptr<QLockFile> CUtility::OwnerLock(const QString& base)
{
    auto lock = std::make_unique<QLockFile>(base + QStringLiteral(".lock"));
    lock->setStaleLockTime(0);
    return lock;
}

bool CUtility::FileExists(const QString& path) noexcept
{
    try {
        if (path.isEmpty())
            return false;
        const QFileInfo info(path);
        return info.exists() && info.isFile();
    } catch (...) {
        return false;
    }
}

bool CUtility::DirExists(const QString& path) noexcept
{
    try {
        if (path.isEmpty())
            return false;
        return QFileInfo(path).isDir();
    } catch (...) {
        return false;
    }
}

bool CUtility::BuildDirectory(const QString& path)
{
    if (path.isEmpty())
        return false;
    QString clean = path;
    clean.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return QDir().mkpath(clean);
}

CVector<CString> CUtility::GetDirListing(const QString& pathSpec)
{
    QString wanted = pathSpec;
    wanted.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const qsizetype cut = wanted.lastIndexOf(QLatin1Char('/'));
    const QString directory = cut >= 0 ? wanted.left(cut + 1) : QStringLiteral("./");
    const QString pattern = cut >= 0 ? wanted.mid(cut + 1) : wanted;

    CVector<CString> result;
    const QDir dir(directory);
    if (!dir.exists())
        return result;
    // QDir name filters ignore case unless told otherwise.
    const QStringList names = dir.entryList({pattern}, QDir::Files | QDir::Hidden, QDir::Unsorted);
    for (const QString& name : names) {
        // Insert at its place in name order, after names that compare equal.
        std::int32_t position = result.Count() + 1;
        for (std::int32_t i = 1; i <= result.Count(); ++i) {
            if (QString::compare(name, result.Item(i)->Value(), Qt::CaseInsensitive) < 0) {
                position = i;
                break;
            }
        }
        result.InsertItem(std::make_shared<CString>(name), position);
    }
    return result;
}

bool CUtility::ValidName(const QString& name)
{
    static const QString forbidden = QStringLiteral("\\/:*?\"<>|&");
    for (const QChar c : name) {
        if (forbidden.contains(c))
            return false;
    }
    return true;
}

QString CUtility::EscapeCaption(const QString& text)
{
    QString result = text;
    result.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return result;
}

void CUtility::ParsePath(const QString& path, QString& directory, QString& name, QString& extension)
{
    const qsizetype slash =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    directory = path.left(slash + 1);
    const QString file = path.mid(slash + 1);
    const qsizetype dot = file.lastIndexOf(QLatin1Char('.'));
    if (dot < 0) {
        name = file;
        extension.clear();
    } else {
        name = file.left(dot);
        extension = file.mid(dot + 1);
    }
}

float CUtility::HimetricToTwips(float value)
{
    return value * 0.567f;
}

std::int32_t CUtility::RandomNumber(std::int32_t lower, std::int32_t upper)
{
    if (upper < lower)
        std::swap(lower, upper);
    return static_cast<std::int32_t>(QRandomGenerator::global()->bounded(
        static_cast<qint64>(lower), static_cast<qint64>(upper) + 1));
}

double CUtility::GetTimestamp()
{
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}
