#pragma once

#include "core/CVector.h"
#include "core/IHasName.h"
#include "core/IHasUniqueId.h"

#include <QString>

#include <cstdint>
#include <memory>

class CArrow;
class CInputStream;
class CRecordReader;
class COutputStream;
class CUnit;
class IToken;

// One board state: units, arrows, a free text and remarks. Units and arrows
// are reachable only while the map is locked; when the last lock goes they
// are written to the map's own swap file in the cache directory and dropped,
// and the next first lock reads them back with the same ids and order.
class CMap : public IHasUniqueId, public IHasName
{
public:
    static constexpr std::int16_t RecordVersion = 1;
    static constexpr std::int32_t MinimumRecordBytes = 12;

    // groupId names the group the map was made for. The swap file, named
    // when the map first swaps out, is the cache directory plus a new
    // identifier plus ".tmp".
    CMap(QString id, QString groupId);
    // Deletes the swap file if one was written.
    ~CMap() override;
    CMap(const CMap&) = delete;
    CMap& operator=(const CMap&) = delete;

    const QString& Id() const { return m_id; }
    QString UniqueId() const override { return m_id; }
    const QString& GroupId() const { return m_groupId; }
    QString Name() const override { return m_name; }
    void SetName(const QString& name) { m_name = name; }
    const QString& Text() const { return m_text; }
    void SetText(const QString& text) { m_text = text; }
    const QString& Remarks() const { return m_remarks; }
    void SetRemarks(const QString& remarks) { m_remarks = remarks; }
    // Stored only; the model does not enforce it.
    bool Frozen() const { return m_frozen; }
    void SetFrozen(bool frozen) { m_frozen = frozen; }

    // A nesting count. The first lock of a swapped-out map reads its swap
    // file; a failure to read it raises a KorvaneError naming the file and
    // leaves the map as it was (unlocked, swapped out).
    void AquireLock();
    // The release that takes the count from 1 to 0 writes the swap file and
    // drops the lists; a failure to write raises a KorvaneError naming the
    // file and keeps the map locked with its lists. A map without units and
    // arrows writes no swap file and is not swapped out. A release without a
    // lock takes the count below zero and does nothing else.
    void ReleaseLock();
    std::int32_t LockCount() const { return m_lockCount; }
    bool SwappedOut() const { return m_swappedOut; }
    // Empty until the map first swaps out.
    const QString& SwapFile() const { return m_swapFile; }

    // How many units and arrows the map holds, locked or not: a swapped-out
    // map answers from what it last wrote, without touching its swap file.
    std::int32_t UnitCount() const;
    std::int32_t ArrowCount() const;

    // The lists, or null while the map is not locked.
    CVector<CUnit>* Units() const;
    CVector<CArrow>* Arrows() const;
    // Null (with a trace) when not locked or not found; never raises.
    std::shared_ptr<CUnit> UnitById(const QString& id) const;
    std::shared_ptr<CArrow> ArrowById(const QString& id) const;

    // Writes the lists where they are (a swapped-out map's are read from its
    // swap file for the moment); locks and swap state do not change. Fails
    // when a count does not fit the record.
    void SaveTo(COutputStream& stream) const;
    // Reads a version 1 record, resolving every unit's token against the
    // active context. Fails with a KorvaneError on an unknown version, on
    // damaged or missing bytes and on a token that cannot be resolved; the
    // map is then unchanged.
    void RestoreFrom(CInputStream& stream);
    void RestoreFrom(CRecordReader& in);

    // The token stored as (index, id): the token at that 1-based position of
    // the active context's list when its id matches, else the one found by
    // id, else for "CHBBD" the token "NEINF". Null when none (or no context).
    static std::shared_ptr<IToken> ResolveToken(std::int32_t index, const QString& id);

    // Deletes every swap file this process wrote that is still on disk. Only
    // this process's files are touched, so a second running copy keeps its own.
    static void RemoveLeftoverSwapFiles();

private:
    struct Lists
    {
        std::unique_ptr<CVector<CUnit>> Units;
        std::unique_ptr<CVector<CArrow>> Arrows;
    };
    void writeSwapFile();
    Lists readSwapFile() const;
    void removeSwapFile();
    bool isEmpty() const;
    void ensureLists();

    QString m_id;
    QString m_groupId;
    QString m_name;
    QString m_text;
    QString m_remarks;
    bool m_frozen = false;
    std::unique_ptr<CVector<CUnit>> m_units;
    std::unique_ptr<CVector<CArrow>> m_arrows;
    std::int32_t m_lockCount = 0;
    QString m_swapFile;
    bool m_swappedOut = false;
    std::int32_t m_swappedUnits = 0;
    std::int32_t m_swappedArrows = 0;
    bool m_swapWritten = false;
};
