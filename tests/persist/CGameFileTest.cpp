#include "persist/CGameFile.h"
#include "PersistTestSupport.h"
#include "model/ModelTestSupport.h"

#include <zlib.h>

namespace {

class GameFile : public ModelFixture
{
protected:
    // A game with one group holding one map, as a new game starts.
    std::shared_ptr<CGame> emptyGame(const QString& name = QStringLiteral("Game"))
    {
        auto game = std::make_shared<CGame>(CUtility::GenerateId());
        game->SetName(name);
        auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        game->MapGroups().AddItem(group);
        const auto map = addMap(*group, QStringLiteral("Start"));
        map->SetRemarks(QStringLiteral("R"));
        map->SetText(QStringLiteral("T"));
        map->SetFrozen(true);
        game->SwitchTo(group);
        return game;
    }
};

} // namespace

TEST_F(GameFile, aGameWithOneMapIsWrittenExactlyAsTheFormatSays)
{
    const auto game = emptyGame();
    Bytes body;
    body.i16(2).small(game->Id().toLatin1()).small("Game").small("").i16(1);
    body.small(game->MapGroups().Item(1)->Id().toLatin1()).i16(1).i16(0).i16(1);
    body.i16(1).small("Start").small("R").text("T").i16(-1).i16(0).i16(0);
    QByteArray expected = FileAround(body.data(), "KRC");
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
