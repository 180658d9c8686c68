#include "CResFileMgr.h"

#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "persist/CAnsiCodec.h"
#include "persist/CInputStream.h"
#include "persist/CZlib.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

#include <zlib.h>

#include <cstring>
#include <limits>

namespace {

std::int32_t littleEndian32(const char* bytes)
{
    std::int32_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// Inflates stored into exactly unpackedLength bytes; anything else is damage.
bool inflateExactly(const QByteArray& stored, std::int32_t unpackedLength, QByteArray& out)
{
    if (stored.isEmpty() || unpackedLength <= 0)
        return false;
    const CInputStream source = CInputStream::FromBytes(stored);
    CZlib zlib;
    std::int32_t produced = unpackedLength;
    const std::unique_ptr<CInputStream> plain = zlib.Decompact(source, produced);
    if (zlib.LastResult() != Z_OK || produced != unpackedLength || !plain->Address())
        return false;
    out = QByteArray(reinterpret_cast<const char*>(plain->Address()), unpackedLength);
    return true;
}

// The most bytes a stored length can honestly inflate to.
std::int64_t inflateLimit(std::int64_t storedLength)
{
    return storedLength * CResFileMgr::MaxInflateRatio + 64;
}

QString quoted(const QString& text)
{
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace

CResFileMgr::CResFileMgr(const QString& directory, const QString& fileName)
    : m_directory(directory), m_fileName(fileName)
{
    CTraceScope scope("Constructor", "CResFileMgr");
    m_directory.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (!m_directory.isEmpty() && !m_directory.endsWith(QLatin1Char('/')))
        m_directory += QLatin1Char('/');
    scope.Denote(QStringLiteral("Pack = ") + FilePath());
    m_open = readDirectory();
    if (!m_open)
        scope.Denote(m_lastError);
}

const CResFileEntry& CResFileMgr::Entry(std::int32_t index) const
{
    if (index < 1 || index > EntryCount())
        throw KorvaneError(9, QStringLiteral("CResFileMgr.Entry"),
                           QStringLiteral("Subscript out of range"));
    return m_entries[static_cast<std::size_t>(index - 1)];
}

std::int32_t CResFileMgr::FindEntry(const QString& name) const
{
    return m_index.value(name.toLower(), 0);
}

bool CResFileMgr::ValidEntryName(const QString& name)
{
    if (name.isEmpty() || name.size() > 255 || name.contains(QLatin1String("..")))
        return false;
    for (const QChar c : name) {
        if (c.unicode() < 0x20 || c == QLatin1Char('/') || c == QLatin1Char('\\'))
            return false;
    }
    // Names are stored one byte per character.
    return CAnsiCodec::Decode(CAnsiCodec::Encode(name)) == name;
}

bool CResFileMgr::EscapingEntryName(const QString& name)
{
    if (!name.contains(QLatin1String("..")))
        return false;
    static const QRegularExpression separators(QStringLiteral("[/\\\\]"));
    return name.split(separators).contains(QStringLiteral(".."));
}

bool CResFileMgr::fail(const QString& reason)
{
    m_lastError = reason;
    return false;
}

bool CResFileMgr::readDirectory()
{
    m_entries.clear();
    m_index.clear();
    m_ignored.clear();
    m_lastError.clear();
    const QString path = FilePath();
    QFile file(path);
    // Two small reads: Qt's read-ahead buffer would only cost.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return fail(tr("Cannot open the pack %1: %2").arg(path, file.errorString()));

    const QFileInfo info(path);
    m_fileSize = file.size();
    m_fileTime = info.lastModified().toMSecsSinceEpoch();
    const QByteArray identity = info.absoluteFilePath().toUtf8() + '\n' +
                                QByteArray::number(m_fileSize) + '\n' +
                                QByteArray::number(m_fileTime);
    m_cacheKey = QString::fromLatin1(
        QCryptographicHash::hash(identity, QCryptographicHash::Sha1).left(8).toHex());

    if (m_fileSize > std::numeric_limits<std::int32_t>::max())
        return fail(tr("The pack %1 is larger than 2 GB").arg(path));
    if (m_fileSize < HeaderLength)
        return fail(tr("The pack %1 is shorter than its header").arg(path));

    const QByteArray header = file.read(HeaderLength);
    if (header.size() != HeaderLength)
        return fail(tr("Cannot read the header of %1").arg(path));
    const std::int32_t unpackedLength = littleEndian32(header.constData());
    const std::int32_t storedLength = littleEndian32(header.constData() + 4);
    if (storedLength <= 0 || storedLength > m_fileSize - HeaderLength)
        return fail(tr("The directory of %1 (%2 bytes) does not fit in the file")
                        .arg(path, QString::number(storedLength)));
    if (unpackedLength < 4 || unpackedLength > MaxDirectoryLength ||
        unpackedLength > inflateLimit(storedLength))
        return fail(tr("The directory of %1 claims an impossible length of %2 bytes")
                        .arg(path, QString::number(unpackedLength)));

    const QByteArray stored = file.read(storedLength);
    QByteArray plainBytes;
    if (stored.size() != storedLength || !inflateExactly(stored, unpackedLength, plainBytes))
        return fail(tr("The directory of %1 is damaged").arg(path));

    CInputStream plain = CInputStream::FromBytes(plainBytes);
    const std::int32_t count = plain.ReadLong();
    // Each entry takes at least a length byte, one name byte and three longs.
    constexpr std::int32_t smallestEntry = 1 + 1 + 12;
    if (count < 0 || count > plain.Remaining() / smallestEntry)
        return fail(tr("The directory of %1 claims an impossible entry count of %2")
                        .arg(path, QString::number(count)));

    const std::int64_t dataStart = HeaderLength + static_cast<std::int64_t>(storedLength);
    m_entries.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 1; i <= count; ++i) {
        const std::int32_t nameLength = plain.Remaining() > 0 ? plain.Address()[plain.Offset()] : 0;
        if (plain.Remaining() < 1 + nameLength + 12)
            return fail(
                tr("The directory of %1 ends inside entry %2").arg(path, QString::number(i)));
        CResFileEntry entry;
        entry.Name = plain.ReadSmallString().toLower();
        entry.Position = plain.ReadLong();
        entry.StoredLength = plain.ReadLong();
        entry.UnpackedLength = plain.ReadLong();

        // The message is built only for a damaged entry: packs are read at every start.
        const auto damaged = [&](const QString& what) {
            return fail(what.arg(quoted(entry.Name), path));
        };
        if (EscapingEntryName(entry.Name))
            return damaged(
                tr("Entry %1 of %2 has a name that leads out of any folder it is unpacked to"));
        if (entry.StoredLength < 0 || entry.UnpackedLength < 0 ||
            entry.UnpackedLength > MaxEntryLength)
            return damaged(tr("Entry %1 of %2 has an impossible length"));
        if (entry.Position < dataStart ||
            static_cast<std::int64_t>(entry.Position) + entry.StoredLength > m_fileSize)
            return damaged(tr("Entry %1 of %2 points outside the file"));
        if (entry.IsCompressed() &&
            (entry.StoredLength == 0 || entry.UnpackedLength > inflateLimit(entry.StoredLength)))
            return damaged(tr("Entry %1 of %2 has an impossible length"));
        // Odd but harmless: only this entry is out of use.
        if (!ValidEntryName(entry.Name)) {
            m_ignored.push_back({entry.Name, tr("a name a pack may not hold")});
            continue;
        }
        if (m_index.contains(entry.Name)) {
            m_ignored.push_back(
                {entry.Name, tr("a second entry of that name (the first is used)")});
            continue;
        }
        m_index.insert(entry.Name, static_cast<std::int32_t>(m_entries.size() + 1));
        m_entries.push_back(entry);
    }
    return true;
}

bool CResFileMgr::refreshIfChanged()
{
    // A pack replaced on disk has a new layout: read its directory again, and
    // its new identity gives it new cache names.
    const QFileInfo info(FilePath());
    if (m_open && info.exists() && info.size() == m_fileSize &&
        info.lastModified().toMSecsSinceEpoch() == m_fileTime)
        return true;
    m_open = readDirectory();
    return m_open;
}

bool CResFileMgr::ReadEntry(const QString& entryName, QByteArray& data)
{
    data.clear();
    if (!refreshIfChanged())
        return false;
    const std::int32_t index = FindEntry(entryName);
    if (index == 0)
        return fail(tr("The pack %1 has no entry %2").arg(FilePath(), quoted(entryName)));
    const CResFileEntry& entry = Entry(index);

    QFile file(FilePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !file.seek(entry.Position))
        return fail(tr("Cannot read the pack %1").arg(FilePath()));
    QByteArray stored = file.read(entry.StoredLength);
    if (stored.size() != entry.StoredLength)
        return fail(tr("The pack %1 ends inside entry %2").arg(FilePath(), quoted(entry.Name)));
    if (!entry.IsCompressed()) {
        data = std::move(stored);
        return true;
    }
    if (!inflateExactly(stored, entry.UnpackedLength, data)) {
        data.clear();
        return fail(tr("Entry %1 of %2 is damaged").arg(quoted(entry.Name), FilePath()));
    }
    return true;
}

QImage CResFileMgr::UnpackImage(const QString& entryName)
{
    CTraceScope scope("UnpackImage", "CResFileMgr");
    scope.Denote(QStringLiteral("Entry = ") + entryName);
    QByteArray bytes;
    if (!ReadEntry(entryName, bytes)) {
        scope.Denote(m_lastError);
        return QImage();
    }
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull()) {
        fail(tr("Entry %1 of %2 is not a picture: %3")
                 .arg(quoted(entryName.toLower()), FilePath(), reader.errorString()));
        scope.Denote(m_lastError);
    }
    return image;
}

QString CResFileMgr::cacheFileName(const QString& entryName) const
{
    // File systems allow 255 bytes per name; a very long entry name is
    // replaced by its hash, keeping the extension.
    QString name = entryName;
    if (name.toUtf8().size() > 200) {
        const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
        const QString extension = dot >= 0 && name.size() - dot <= 16 ? name.mid(dot) : QString();
        name = QString::fromLatin1(
                   QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1).toHex()) +
               extension;
    }
    return m_cacheKey + QLatin1Char('_') + name;
}

