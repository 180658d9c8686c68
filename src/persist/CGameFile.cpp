#include "CGameFile.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <QBuffer>
#include <QFile>

#include <cstring>
#include <zlib.h>

namespace {

const char magic[4] = {'K', 'R', '0', '1'};

void setError(QString* error, const QString& text)
{
    if (error)
        *error = text;
}

} // namespace

QByteArray CGameFile::ToBytes(CGame& game, const IGameContext& context, QStringList* lossyTexts)
{
    return ToBytes(game, CContextMgr::TranslateInternalId(context.Id()), lossyTexts);
}

QByteArray CGameFile::ToBytes(CGame& game, const QString& storedContextId, QStringList* lossyTexts)
{
    CTraceScope scope("GameToStream", "CGameFile");
    COutputStream body;
    QStringList lossy;
    body.CollectLossyTexts(&lossy);
    game.SaveTo(body);
    body.CollectLossyTexts(nullptr);
    if (lossyTexts) {
        lossy.removeDuplicates();
        *lossyTexts = std::move(lossy);
    }
    // Trim the body to its content; the header declares that length.
    body.Resize(body.Offset(), true);
    const std::int32_t bodyLength = body.Size();

    CZlib zlib;
    const std::unique_ptr<COutputStream> packed = zlib.Compact(body);
    if (zlib.LastResult() != Z_OK)
        throw KorvaneError(
            7, QStringLiteral("CGameFile.ToBytes"),
            tr("The game could not be compressed (zlib error %1)").arg(zlib.LastResult()));

    COutputStream header;
    header.Constructor(MaximumHeaderLength);
    for (const char c : magic)
        header.WriteByte(static_cast<std::uint8_t>(c));
    header.WriteSmallString(storedContextId);
    header.WriteLong(bodyLength);

    const qsizetype headerLength = header.Offset();
    qsizetype total = headerLength + packed->Size();
    if (total % 4 != 0)
        total += 4 - total % 4;
    QByteArray bytes(total, '\0');
    std::memcpy(bytes.data(), header.Address(), static_cast<std::size_t>(headerLength));
    std::memcpy(bytes.data() + headerLength, packed->Address(),
                static_cast<std::size_t>(packed->Size()));
    return bytes;
}

bool CGameFile::ReadHeader(const QByteArray& bytes, Header& header, QString* error)
{
    CInputStream in = CInputStream::FromBytes(bytes.left(MaximumHeaderLength));
    for (const char c : magic) {
        if (in.ReadByte() != static_cast<std::uint8_t>(c)) {
            setError(error, tr("it is not a Korvane game file"));
            return false;
        }
    }
    const std::int32_t idLength = in.Remaining() > 0 ? bytes.at(4) & 0xFF : -1;
    if (idLength < 0 || in.Remaining() < 1 + idLength + 4) {
        setError(error, tr("the file ends inside its header"));
        return false;
    }
    header.StoredContextId = in.ReadSmallString();
    header.BodyLength = in.ReadLong();
    header.BodyOffset = in.Offset();
    return true;
}

std::shared_ptr<CGame> CGameFile::FromBytes(const QByteArray& bytes, QString* error)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return FromDevice(buffer, error);
}

std::shared_ptr<CGame> CGameFile::FromDevice(QIODevice& file, QString* error,
                                             std::int64_t* compressedLength)
{
    CTraceScope scope("FileToGame", "CGameFile");
    Header header;
    if (!file.seek(0) || !ReadHeader(file.read(MaximumHeaderLength), header, error))
        return nullptr;

    const std::int64_t packedLength = file.size() - header.BodyOffset;
    if (header.BodyLength <= 0 || header.BodyLength > MaximumBodyLength ||
        header.BodyLength > packedLength * MaximumExpansion) {
        // Shown as stored, unsigned: a Long of 2 GiB reads as negative.
        setError(error, tr("its declared body length (%1 bytes) cannot be right")
                            .arg(static_cast<std::uint32_t>(header.BodyLength)));
        return nullptr;
    }

    // The one buffer of the declared length; its pages cost memory only as
    // inflation writes them, so a false length costs little.
    CByteBuffer inflated;
    inflated.resize(static_cast<std::size_t>(header.BodyLength));
    std::size_t produced = 0;
    std::int64_t consumed = 0;
    const int result =
        file.seek(header.BodyOffset)
            ? CZlib::Inflate(file, inflated.data(), inflated.size(), produced, consumed)
            : Z_ERRNO;
    if (result != Z_OK || produced != inflated.size()) {
        setError(error, tr("its compressed body is damaged"));
        return nullptr;
    }
    if (compressedLength)
        *compressedLength = consumed;
    CInputStream body = CInputStream::FromBuffer(std::move(inflated));

    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    try {
        game->RestoreFrom(body);
    } catch (const KorvaneError& failure) {
        setError(error, failure.Description());
        return nullptr;
    }
    return game;
}

QString CGameFile::StoredContextIdOfFile(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    CInputStream in = CInputStream::FromBytes(file.read(HeaderProbeLength));
    for (const char c : magic) {
        if (in.ReadByte() != static_cast<std::uint8_t>(c))
            return QString();
    }
    return in.ReadSmallString();
}
