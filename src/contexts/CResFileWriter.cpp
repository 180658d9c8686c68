#include "CResFileWriter.h"

#include "contexts/CResFileMgr.h"
#include "core/CTraceScope.h"
#include "core/KorvaneError.h"
#include "persist/COutputStream.h"

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

// zlib at the given level; false when zlib refused.
bool deflateBytes(const QByteArray& data, QByteArray& packed, int level)
{
    if (data.isEmpty())
        return false;
    uLongf length = compressBound(static_cast<uLong>(data.size()));
    packed.resize(static_cast<qsizetype>(length));
    const int result = compress2(reinterpret_cast<Bytef*>(packed.data()), &length,
                                 reinterpret_cast<const Bytef*>(data.constData()),
                                 static_cast<uLong>(data.size()), level);
    if (result != Z_OK)
        return false;
    packed.resize(static_cast<qsizetype>(length));
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
    if (m_names.contains(name.toLower()))
        raise("AddEntry",
              QStringLiteral("The pack already holds an entry named '") + name + QLatin1Char('\''));
    if (data.size() > CResFileMgr::MaxEntryLength)
        raise("AddEntry", QStringLiteral("Entry '") + name + QStringLiteral("' is too large"));

    Entry entry;
    entry.Name = name;
    entry.UnpackedLength = static_cast<std::int32_t>(data.size());
    QByteArray packed;
    // Equal lengths mean "stored as it is", so compression must save a byte.
    entry.Stored = deflateBytes(data, packed, 9) && packed.size() < data.size() ? packed : data;
    m_names.insert(name.toLower());
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

QByteArray CResFileWriter::directory(std::int32_t dataStart) const
{
    COutputStream directory;
    directory.Constructor(4096);
    directory.WriteLong(EntryCount());
    std::int32_t position = dataStart;
    for (const Entry& entry : m_entries) {
        directory.WriteSmallString(entry.Name);
        directory.WriteLong(position);
        directory.WriteLong(static_cast<std::int32_t>(entry.Stored.size()));
        directory.WriteLong(entry.UnpackedLength);
        position += static_cast<std::int32_t>(entry.Stored.size());
    }
    return QByteArray(reinterpret_cast<const char*>(directory.Address()), directory.Offset());
}

QByteArray CResFileWriter::ToBytes() const
{
    std::int64_t dataLength = 0;
    for (const Entry& entry : m_entries)
        dataLength += entry.Stored.size();
    const auto dataStartAfter = [&](std::int64_t directoryLength) {
        const std::int64_t dataStart = CResFileMgr::HeaderLength + directoryLength;
        if (dataStart + dataLength > std::numeric_limits<std::int32_t>::max())
            raise("ToBytes", QStringLiteral("The pack would be larger than 2 GB"));
        return static_cast<std::int32_t>(dataStart);
    };

    // The data starts right after the directory, and positions count from the
    // start of the file, so the directory's compressed length moves the
    // positions it holds. Look for a length that reproduces itself at level 9;
    // if none turns up quickly, store the directory at level 0, whose length
    // follows from the directory's size alone (positions are fixed-width).
    QByteArray plain;
    QByteArray packed;
    std::int64_t length = 0;
    bool settled = false;
    for (int attempt = 0; attempt < 16 && !settled; ++attempt) {
        plain = directory(dataStartAfter(length));
        if (!deflateBytes(plain, packed, 9))
            raise("ToBytes", QStringLiteral("zlib could not compress the directory"));
        settled = packed.size() == length;
        length = packed.size();
    }
    if (!settled) {
        QByteArray stored;
        if (!deflateBytes(directory(0), stored, 0))
            raise("ToBytes", QStringLiteral("zlib could not store the directory"));
        plain = directory(dataStartAfter(stored.size()));
        if (!deflateBytes(plain, packed, 0) || packed.size() != stored.size())
            raise("ToBytes", QStringLiteral("The directory does not settle"));
    }

    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(CResFileMgr::HeaderLength + packed.size() + dataLength));
    appendLong(bytes, static_cast<std::int32_t>(plain.size()));
    appendLong(bytes, static_cast<std::int32_t>(packed.size()));
    bytes.append(packed);
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
