#include "CMapGroup.h"

#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CMap.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CRecordReader.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <utility>

CMapGroup::CMapGroup(QString id) : m_id(std::move(id)) {}

CMapGroup::~CMapGroup() = default;

std::shared_ptr<CMap> CMapGroup::MapById(const QString& id) const
{
    const std::int32_t position = CUtility::SearchById(m_maps, id);
    if (position == 0) {
        CTraceScope scope("MapById", "CMapGroup");
        scope.Denote(QStringLiteral("Map Not Found Id = ") + id);
        return nullptr;
    }
    return m_maps.Item(position);
}

void CMapGroup::SwitchTo(const std::shared_ptr<CMap>& map)
{
    CTraceScope scope("SwitchTo", "CMapGroup");
    if (map == m_activeMap)
        return;
    // Locking first means a swap file that cannot be read changes nothing.
    if (map)
        map->AquireLock();
    std::shared_ptr<CMap> previous = std::exchange(m_activeMap, map);
    if (!previous)
        return;
    try {
        previous->ReleaseLock();
    } catch (...) {
        // The old map keeps its lock and its units; go back to it.
        m_activeMap = previous;
        if (map) {
            try {
                map->ReleaseLock();
            } catch (...) {
            }
        }
        throw;
    }
}

void CMapGroup::SaveTo(COutputStream& stream)
{
    CTraceScope scope("SaveTo", "CMapGroup");
    if (m_maps.Count() > std::numeric_limits<std::int16_t>::max())
        throw KorvaneError(
            6, QStringLiteral("CMapGroup.SaveTo"),
            QCoreApplication::translate("CMapGroup", "A group cannot store more than 32767 maps"));

    stream.WriteInteger(RecordVersion);
    stream.WriteBoolean(m_frozen);
    stream.WriteInteger(static_cast<std::int16_t>(m_maps.Count()));
    for (const auto& map : m_maps)
        map->SaveTo(stream);
}

void CMapGroup::RestoreFrom(CInputStream& stream)
{
    CRecordReader in(stream, "CMapGroup.RestoreFrom");
    RestoreFrom(in);
}

void CMapGroup::RestoreFrom(CRecordReader& in)
{
    CTraceScope scope("RestoreFrom", "CMapGroup");
    CRecordReader::Section section(in, "CMapGroup.RestoreFrom");
    in.Version(QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "map group")), 1, RecordVersion);
    const bool frozen = in.Boolean();
    const std::int32_t count = in.IntegerCount(
        QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "maps")), CMap::MinimumRecordBytes);
    CVector<CMap> maps;
    // One growth for the whole list instead of one per ten maps.
    maps.SetIncrement(std::max(count, CVector<CMap>::DefaultIncrement));
    for (std::int32_t i = 0; i < count; ++i) {
        auto map = std::make_shared<CMap>(CUtility::GenerateId(), m_id);
        map->RestoreFrom(in);
        maps.AddItem(std::move(map));
    }

    if (m_activeMap) {
        m_activeMap->ReleaseLock();
        m_activeMap.reset();
    }
    maps.SetIncrement(CVector<CMap>::DefaultIncrement);
    m_frozen = frozen;
    m_maps = std::move(maps);
    if (m_maps.Count() > 0)
        SwitchTo(m_maps.Item(m_maps.Count()));
}
