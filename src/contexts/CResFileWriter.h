#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

// Builds a resource pack, the reverse of CResFileMgr: our own modules, the
// command-line tool and the tests make their packs with it. An entry is
// stored compressed only when that makes it smaller; the entries' data starts
// right after the directory. Errors raise KorvaneError.
class CResFileWriter
{
public:
    // Adds an entry; its name is kept as given (readers ignore case). Raises
    // for a name a pack cannot hold, a name already added in any case, or data
    // larger than a pack entry may be.
    void AddEntry(const QString& name, const QByteArray& data);
    // Adds the content of a file under name; raises when it cannot be read.
    void AddFile(const QString& name, const QString& path);

    std::int32_t EntryCount() const { return static_cast<std::int32_t>(m_entries.size()); }

    // The whole pack as bytes.
    QByteArray ToBytes() const;
    // Writes the pack atomically: the old file survives any failure.
    void Write(const QString& path) const;

private:
    // The plain directory with the data starting at dataStart.
    QByteArray directory(std::int32_t dataStart) const;

    struct Entry
    {
        QString Name;
        QByteArray Stored;
        std::int32_t UnpackedLength = 0;
    };

    std::vector<Entry> m_entries;
    QSet<QString> m_names; // lower case
};
