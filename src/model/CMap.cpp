#include "CMap.h"

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CArrow.h"
#include "model/CSwapFileRegistry.h"
#include "model/CUnit.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CRecordReader.h"
#include "tokens/IToken.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

constexpr int fileError = 75;
constexpr std::int32_t maximumStoredCount = std::numeric_limits<std::int16_t>::max();
// Token index and token id in front of each unit record.
constexpr std::int32_t unitEntryBytes = 2 + 1 + CUnit::MinimumRecordBytes;
// Swap file entries: token position, unit id, unit record.
constexpr std::int32_t swapUnitEntryBytes = 2 + 1 + CUnit::MinimumRecordBytes;

void checkStoredCount(qsizetype count, const char* items)
{
    if (count > maximumStoredCount)
        throw KorvaneError(6, QStringLiteral("CMap.SaveTo"),
                           QCoreApplication::translate(
                               "CMap", "A map cannot store more than %1 %2; this one has %3")
                               .arg(maximumStoredCount)
                               .arg(QCoreApplication::translate("CRecordReader", items))
                               .arg(count));
}

[[noreturn]] void failUnknownToken(const char* source, const QString& tokenId)
{
    throw KorvaneError(CRecordReader::InvalidFormatError, QLatin1String(source),
                       QCoreApplication::translate("CMap",
                                                   "The counter \"%1\" is not part of the active "
                                                   "game module, so the map cannot be read")
                           .arg(tokenId));
}

// The token's position in the context's list: where its index says when
// that holds, else found by identity.
std::int32_t tokenPosition(const IGameContext& context, const IToken& token)
{
    const CVector<IToken>& tokens = context.Tokens();
    const std::int32_t index = token.Index();
    if (index >= 1 && index <= tokens.Count() && tokens.Item(index).get() == &token)
        return index;
    const std::int32_t position = tokens.IndexOf(&token);
    if (position == 0 || position > maximumStoredCount)
        throw KorvaneError(fileError, QStringLiteral("CMap.ReleaseLock"),
                           QCoreApplication::translate("CMap", "The counter \"%1\" of a unit is "
                                                               "not part of the active game module")
                               .arg(token.Id()));
    return position;
}

} // namespace

CMap::CMap(QString id, QString groupId) : m_id(std::move(id)), m_groupId(std::move(groupId)) {}

CMap::~CMap()
{
    removeSwapFile();
}

void CMap::removeSwapFile()
{
    if (!m_swapWritten)
        return;
    QFile::remove(m_swapFile);
    CSwapFileRegistry::Forget(m_swapFile);
    m_swapWritten = false;
}

bool CMap::isEmpty() const
{
    return (!m_units || m_units->Count() == 0) && (!m_arrows || m_arrows->Count() == 0);
}

void CMap::ensureLists()
{
    if (!m_units)
        m_units = std::make_unique<CVector<CUnit>>();
    if (!m_arrows)
        m_arrows = std::make_unique<CVector<CArrow>>();
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
    if (m_lockCount != 1)
        return;
    if (m_swappedOut) {
        Lists lists;
        try {
            lists = readSwapFile();
        } catch (...) {
            --m_lockCount;
            throw;
        }
        m_units = std::move(lists.Units);
        m_arrows = std::move(lists.Arrows);
        m_swappedOut = false;
    }
    ensureLists();
}

void CMap::ReleaseLock()
{
    CTraceScope scope("ReleaseLock", "CMap");
    --m_lockCount;
    if (m_lockCount != 0)
        return;
    // An empty map needs no swap file: its (empty) lists are made again at
    // the next lock, and an older swap file would only be stale.
    if (isEmpty()) {
        removeSwapFile();
        m_units.reset();
        m_arrows.reset();
        return;
    }
    try {
        writeSwapFile();
    } catch (...) {
        ++m_lockCount;
        throw;
    }
    m_swappedUnits = m_units->Count();
    m_swappedArrows = m_arrows->Count();
    m_units.reset();
    m_arrows.reset();
    m_swappedOut = true;
}

std::int32_t CMap::UnitCount() const
{
    return m_units ? m_units->Count() : (m_swappedOut ? m_swappedUnits : 0);
}

std::int32_t CMap::ArrowCount() const
{
    return m_arrows ? m_arrows->Count() : (m_swappedOut ? m_swappedArrows : 0);
}

