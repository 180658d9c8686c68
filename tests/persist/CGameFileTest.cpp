#include "persist/CGameFile.h"
#include "model/ModelTestSupport.h"

#include <zlib.h>

#include <cstring>

namespace {

class GameFile : public ModelFixture
{
protected:
    // A game with one group holding one empty map, as a new game starts.
    std::shared_ptr<CGame> emptyGame(const QString& name = QStringLiteral("Game"))
    {
        auto game = std::make_shared<CGame>(CUtility::GenerateId());
        game->SetName(name);
        auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        game->MapGroups().AddItem(group);
        addMap(*group, QStringLiteral("Start"));
        game->SwitchTo(group);
        return game;
    }

    static QByteArray compressed(const QByteArray& body)
    {
        uLongf length = compressBound(static_cast<uLong>(body.size()));
        QByteArray out(static_cast<qsizetype>(length), '\0');
        compress2(reinterpret_cast<Bytef*>(out.data()), &length,
                  reinterpret_cast<const Bytef*>(body.constData()), static_cast<uLong>(body.size()),
                  9);
        out.resize(static_cast<qsizetype>(length));
        return out;
    }

    static QByteArray smallString(const QByteArray& text) { return char(text.size()) + text; }

    static QByteArray longBytes(std::int32_t value)
    {
        QByteArray out(4, '\0');
        std::memcpy(out.data(), &value, 4);
        return out;
    }

    // A file image around an arbitrary body, for damaged-file cases.
    static QByteArray fileAround(const QByteArray& body, std::int32_t declaredLength)
    {
        return QByteArrayLiteral("KR01") + smallString("krm_test_v1") + longBytes(declaredLength) +
               compressed(body);
    }

    QString failureOf(const QByteArray& bytes)
    {
        QString error;
        EXPECT_EQ(CGameFile::FromBytes(bytes, &error), nullptr);
        EXPECT_FALSE(error.isEmpty());
        return error;
    }
};

} // namespace

TEST_F(GameFile, anEmptyGameIsWrittenExactlyAsTheFormatSays)
{
    const auto game = emptyGame();
    const QString groupId = game->MapGroups().Item(1)->Id();
    const QByteArray body = QByteArray::fromHex("0200") + smallString(game->Id().toLatin1()) +
                            smallString("Game") + smallString("") + QByteArray::fromHex("0100") +
                            smallString(groupId.toLatin1()) +
                            QByteArray::fromHex("0100"
                                                "0000"
                                                "0100") +
                            QByteArray::fromHex("0100") + smallString("Start") + smallString("") +
                            QByteArray::fromHex("0000"
                                                "0000"
                                                "0000"
                                                "0000");
    QByteArray expected = QByteArrayLiteral("KR01") + smallString("KRC") +
                          longBytes(static_cast<std::int32_t>(body.size())) + compressed(body);
    while (expected.size() % 4 != 0)
        expected += '\0';

    EXPECT_EQ(CGameFile::ToBytes(*game, QStringLiteral("KRC")).toHex(), expected.toHex());
}

TEST_F(GameFile, everyRemainderIsPaddedWithZerosToAMultipleOfFour)
{
    QSet<qsizetype> unpaddedRemainders;
    for (int length = 0; length < 64; ++length) {
        const auto game = emptyGame(QString(length, QLatin1Char('n')));
        const QByteArray file = CGameFile::ToBytes(*game, QStringLiteral("krm_test_v1"));
        CGameFile::Header header;
        ASSERT_TRUE(CGameFile::ReadHeader(file, header, nullptr));
        // The compressed body ends where zlib's stream ends; what follows is padding.
        z_stream stream{};
        QByteArray sink(header.BodyLength, '\0');
        inflateInit(&stream);
        stream.next_in =
            reinterpret_cast<Bytef*>(const_cast<char*>(file.constData())) + header.BodyOffset;
        stream.avail_in = static_cast<uInt>(file.size() - header.BodyOffset);
        stream.next_out = reinterpret_cast<Bytef*>(sink.data());
        stream.avail_out = static_cast<uInt>(sink.size());
        ASSERT_EQ(inflate(&stream, Z_FINISH), Z_STREAM_END);
        const qsizetype unpadded = file.size() - stream.avail_in;
        inflateEnd(&stream);

        EXPECT_EQ(file.size() % 4, 0);
        EXPECT_EQ(file.size() - unpadded, (4 - unpadded % 4) % 4);
        EXPECT_EQ(file.mid(unpadded), QByteArray(file.size() - unpadded, '\0'));
        unpaddedRemainders.insert(unpadded % 4);
    }
    EXPECT_EQ(unpaddedRemainders.size(), 4) << "names of 0 to 63 characters reach every remainder";
}

