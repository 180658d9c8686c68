#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

// One entry of a pack's directory. Position counts from the start of the pack
// file; an entry whose two lengths differ is zlib-compressed.
struct CResFileEntry
{
    QString Name; // lower case
    std::int32_t Position = 0;
    std::int32_t StoredLength = 0;
    std::int32_t UnpackedLength = 0;

    bool IsCompressed() const { return StoredLength != UnpackedLength; }
};

// An entry the directory lists but the pack does not serve, and why.
struct CResFileIgnoredEntry
{
    QString Name;
    QString Reason;
};

// A resource pack (module file): named entries behind a zlib-compressed
// directory. Layout, 32-bit little-endian: unpacked directory length, stored
// directory length L, L bytes of directory, then the entries' data.
//
// Packs come from other people, so every count and length is checked against
// the file before anything is allocated. A damaged pack never raises: it reads
// as unusable (IsOpen() false), every unpack fails, and LastError() says why.
// What can do harm refuses the whole pack: a name that would lead out of the
// cache folder, data outside the file, impossible lengths. An entry that is
// merely odd (a name with "..", "\" or "/", a second entry of a name in any
// case) is ignored on its own and listed in IgnoredEntries(); the first of two
// like-named entries wins.
class CResFileMgr
{
    Q_DECLARE_TR_FUNCTIONS(CResFileMgr)

public:
    // Remembers where the pack lies and reads its directory.
    CResFileMgr(const QString& directory, const QString& fileName);

    const QString& FileName() const { return m_fileName; }
    // The directory that holds the pack, ending in "/".
    const QString& Directory() const { return m_directory; }
    QString FilePath() const { return m_directory + m_fileName; }

    // True when the directory was read; the reason of the last failure otherwise.
    bool IsOpen() const { return m_open; }
    const QString& LastError() const { return m_lastError; }

    std::int32_t EntryCount() const { return static_cast<std::int32_t>(m_entries.size()); }
    // 1-based; KorvaneError 9 outside 1..EntryCount.
    const CResFileEntry& Entry(std::int32_t index) const;
    // Position of the entry of that name in any case, 0 when there is none.
    std::int32_t FindEntry(const QString& name) const;
    const std::vector<CResFileIgnoredEntry>& IgnoredEntries() const { return m_ignored; }

    // The entry's unpacked bytes. False (data empty, LastError set) when the
    // entry is missing or its data is damaged.
    bool ReadEntry(const QString& entryName, QByteArray& data);

    // Decodes the entry as a picture (PNG, BMP, JPEG, GIF and whatever else Qt
    // reads here). A null image when the entry is missing or not a picture.
    QImage UnpackImage(const QString& entryName);

    // Writes the entry into the cache directory (created when missing) and
    // sets outPath to the cache file's name, without directory. A cache file
    // that this very pack wrote before is reused. With a flag other than -1 the
    // file is also copied to copyTo, replacing what is there. On failure
    // outPath is empty and LastError says why.
    bool UnpackFile(const QString& entryName, std::int32_t flag, QString& outPath,
                    const QString& copyTo = QString());

    // Unpacks the entry and hands the cache file's full path to use. Another
    // process on the same home may remove a cache file it made at any time;
    // when use fails and the file has gone, the entry is unpacked once more
    // and use tried again. False when the unpack fails (LastError says why)
    // or when use failed.
    bool UnpackAndUse(const QString& entryName, const std::function<bool(const QString&)>& use);

    // Deletes the cache files this object wrote itself; files it found in the
    // cache belong to whoever wrote them, who may still need them.
    void RemoveCachedFiles();

    // 16 hex digits derived from the pack's path, size and modification
    // time: it prefixes every cache file, so packs never share cache files.
    const QString& CacheKey() const { return m_cacheKey; }

    // A name a pack may hold: 1 to 255 Windows-1252 characters, no control
    // characters, no "/", "\" or "..".
    static bool ValidEntryName(const QString& name);
    // True for a name with a ".." part between "/" or "\": unpacked, it
    // would leave the cache folder.
    static bool EscapingEntryName(const QString& name);

    static constexpr std::int32_t HeaderLength = 8;
    static constexpr std::int32_t MaxDirectoryLength = 16 * 1024 * 1024;
    static constexpr std::int32_t MaxEntryLength = 256 * 1024 * 1024;
    // deflate cannot expand more than about 1032 to 1.
    static constexpr std::int64_t MaxInflateRatio = 1032;

private:
    bool readDirectory();
    bool refreshIfChanged();
    bool fail(const QString& reason);
    QString cacheFileName(const QString& entryName) const;

    QString m_directory;
    QString m_fileName;
    bool m_open = false;
    QString m_lastError;
    std::vector<CResFileEntry> m_entries;
    // Lower-case name to 1-based position.
    QHash<QString, std::int32_t> m_index;
    std::vector<CResFileIgnoredEntry> m_ignored;
    std::int64_t m_fileSize = -1;
    std::int64_t m_fileTime = 0;
    QString m_cacheKey;
    QStringList m_writtenFiles;
};
