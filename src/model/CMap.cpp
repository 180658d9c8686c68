#include "CMap.h"

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CArrow.h"
#include "model/CUnit.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CRecordReader.h"
#include "tokens/IToken.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <limits>

namespace {

constexpr int fileError = 75;
constexpr std::int32_t maximumStoredCount = std::numeric_limits<std::int16_t>::max();
// Token index and token id in front of each unit record.
constexpr std::int32_t unitEntryBytes = 2 + 1 + CUnit::MinimumRecordBytes;
// Swap file entries also carry the unit id.
constexpr std::int32_t swapUnitEntryBytes = unitEntryBytes + 1;

// The swap files this process has written and not yet deleted.
QSet<QString>& writtenSwapFiles()
{
    static QSet<QString> files;
    return files;
}

void checkStoredCount(qsizetype count, const char* items)
{
    if (count > maximumStoredCount)
        throw KorvaneError(6, QStringLiteral("CMap.SaveTo"),
                           QStringLiteral("A map cannot store more than %1 %2; this one has %3")
                               .arg(maximumStoredCount)
                               .arg(QLatin1String(items))
                               .arg(count));
}

[[noreturn]] void failUnknownToken(const char* source, const QString& tokenId)
{
    throw KorvaneError(CRecordReader::InvalidFormatError, QLatin1String(source),
                       QStringLiteral("The counter \"%1\" is not part of the active game module, "
                                      "so the map cannot be read")
                           .arg(tokenId));
}

} // namespace

CMap::CMap(QString id, QString groupId)
    : m_id(std::move(id)), m_groupId(std::move(groupId)),
      m_units(std::make_unique<CVector<CUnit>>()), m_arrows(std::make_unique<CVector<CArrow>>()),
      m_swapFile(CUtility::GetCacheDir() + CUtility::GenerateId() + QStringLiteral(".tmp"))
{}

CMap::~CMap()
{
    if (m_swapWritten) {
        QFile::remove(m_swapFile);
        writtenSwapFiles().remove(m_swapFile);
    }
}

CVector<CUnit>* CMap::Units() const
{
    return m_lockCount > 0 ? m_units.get() : nullptr;
}

CVector<CArrow>* CMap::Arrows() const
{
    return m_lockCount > 0 ? m_arrows.get() : nullptr;
}

std::shared_ptr<CUnit> CMap::UnitById(const QString& id) const
{
    if (m_lockCount <= 0) {
        CTraceScope scope("UnitById", "CMap");
        scope.Denote(QStringLiteral("Map Not Locked Id = ") + m_id);
        return nullptr;
    }
    const std::int32_t position = CUtility::SearchById(*m_units, id);
    if (position == 0) {
        CTraceScope scope("UnitById", "CMap");
        scope.Denote(QStringLiteral("MapId = ") + m_id);
        scope.Denote(QStringLiteral("Unit Not Found Id = ") + id);
        return nullptr;
    }
    return m_units->Item(position);
}

std::shared_ptr<CArrow> CMap::ArrowById(const QString& id) const
{
    if (m_lockCount <= 0) {
        CTraceScope scope("ArrowById", "CMap");
        scope.Denote(QStringLiteral("Map Not Locked Id = ") + m_id);
        return nullptr;
    }
    const std::int32_t position = CUtility::SearchById(*m_arrows, id);
    if (position == 0) {
        CTraceScope scope("ArrowById", "CMap");
        scope.Denote(QStringLiteral("MapId = ") + m_id);
        scope.Denote(QStringLiteral("Arrow Not Found Id = ") + id);
        return nullptr;
    }
    return m_arrows->Item(position);
}

void CMap::AquireLock()
{
    CTraceScope scope("AquireLock", "CMap");
    ++m_lockCount;
    if (m_lockCount == 1 && m_swappedOut) {
        try {
            readSwapFile();
        } catch (...) {
            --m_lockCount;
            throw;
        }
        m_swappedOut = false;
    }
}