bool CResFileMgr::UnpackFile(const QString& entryName, std::int32_t flag, QString& outPath,
                             const QString& copyTo)
{
    CTraceScope scope("UnpackFile", "CResFileMgr");
    scope.Denote(QStringLiteral("Entry = ") + entryName);
    outPath.clear();
    if (!refreshIfChanged()) {
        scope.Denote(m_lastError);
        return false;
    }
    const std::int32_t index = FindEntry(entryName);
    if (index == 0) {
        fail(tr("The pack %1 has no entry %2").arg(FilePath(), quoted(entryName)));
        scope.Denote(m_lastError);
        return false;
    }
    if (flag != -1 && copyTo.isEmpty()) {
        fail(tr("No place was given for the copy of %1").arg(quoted(entryName)));
        return false;
    }

    const QString cacheDir = CUtility::GetCacheDir();
    if (!CUtility::BuildDirectory(cacheDir)) {
        fail(tr("Cannot create the cache directory %1").arg(cacheDir));
        scope.Denote(m_lastError);
        return false;
    }
    const CResFileEntry entry = Entry(index);
    const QString name = cacheFileName(entry.Name);
    const QString target = cacheDir + name;

    // The key ties the file to this pack's bytes; the size check catches a
    // copy cut short by a crash.
    const QFileInfo cached(target);
    if (!(cached.isFile() && cached.size() == entry.UnpackedLength)) {
        QByteArray data;
        if (!ReadEntry(entry.Name, data)) {
            scope.Denote(m_lastError);
            return false;
        }
        // A cache file is only a copy: it is written under a name of this
        // process and renamed into place, without waiting for the disk. A
        // copy cut short by a crash fails the size check above next time.
        const QString partial = target + QLatin1Char('.') +
                                QString::number(QCoreApplication::applicationPid()) +
                                QStringLiteral(".part");
        QFile file(partial);
        const bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                             file.write(data) == data.size() && file.flush();
        const QString reason = file.errorString();
        file.close();
        if (!written || !(QFile::rename(partial, target) ||
                          (QFile::remove(target) && QFile::rename(partial, target)))) {
            QFile::remove(partial);
            fail(tr("Cannot write the cache file %1: %2")
                     .arg(target, written ? tr("it cannot be renamed into place") : reason));
            scope.Denote(m_lastError);
            return false;
        }
        if (!m_writtenFiles.contains(target))
            m_writtenFiles.append(target);
    } else {
        scope.Denote(QStringLiteral("Reusing ") + target);
    }

    if (flag != -1) {
        if (QFileInfo::exists(copyTo))
            QFile::remove(copyTo);
        if (!QFile::copy(target, copyTo)) {
            fail(tr("Cannot copy %1 to %2").arg(quoted(entry.Name), copyTo));

            scope.Denote(m_lastError);
            return false;
        }
    }
    outPath = name;
    scope.Denote(QStringLiteral("OutPath = ") + outPath);
    return true;
}

bool CResFileMgr::UnpackAndUse(const QString& entryName,
                               const std::function<bool(const QString&)>& use)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        QString unpacked;
        if (!UnpackFile(entryName, -1, unpacked))
            return false;
        const QString path = CUtility::GetCacheDir() + unpacked;
        if (use(path))
            return true;
        if (QFileInfo::exists(path))
            return false;
    }
    return false;
}

void CResFileMgr::RemoveCachedFiles()
{
    CTraceScope scope("RemoveCachedFiles", "CResFileMgr");
    for (const QString& path : std::as_const(m_writtenFiles))
        QFile::remove(path);
    m_writtenFiles.clear();
}
