#pragma once

#include "core/CVector.h"

#include <QString>

#include <cstdint>
#include <memory>

class CInputStream;
class CRecordReader;
class CMap;
class CMapGroup;
class COutputStream;
class IToken;

// The game document: an ordered list of map groups, one of them active.
class CGame
{
public:
    static constexpr std::int16_t RecordVersion = 2;
    // Reading refuses a game of more maps: every map costs memory even when
    // empty, and no game played a map per turn comes near it.
    static constexpr std::int32_t MaximumMapCount = 250000;

    explicit CGame(QString id);
    ~CGame();
    CGame(const CGame&) = delete;
    CGame& operator=(const CGame&) = delete;

    const QString& Id() const { return m_id; }
    const QString& Name() const { return m_name; }
    void SetName(const QString& name) { m_name = name; }
    const QString& Remarks() const { return m_remarks; }
    void SetRemarks(const QString& remarks) { m_remarks = remarks; }
    // The game file's name without directory, its extension and its directory.
    const QString& File() const { return m_file; }
    void SetFile(const QString& file) { m_file = file; }
    const QString& Extension() const { return m_extension; }
    void SetExtension(const QString& extension) { m_extension = extension; }
    const QString& Directory() const { return m_directory; }
    void SetDirectory(const QString& directory) { m_directory = directory; }
    // Directory, file and extension joined; empty while the game has no file.
    QString FilePath() const;
    // Changes not yet saved: +1 per executed action, -1 per reversed one.
    std::int16_t Dirty() const { return m_dirty; }
    void SetDirty(std::int16_t dirty) { m_dirty = dirty; }

    const std::shared_ptr<CMapGroup>& ActiveMapGroup() const { return m_activeGroup; }
    CVector<CMapGroup>& MapGroups() { return m_groups; }
    const CVector<CMapGroup>& MapGroups() const { return m_groups; }

    // Lookups answer null instead of failing; misses are traced except by
    // GroupByMapId. Map lookups search the groups from the last to the first.
    std::shared_ptr<CMapGroup> GroupById(const QString& id) const;
    std::shared_ptr<CMapGroup> GroupByMapId(const QString& mapId) const;
    std::shared_ptr<CMap> MapById(const QString& mapId) const;
    std::shared_ptr<IToken> TokenById(const QString& id) const;
    std::int32_t GetMapCount() const;

    // Makes group active and switches it to its last map; the previous
    // group keeps its active map and that map's lock.
    void SwitchTo(const std::shared_ptr<CMapGroup>& group);

    void SaveTo(COutputStream& stream);
    // Reads a version 2 game, or a version 1 game (one flat list of maps,
    // grouped here by hundreds). Fails with a KorvaneError on unknown
    // versions, damaged data or unresolvable tokens; the caller then
    // discards the game.
    void RestoreFrom(CInputStream& stream);

private:
    void restoreVersion1(CRecordReader& in);

    QString m_id;
    QString m_name;
    QString m_remarks;
    QString m_file;
    QString m_extension;
    QString m_directory;
    std::int16_t m_dirty = 0;
    CVector<CMapGroup> m_groups;
    std::shared_ptr<CMapGroup> m_activeGroup;
};