void CMap::ReleaseLock()
{
    CTraceScope scope("ReleaseLock", "CMap");
    --m_lockCount;
    if (m_lockCount != 0)
        return;
    try {
        writeSwapFile();
    } catch (...) {
        ++m_lockCount;
        throw;
    }
    m_units.reset();
    m_arrows.reset();
    m_swappedOut = true;
}

void CMap::writeSwapFile()
{
    // Layout: Long unit count; per unit its token's index (Integer) and id,
    // the unit id and the unit record; Long arrow count; the arrow records.
    COutputStream out;
    const std::int64_t estimate = static_cast<std::int64_t>(m_units->Count()) * 64;
    out.Constructor(static_cast<std::int32_t>(
        std::min<std::int64_t>(std::max<std::int64_t>(estimate, 64), 1 << 30)));
    out.WriteLong(m_units->Count());
    for (const auto& unit : *m_units) {
        out.WriteInteger(unit->Token()->Index());
        out.WriteSmallString(unit->Token()->Id());
        out.WriteSmallString(unit->Id());
        unit->SaveTo(out);
    }
    out.WriteLong(m_arrows->Count());
    for (const auto& arrow : *m_arrows)
        arrow->SaveTo(out);

    const QString directory = QFileInfo(m_swapFile).absolutePath();
    if (!CUtility::DirExists(directory))
        CUtility::BuildDirectory(directory);
    // Truncating replaces the whole content, so no stale bytes stay behind.
    QFile file(m_swapFile);
    bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    if (written) {
        written =
            file.write(reinterpret_cast<const char*>(out.Address()), out.Offset()) == out.Offset();
        file.close();
        written = written && file.error() == QFileDevice::NoError;
    }
    if (!written)
        throw KorvaneError(fileError, QStringLiteral("CMap.ReleaseLock"),
                           QStringLiteral("The swap file %1 cannot be written: %2")
                               .arg(QDir::toNativeSeparators(m_swapFile), file.errorString()));
    m_swapWritten = true;
    writtenSwapFiles().insert(m_swapFile);
}

void CMap::readSwapFile()
{
    QFile file(m_swapFile);
    if (!file.open(QIODevice::ReadOnly))
        throw KorvaneError(fileError, QStringLiteral("CMap.AquireLock"),
                           QStringLiteral("The swap file %1 cannot be read: %2")
                               .arg(QDir::toNativeSeparators(m_swapFile), file.errorString()));
    CInputStream stream = CInputStream::FromBytes(file.readAll());
    file.close();

    auto units = std::make_unique<CVector<CUnit>>();
    auto arrows = std::make_unique<CVector<CArrow>>();
    try {
        CRecordReader in(stream, "CMap.AquireLock");
        const std::int32_t unitCount = in.LongCount(QStringLiteral("units"), swapUnitEntryBytes);
        for (std::int32_t i = 0; i < unitCount; ++i) {
            const std::int16_t tokenIndex = in.Integer();
            const QString tokenId = in.SmallString();
            QString unitId = in.SmallString();
            std::shared_ptr<IToken> token = ResolveToken(tokenIndex, tokenId);
            if (!token)
                failUnknownToken("CMap.AquireLock", tokenId);
            auto unit = std::make_shared<CUnit>(std::move(unitId), std::move(token));
            unit->RestoreFrom(stream);
            units->AddItem(std::move(unit));
        }
        const std::int32_t arrowCount =
            in.LongCount(QStringLiteral("arrows"), CArrow::MinimumRecordBytes);
        for (std::int32_t i = 0; i < arrowCount; ++i) {
            auto arrow = std::make_shared<CArrow>(QString());
            arrow->RestoreFrom(stream);
            arrows->AddItem(std::move(arrow));
        }
    } catch (const KorvaneError& error) {
        throw KorvaneError(error.Number(), QStringLiteral("CMap.AquireLock"),
                           QStringLiteral("The swap file %1 cannot be read: %2")
                               .arg(QDir::toNativeSeparators(m_swapFile), error.Description()));
    }
    m_units = std::move(units);
    m_arrows = std::move(arrows);
}