void CMap::writeSwapFile()
{
    // Layout: the active context's id and token count, then the unit count
    // (Long) and per unit its token's position in that list (Integer), the
    // unit id and the unit record; the arrow count (Long) and the arrow
    // records. The file is read back only by this process, while the same
    // context is active, so the position alone identifies the token, and
    // texts are kept exactly (UTF-16), whatever the game file can hold.
    CKorvane* root = RootOrNull();
    const IGameContext* context = root ? root->Context().get() : nullptr;
    if (!context && m_units->Count() > 0)
        throw KorvaneError(fileError, QStringLiteral("CMap.ReleaseLock"),
                           QCoreApplication::translate("CMap", "The units of a map cannot be "
                                                               "swapped out while no game module "
                                                               "is active"));
    // One buffer serves every swap: it keeps its capacity between maps, so
    // switching allocates no large blocks.
    static COutputStream out;
    out.SetExactText(true);
    out.SetOffset(0);
    out.WriteSmallString(context ? context->Id() : QString());
    out.WriteLong(context ? context->Tokens().Count() : 0);
    out.WriteLong(m_units->Count());
    for (const auto& unit : *m_units) {
        const std::int32_t position = tokenPosition(*context, *unit->Token());
        out.WriteInteger(static_cast<std::int16_t>(position));
        out.WriteSmallString(unit->Id());
        unit->SaveTo(out);
    }
    out.WriteLong(m_arrows->Count());
    for (const auto& arrow : *m_arrows)
        arrow->SaveTo(out);

    if (m_swapFile.isEmpty())
        m_swapFile = CUtility::GetCacheDir() + CUtility::GenerateId() + QStringLiteral(".tmp");
    const QString directory = QFileInfo(m_swapFile).absolutePath();
    if (!CUtility::DirExists(directory))
        CUtility::BuildDirectory(directory);
    // Listed before it exists, so that even a kill in the middle of the
    // write leaves nothing the next process cannot find.
    if (!m_swapWritten)
        CSwapFileRegistry::Register(m_swapFile);
    // The new content is written over the old and the file cut to its
    // length, so no stale bytes stay behind. (Cutting a file to nothing
    // first would make the file system flush it to disk at every switch.)
    QFile file(m_swapFile);
    bool written = file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    if (written) {
        written =
            file.write(reinterpret_cast<const char*>(out.Address()), out.Offset()) == out.Offset();
        if (written && file.size() > out.Offset())
            written = file.resize(out.Offset());
        file.close();
        written = written && file.error() == QFileDevice::NoError;
    }
    if (!written) {
        // A short write on a full disk leaves no error of its own to quote.
        const QString reason = file.error() == QFileDevice::NoError
                                   ? QCoreApplication::translate(
                                         "CMap", "not every byte could be written (is the disk "
                                                 "full?)")
                                   : file.errorString();
        throw KorvaneError(
            fileError, QStringLiteral("CMap.ReleaseLock"),
            QCoreApplication::translate("CMap", "The swap file %1 cannot be written: %2")
                .arg(QDir::toNativeSeparators(m_swapFile), reason));
    }
    m_swapWritten = true;
}

CMap::Lists CMap::readSwapFile() const
{
    const auto fail = [this](int number, const QString& reason) {
        throw KorvaneError(
            number, QStringLiteral("CMap.AquireLock"),
            QCoreApplication::translate("CMap", "The swap file %1 cannot be read: %2")
                .arg(QDir::toNativeSeparators(m_swapFile), reason));
    };
    // Read into a buffer kept between swaps, for the same reason as above.
    static std::vector<unsigned char> bytes;
    QFile file(m_swapFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        fail(fileError, file.errorString());
    const qint64 size = file.size();
    if (size <= 0 || size > std::numeric_limits<std::int32_t>::max())
        fail(fileError, QCoreApplication::translate("CMap", "it is empty or too large"));
    if (bytes.size() < static_cast<std::size_t>(size))
        bytes.resize(static_cast<std::size_t>(size));
    if (file.read(reinterpret_cast<char*>(bytes.data()), size) != size)
        fail(fileError, file.errorString());
    file.close();

    auto units = std::make_unique<CVector<CUnit>>();
    auto arrows = std::make_unique<CVector<CArrow>>();
    try {
        CRecordReader in(bytes.data(), static_cast<std::int32_t>(size), "CMap.AquireLock");
        in.SetExactText(true);
        const QString contextId = in.SmallString();
        const std::int32_t tokenCount = in.Long();
        CKorvane* root = RootOrNull();
        const IGameContext* context = root ? root->Context().get() : nullptr;
        const std::int32_t unitCount = in.LongCount(
            QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "units")), swapUnitEntryBytes);
        if (unitCount > 0 &&
            (!context || context->Id() != contextId || context->Tokens().Count() != tokenCount))
            in.Fail(CRecordReader::InvalidFormatError,
                    QCoreApplication::translate("CMap", "it was written for the game module "
                                                        "\"%1\", which is no longer active")
                        .arg(contextId));
        units->SetIncrement(std::max(unitCount, CVector<CUnit>::DefaultIncrement));
        for (std::int32_t i = 0; i < unitCount; ++i) {
            const std::int16_t position = in.Integer();
            if (position < 1 || position > tokenCount)
                in.Fail(
                    CRecordReader::InvalidFormatError,
                    QCoreApplication::translate("CMap", "a unit names the counter number %1 of %2")
                        .arg(position)
                        .arg(tokenCount));
            auto unit = std::make_shared<CUnit>(in.SmallString(), context->Tokens().Item(position));
            unit->RestoreFrom(in);
            units->AddItem(std::move(unit));
        }
        const std::int32_t arrowCount =
            in.LongCount(QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "arrows")),
                         CArrow::MinimumRecordBytes);
        for (std::int32_t i = 0; i < arrowCount; ++i) {
            auto arrow = std::make_shared<CArrow>(QString());
            arrow->RestoreFrom(in);
            arrows->AddItem(std::move(arrow));
        }
    } catch (const KorvaneError& error) {
        fail(error.Number(), error.Description());
    }
    units->SetIncrement(CVector<CUnit>::DefaultIncrement);
    return {std::move(units), std::move(arrows)};
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

