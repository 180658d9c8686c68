#pragma once

#include "core/CVector.h"
#include "core/IHasUniqueId.h"

#include <QString>

#include <cstdint>
#include <memory>

class CInputStream;
class CMap;
class COutputStream;

// An ordered list of maps (an archive) with one active, locked map.
class CMapGroup : public IHasUniqueId
{
public:
    static constexpr std::int16_t RecordVersion = 1;
    static constexpr std::int32_t MinimumRecordBytes = 6;

    explicit CMapGroup(QString id);
    ~CMapGroup() override;
    CMapGroup(const CMapGroup&) = delete;
    CMapGroup& operator=(const CMapGroup&) = delete;

    const QString& Id() const { return m_id; }
    QString UniqueId() const override { return m_id; }
    bool Frozen() const { return m_frozen; }
    void SetFrozen(bool frozen) { m_frozen = frozen; }
    const std::shared_ptr<CMap>& ActiveMap() const { return m_activeMap; }
    CVector<CMap>& Maps() { return m_maps; }
    const CVector<CMap>& Maps() const { return m_maps; }

    // Null (with a trace) when the group has no such map; never raises.
    std::shared_ptr<CMap> MapById(const QString& id) const;

    // Makes map the active map: the new map is locked, then the old one
    // released. Switching to the active map does nothing. When locking the
    // new map fails nothing has changed; when releasing the old one fails,
    // the switch is undone as far as possible and the error passed on.
    void SwitchTo(const std::shared_ptr<CMap>& map);

    void SaveTo(COutputStream& stream);
    // Reads a version 1 record: maps get new ids and this group as owner, and
    // the last map becomes active. Fails with a KorvaneError on unknown
    // versions and damaged data; the group then keeps what it had.
    void RestoreFrom(CInputStream& stream);

private:
    QString m_id;
    bool m_frozen = false;
    CVector<CMap> m_maps;
    std::shared_ptr<CMap> m_activeMap;
};
