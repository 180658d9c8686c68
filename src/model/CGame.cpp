#include "CGame.h"

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CRecordReader.h"
#include "tokens/IToken.h"

#include <QCoreApplication>

#include <limits>

namespace {

// Group id and the shortest group record.
constexpr std::int32_t groupEntryBytes = 1 + CMapGroup::MinimumRecordBytes;

} // namespace

CGame::CGame(QString id) : m_id(std::move(id)) {}

CGame::~CGame() = default;

std::shared_ptr<CMapGroup> CGame::GroupById(const QString& id) const
{
    const std::int32_t position = CUtility::SearchById(m_groups, id);
    if (position == 0) {
        CTraceScope scope("GroupById", "CGame");
        scope.Denote(QStringLiteral("Group Not Found Id = ") + id);
        return nullptr;
    }
    return m_groups.Item(position);
}

std::shared_ptr<CMapGroup> CGame::GroupByMapId(const QString& mapId) const
{
    for (std::int32_t i = m_groups.Count(); i >= 1; --i) {
        const std::shared_ptr<CMapGroup>& group = m_groups.Item(i);
        if (CUtility::SearchById(group->Maps(), mapId) > 0)
            return group;
    }
    return nullptr;
}

std::shared_ptr<CMap> CGame::MapById(const QString& mapId) const
{
    // Each group that lacks the map traces its own miss.
    for (std::int32_t i = m_groups.Count(); i >= 1; --i) {
        if (std::shared_ptr<CMap> map = m_groups.Item(i)->MapById(mapId))
            return map;
    }
    return nullptr;
}

std::shared_ptr<IToken> CGame::TokenById(const QString& id) const
{
    CKorvane* root = RootOrNull();
    if (root && root->Context()) {
        const CVector<IToken>& tokens = root->Context()->Tokens();
        if (const std::int32_t position = CUtility::SearchById(tokens, id))
            return tokens.Item(position);
    }
    CTraceScope scope("TokenById", "CGame");
    scope.Denote(QStringLiteral("Token Not Found Id = ") + id);
    return nullptr;
}

std::int32_t CGame::GetMapCount() const
{
    std::int32_t count = 0;
    for (const auto& group : m_groups)
        count += group->Maps().Count();
    return count;
}

void CGame::SwitchTo(const std::shared_ptr<CMapGroup>& group)
{
    CTraceScope scope("SwitchTo", "CGame");
    if (group == m_activeGroup)
        return;
    if (group && group->Maps().Count() > 0)
        group->SwitchTo(group->Maps().Item(group->Maps().Count()));
    m_activeGroup = group;
}

void CGame::SaveTo(COutputStream& stream)
{
    CTraceScope scope("SaveTo", "CGame");
    if (m_groups.Count() > std::numeric_limits<std::int16_t>::max())
        throw KorvaneError(
            6, QStringLiteral("CGame.SaveTo"),
            QCoreApplication::translate("CGame", "A game cannot store more than 32767 map groups"));

    stream.WriteInteger(RecordVersion);
    stream.WriteSmallString(m_id);
    stream.WriteSmallString(m_name);
    stream.WriteSmallString(m_remarks);
    stream.WriteInteger(static_cast<std::int16_t>(m_groups.Count()));
    for (const auto& group : m_groups) {
        stream.WriteSmallString(group->Id());
        group->SaveTo(stream);
    }
}

void CGame::RestoreFrom(CInputStream& stream)
{
    CTraceScope scope("RestoreFrom", "CGame");
    CRecordReader in(stream, "CGame.RestoreFrom");
    const std::int16_t version =
        in.Version(QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "game")), 1, RecordVersion);
    if (version == 1) {
        restoreVersion1(in);
        return;
    }
    m_id = in.SmallString();
    m_name = in.SmallString();
    m_remarks = in.SmallString();
    const std::int32_t count = in.IntegerCount(
        QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "map groups")), groupEntryBytes);
    m_groups.Clear();
    m_activeGroup.reset();
    std::int64_t mapCount = 0;
    for (std::int32_t i = 0; i < count; ++i) {
        auto group = std::make_shared<CMapGroup>(in.SmallString());
        m_groups.AddItem(group);
        group->RestoreFrom(in);
        // Checked group by group, so at most one group's maps lie beyond the limit.
        mapCount += group->Maps().Count();
        if (mapCount > MaximumMapCount)
            in.Fail(CRecordReader::InvalidFormatError,
                    QCoreApplication::translate(
                        "CGame", "The game holds more than %1 maps, more than Korvane can open")
                        .arg(MaximumMapCount));
    }
    if (m_groups.Count() > 0)
        SwitchTo(m_groups.Item(m_groups.Count()));
}

void CGame::restoreVersion1(CRecordReader& in)
{
    m_id = in.SmallString();
    m_name = in.SmallString();
    m_remarks = in.SmallString();
    std::int32_t count = in.IntegerCount(QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "maps")),
                                         CMap::MinimumRecordBytes);
    m_groups.Clear();
    m_activeGroup.reset();

    // Old games with more than 1050 maps lose their first hundred.
    if (count > 1050) {
        for (std::int32_t i = 0; i < 100; ++i)
            CMap(CUtility::GenerateId(), QString()).RestoreFrom(in);
        count -= 100;
    }
    // Groups of 100 maps (the first one 99), the last one holding the rest;
    // every group but the last is frozen.
    const std::int32_t groupCount = count >= 150 ? (count - 150) / 100 + 2 : 1;
    auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    m_groups.AddItem(group);
    std::int32_t k = 1;
    group->SetFrozen(groupCount >= 2);
    for (std::int32_t i = 1; i <= count; ++i) {
        if (i % 100 == 0 && k < groupCount) {
            group = std::make_shared<CMapGroup>(CUtility::GenerateId());
            m_groups.AddItem(group);
            ++k;
            group->SetFrozen(k != groupCount);
        }
        auto map = std::make_shared<CMap>(CUtility::GenerateId(), group->Id());
        group->Maps().AddItem(map);
        map->RestoreFrom(in);
    }
    SwitchTo(group);
}

QString CGame::FilePath() const
{
    return m_file.isEmpty() ? QString() : CUtility::JoinPath(m_directory, m_file, m_extension);
}
