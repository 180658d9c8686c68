#include "persist/CGameFile.h"
#include "PersistTestSupport.h"
#include "model/ModelTestSupport.h"

#include <zlib.h>

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

    static QByteArray smallString(const QByteArray& text) { return char(text.size()) + text; }
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
    QByteArray expected = FileAround(body, "KRC");
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