void CMap::SaveTo(COutputStream& stream) const
{
    CTraceScope scope("SaveTo", "CMap");
    // A swapped-out map is read into lists of the moment; nothing of the
    // map's own state changes, and no swap file is written.
    Lists swapped;
    if (m_swappedOut)
        swapped = readSwapFile();
    const CVector<CUnit>* units = m_swappedOut ? swapped.Units.get() : m_units.get();
    const CVector<CArrow>* arrows = m_swappedOut ? swapped.Arrows.get() : m_arrows.get();
    const std::int32_t unitCount = units ? units->Count() : 0;
    const std::int32_t arrowCount = arrows ? arrows->Count() : 0;
    checkStoredCount(unitCount, QT_TRANSLATE_NOOP("CRecordReader", "units"));
    checkStoredCount(arrowCount, QT_TRANSLATE_NOOP("CRecordReader", "arrows"));
    stream.WriteInteger(RecordVersion);
    stream.WriteSmallString(m_name);
    stream.WriteSmallString(m_remarks);
    stream.WriteString(m_text);
    stream.WriteBoolean(m_frozen);
    stream.WriteInteger(static_cast<std::int16_t>(unitCount));
    for (std::int32_t i = 1; i <= unitCount; ++i) {
        const CUnit& unit = *units->Item(i);
        stream.WriteInteger(unit.Token()->Index());
        stream.WriteSmallString(unit.Token()->Id());
        unit.SaveTo(stream);
    }
    stream.WriteInteger(static_cast<std::int16_t>(arrowCount));
    for (std::int32_t i = 1; i <= arrowCount; ++i)
        arrows->Item(i)->SaveTo(stream);
}

void CMap::RestoreFrom(CInputStream& stream)
{
    CRecordReader in(stream, "CMap.RestoreFrom");
    RestoreFrom(in);
}

void CMap::RestoreFrom(CRecordReader& in)
{
    CTraceScope scope("RestoreFrom", "CMap");
    CRecordReader::Section section(in, "CMap.RestoreFrom");
    in.Version(QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "map")), 1, RecordVersion);
    QString name = in.SmallString();
    QString remarks = in.SmallString();
    QString text = in.String();
    const bool frozen = in.Boolean();

    // Empty lists are made only when the map is locked: a game of many
    // empty maps then costs little more than the maps themselves.
    std::unique_ptr<CVector<CUnit>> units;
    const std::int32_t unitCount = in.IntegerCount(
        QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "units")), unitEntryBytes);
    if (unitCount > 0) {
        units = std::make_unique<CVector<CUnit>>();
        // One growth for the whole list instead of one per ten units.
        units->SetIncrement(unitCount);
    }
    for (std::int32_t i = 0; i < unitCount; ++i) {
        const std::int16_t tokenIndex = in.Integer();
        const QString tokenId = in.SmallString();
        std::shared_ptr<IToken> token = ResolveToken(tokenIndex, tokenId);
        if (!token)
            failUnknownToken("CMap.RestoreFrom", tokenId);
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), std::move(token));
        unit->RestoreFrom(in);
        units->AddItem(std::move(unit));
    }
    std::unique_ptr<CVector<CArrow>> arrows;
    const std::int32_t arrowCount = in.IntegerCount(
        QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "arrows")), CArrow::MinimumRecordBytes);
    if (arrowCount > 0)
        arrows = std::make_unique<CVector<CArrow>>();
    for (std::int32_t i = 0; i < arrowCount; ++i) {
        auto arrow = std::make_shared<CArrow>(QString());
        arrow->RestoreFrom(in);
        arrows->AddItem(std::move(arrow));
    }

    if (units)
        units->SetIncrement(CVector<CUnit>::DefaultIncrement);
    m_name = std::move(name);
    m_remarks = std::move(remarks);
    m_text = std::move(text);
    m_frozen = frozen;
    m_units = std::move(units);
    m_arrows = std::move(arrows);
    if (m_lockCount > 0)
        ensureLists();
    // What was read replaces whatever the swap file held.
    m_swappedOut = false;
    removeSwapFile();
}

void CMap::RemoveLeftoverSwapFiles()
{
    CSwapFileRegistry::RemoveAll();
}