TEST_F(GameFile, aSavedGameReadsBackWithItsIdsAndContent)
{
    const auto game = emptyGame();
    auto map = game->ActiveMapGroup()->ActiveMap();
    const auto arrowUnit =
        addUnit(*map, QStringLiteral("ARROW"), 5, 6, QString(), QStringLiteral("a|head"));
    addUnit(*map, QStringLiteral("INF"), 100, 200, QStringLiteral("x3"), QStringLiteral("3"), true);

    const QByteArray file = CGameFile::ToBytes(*game, QStringLiteral("krm_test_v1"));
    EXPECT_EQ(CGameFile::StoredContextIdOfFile(home.WriteFile(QStringLiteral("g.krf"), file)),
              QStringLiteral("krm_test_v1"));

    QString error;
    const auto loaded = CGameFile::FromBytes(file, &error);
    ASSERT_NE(loaded, nullptr) << error.toStdString();
    EXPECT_EQ(loaded->Id(), game->Id());
    EXPECT_EQ(loaded->MapGroups().Item(1)->Id(), game->MapGroups().Item(1)->Id());
    const auto loadedMap = loaded->ActiveMapGroup()->ActiveMap();
    ASSERT_NE(loadedMap, nullptr);
    EXPECT_NE(loadedMap->Id(), map->Id());
    ASSERT_EQ(loadedMap->Units()->Count(), 2);
    EXPECT_EQ(loadedMap->Units()->Item(1)->Id(), arrowUnit->Id());
    EXPECT_EQ(loadedMap->Units()->Item(2)->Caption(), QStringLiteral("x3"));
    EXPECT_TRUE(loadedMap->Units()->Item(2)->HasMoved());
    EXPECT_EQ(CGameFile::ToBytes(*loaded, QStringLiteral("krm_test_v1")).size(), file.size());
}

TEST_F(GameFile, damagedFilesAreRefusedWithAReason)
{
    const QByteArray good = CGameFile::ToBytes(*emptyGame(), QStringLiteral("krm_test_v1"));
    CGameFile::Header header;
    ASSERT_TRUE(CGameFile::ReadHeader(good, header, nullptr));

    EXPECT_TRUE(failureOf("KR02" + good.mid(4)).contains(QStringLiteral("not a Korvane game")));
    EXPECT_TRUE(failureOf(good.left(3)).contains(QStringLiteral("not a Korvane game")));
    EXPECT_TRUE(failureOf(good.left(header.BodyOffset - 2)).contains(QStringLiteral("header")));

    // Declared lengths that cannot be right are refused before anything is allocated.
    for (const std::int32_t declared : {0, -5, 2000000000}) {
        QByteArray bad = good;
        std::memcpy(bad.data() + header.BodyOffset - 4, &declared, 4);
        EXPECT_TRUE(failureOf(bad).contains(QStringLiteral("body length")));
    }

    // A body that inflates to another length than declared, or not at all.
    QByteArray longer = good;
    const std::int32_t more = header.BodyLength + 10;
    std::memcpy(longer.data() + header.BodyOffset - 4, &more, 4);
    EXPECT_TRUE(failureOf(longer).contains(QStringLiteral("damaged")));
    QByteArray flipped = good;
    flipped[header.BodyOffset + 5] = static_cast<char>(flipped[header.BodyOffset + 5] ^ 0x5A);
    EXPECT_TRUE(failureOf(flipped).contains(QStringLiteral("damaged")));
    EXPECT_TRUE(failureOf(good.left(header.BodyOffset + 6)).contains(QStringLiteral("damaged")));
}

TEST_F(GameFile, recordsTheProgramDoesNotKnowOrCannotPlaceAreRefused)
{
    const QByteArray newer = QByteArray::fromHex("0300") + smallString("ID");
    EXPECT_TRUE(failureOf(fileAround(newer, static_cast<std::int32_t>(newer.size())))
                    .contains(QStringLiteral("newer"), Qt::CaseInsensitive));

    const auto game = emptyGame();
    addUnit(*game->ActiveMapGroup()->ActiveMap(), QStringLiteral("TANK"), 1, 2, QString(),
            QString());
    const QByteArray file = CGameFile::ToBytes(*game, QStringLiteral("krm_test_v1"));
    context->TokenList().Clear();
    EXPECT_TRUE(failureOf(file).contains(QStringLiteral("TANK")));
}
