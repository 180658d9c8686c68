#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

class CGame;
class IGameContext;
class QIODevice;

// The ".krf" game file image: "KR01", the stored context id (SmallString),
// the body length (Long), the level-9 zlib body and zero padding to a
// multiple of 4. The stored id is written and read as it stands; callers
// translate between short codes and context ids.
class CGameFile
{
    Q_DECLARE_TR_FUNCTIONS(CGameFile)

public:
    struct Header
    {
        QString StoredContextId;
        std::int32_t BodyLength = 0;
        // Offset of the compressed body within the file image.
        std::int32_t BodyOffset = 0;
    };

    // The most a body may declare, whatever its compressed size.
    static constexpr std::int32_t MaximumBodyLength = 512 * 1024 * 1024;
    // zlib cannot expand data by more than about 1032:1.
    static constexpr std::int64_t MaximumExpansion = 1032;
    // The most a header takes: magic, id length, id and body length.
    static constexpr std::int32_t MaximumHeaderLength = 4 + 1 + 255 + 4;
    // ContextIdFromFile looks no further than this.
    static constexpr std::int32_t HeaderProbeLength = 260;

    // The file image of game. Texts the file's code page cannot hold whole
    // are written with "?" for what it lacks; lossyTexts, when given,
    // receives each such text once.
    static QByteArray ToBytes(CGame& game, const QString& storedContextId,
                              QStringList* lossyTexts = nullptr);
    // The same, storing the short code or id that stands for context in files.
    static QByteArray ToBytes(CGame& game, const IGameContext& context,
                              QStringList* lossyTexts = nullptr);

    // Reads the magic, the stored context id and the body length. False,
    // with a reason, when the bytes are not a game file.
    static bool ReadHeader(const QByteArray& bytes, Header& header, QString* error);

    // Reads the whole game for the active context. Null, with a reason, for
    // a damaged file, a record version this program does not know, or a
    // token the active context does not have; nothing partly read survives.
    // What follows the game record in the body, and what follows the
    // compressed stream in the file, is not read.
    static std::shared_ptr<CGame> FromBytes(const QByteArray& bytes, QString* error);
    // The same from a file open for reading, read a piece at a time: the
    // body's buffer is the one allocation of its size. compressedLength,
    // when given, receives the bytes the compressed stream takes.
    static std::shared_ptr<CGame> FromDevice(QIODevice& file, QString* error,
                                             std::int64_t* compressedLength = nullptr);

    // The stored context id of a file (from its first bytes only), or "".
    static QString StoredContextIdOfFile(const QString& fileName);
};