std::shared_ptr<IToken> CMap::ResolveToken(std::int32_t index, const QString& id)
{
    CKorvane* root = RootOrNull();
    if (!root || !root->Context())
        return nullptr;
    const CVector<IToken>& tokens = root->Context()->Tokens();
    if (index >= 1 && index <= tokens.Count() && tokens.Item(index)->Id() == id)
        return tokens.Item(index);
    std::int32_t position = CUtility::SearchById(tokens, id);
    // The one renamed counter that older games still use.
    if (position == 0 && id == QLatin1String("CHBBD"))
        position = CUtility::SearchById(tokens, QStringLiteral("NEINF"));
    return position > 0 ? tokens.Item(position) : nullptr;
}

void CMap::SaveTo(COutputStream& stream)
{
    CTraceScope scope("SaveTo", "CMap");
    AquireLock();
    try {
        checkStoredCount(m_units->Count(), "units");
        checkStoredCount(m_arrows->Count(), "arrows");
        stream.WriteInteger(RecordVersion);
        stream.WriteSmallString(m_name);
        stream.WriteSmallString(m_remarks);
        stream.WriteString(m_text);
        stream.WriteBoolean(m_frozen);
        stream.WriteInteger(static_cast<std::int16_t>(m_units->Count()));
        for (const auto& unit : *m_units) {
            stream.WriteInteger(unit->Token()->Index());
            stream.WriteSmallString(unit->Token()->Id());
            unit->SaveTo(stream);
        }
        stream.WriteInteger(static_cast<std::int16_t>(m_arrows->Count()));
        for (const auto& arrow : *m_arrows)
            arrow->SaveTo(stream);
    } catch (...) {
        // The first failure is the one to report; the map stays locked if
        // its release fails too, which loses nothing.
        try {
            ReleaseLock();
        } catch (...) {
        }
        throw;
    }
    ReleaseLock();
}

void CMap::RestoreFrom(CInputStream& stream)
{
    CTraceScope scope("RestoreFrom", "CMap");
    CRecordReader in(stream, "CMap.RestoreFrom");
    in.Version(QStringLiteral("map"), 1, RecordVersion);
    QString name = in.SmallString();
    QString remarks = in.SmallString();
    QString text = in.String();
    const bool frozen = in.Boolean();

    auto units = std::make_unique<CVector<CUnit>>();
    const std::int32_t unitCount = in.IntegerCount(QStringLiteral("units"), unitEntryBytes);
    for (std::int32_t i = 0; i < unitCount; ++i) {
        const std::int16_t tokenIndex = in.Integer();
        const QString tokenId = in.SmallString();
        std::shared_ptr<IToken> token = ResolveToken(tokenIndex, tokenId);
        if (!token)
            failUnknownToken("CMap.RestoreFrom", tokenId);
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), std::move(token));
        unit->RestoreFrom(stream);
        units->AddItem(std::move(unit));
    }
    auto arrows = std::make_unique<CVector<CArrow>>();
    const std::int32_t arrowCount =
        in.IntegerCount(QStringLiteral("arrows"), CArrow::MinimumRecordBytes);
    for (std::int32_t i = 0; i < arrowCount; ++i) {
        auto arrow = std::make_shared<CArrow>(QString());
        arrow->RestoreFrom(stream);
        arrows->AddItem(std::move(arrow));
    }

    m_name = std::move(name);
    m_remarks = std::move(remarks);
    m_text = std::move(text);
    m_frozen = frozen;
    m_units = std::move(units);
    m_arrows = std::move(arrows);
    // What was read replaces whatever the swap file held.
    m_swappedOut = false;
}

void CMap::RemoveLeftoverSwapFiles()
{
    for (const QString& path : std::as_const(writtenSwapFiles()))
        QFile::remove(path);
    writtenSwapFiles().clear();
}
