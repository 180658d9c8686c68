#include "CResFileWriter.h"

#include "contexts/CResFileMgr.h"
#include "core/CTraceScope.h"
#include "core/KorvaneError.h"
#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <QFile>
#include <QSaveFile>

#include <zlib.h>

#include <cstring>
#include <limits>

namespace {

[[noreturn]] void raise(const char* operation, const QString& description)
{
    throw KorvaneError(5, QStringLiteral("CResFileWriter.") + QLatin1String(operation),
                       description);
}

// zlib at level 9; false when zlib refused (output would not fit).
bool deflateBytes(const QByteArray& data, QByteArray& packed)
{
    if (data.isEmpty())
        return false;
    COutputStream source;
    source.Constructor(static_cast<std::int32_t>(data.size()));
    std::memcpy(source.Address(), data.constData(), static_cast<std::size_t>(data.size()));
    CZlib zlib;
    const std::unique_ptr<COutputStream> result = zlib.Compact(source);
    if (zlib.LastResult() != Z_OK)
        return false;
    packed = QByteArray(reinterpret_cast<const char*>(result->Address()), result->Size());
    return true;
}

void appendLong(QByteArray& bytes, std::int32_t value)
{
    char raw[4];
    std::memcpy(raw, &value, sizeof raw);
    bytes.append(raw, sizeof raw);
}

} // namespace

void CResFileWriter::AddEntry(const QString& name, const QByteArray& data)
{
    if (!CResFileMgr::ValidEntryName(name))
        raise("AddEntry",
              QStringLiteral("A pack cannot hold an entry named '") + name + QLatin1Char('\''));
    for (const Entry& entry : m_entries) {
        if (entry.Name.compare(name, Qt::CaseInsensitive) == 0)
            raise("AddEntry", QStringLiteral("The pack already holds an entry named '") + name +
                                  QLatin1Char('\''));
    }
    if (data.size() > CResFileMgr::MaxEntryLength)
        raise("AddEntry", QStringLiteral("Entry '") + name + QStringLiteral("' is too large"));

    Entry entry;
    entry.Name = name;
    entry.UnpackedLength = static_cast<std::int32_t>(data.size());
    QByteArray packed;
    // Equal lengths mean "stored as it is", so compression must save a byte.
    entry.Stored = deflateBytes(data, packed) && packed.size() < data.size() ? packed : data;
    m_entries.push_back(std::move(entry));
}

void CResFileWriter::AddFile(const QString& name, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        raise("AddFile",
              QStringLiteral("Cannot read ") + path + QStringLiteral(": ") + file.errorString());
    if (file.size() > CResFileMgr::MaxEntryLength)
        raise("AddFile", path + QStringLiteral(" is too large for a pack"));
    AddEntry(name, file.readAll());
}

QByteArray CResFileWriter::ToBytes() const
{
    std::int64_t dataLength = 0;
    for (const Entry& entry : m_entries)
        dataLength += entry.Stored.size();

    // Positions count from the start of the file, so the directory depends on
    // its own compressed length. Reserve room, and grow it until the
    // directory fits; unused room stays as zero padding before the data.
    std::int64_t reserved = 0;
    QByteArray plain;
    QByteArray packed;
    for (int attempt = 0;; ++attempt) {
        if (attempt == 32)
            raise("ToBytes", QStringLiteral("The directory does not settle"));
        const std::int64_t dataStart = CResFileMgr::HeaderLength + reserved;
        if (dataStart + dataLength > std::numeric_limits<std::int32_t>::max())
            raise("ToBytes", QStringLiteral("The pack would be larger than 2 GB"));
        COutputStream directory;
        directory.Constructor(4096);
        directory.WriteLong(EntryCount());
        auto position = static_cast<std::int32_t>(dataStart);
        for (const Entry& entry : m_entries) {
            directory.WriteSmallString(entry.Name);
            directory.WriteLong(position);
            directory.WriteLong(static_cast<std::int32_t>(entry.Stored.size()));
            directory.WriteLong(entry.UnpackedLength);
            position += static_cast<std::int32_t>(entry.Stored.size());
        }
        plain = QByteArray(reinterpret_cast<const char*>(directory.Address()), directory.Offset());
        if (!deflateBytes(plain, packed))
            raise("ToBytes", QStringLiteral("zlib could not compress the directory"));
        if (packed.size() <= reserved)
            break;
        reserved = packed.size();
    }

    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(CResFileMgr::HeaderLength + reserved + dataLength));
    appendLong(bytes, static_cast<std::int32_t>(plain.size()));
    appendLong(bytes, static_cast<std::int32_t>(packed.size()));
    bytes.append(packed);
    bytes.append(QByteArray(static_cast<qsizetype>(reserved - packed.size()), '\0'));
    for (const Entry& entry : m_entries)
        bytes.append(entry.Stored);
    return bytes;
}

void CResFileWriter::Write(const QString& path) const
{
    CTraceScope scope("Write", "CResFileWriter");
    scope.Denote(QStringLiteral("Path = ") + path);
    const QByteArray bytes = ToBytes();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        raise("Write",
              QStringLiteral("Cannot write ") + path + QStringLiteral(": ") + file.errorString());
}
