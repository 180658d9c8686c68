#include "persist/CGameFile.h"
#include "PersistTestSupport.h"
#include "model/ModelTestSupport.h"

namespace {

using GameFile = ModelFixture;

} // namespace

// A game of one frozen group holding one frozen map with a unit, a unit of an
// arrow token (which keeps its id) and an arrow, named with 0 to 63 characters
// so that the file before its padding ends at every remainder of four. Read
// back, each gives the same bytes; cut anywhere, its body is refused whole.
TEST_F(GameFile, gamesAreWrittenExactlyAsTheFormatSaysReadBackWholeOrNotAtAll)
{
    QSet<qsizetype> unpaddedRemainders;
    for (int length = 0; length < 64; ++length) {
        const QString name(length, QLatin1Char('n'));
        CGame game(CUtility::GenerateId());
        game.SetName(name);
        game.SetRemarks(QStringLiteral("Rm"));
        auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        group->SetFrozen(true);
        game.MapGroups().AddItem(group);
        const auto map = AddMap(*group, QStringLiteral("Start"));
        map->SetRemarks(QStringLiteral("R"));
        map->SetText(QStringLiteral("T"));
        map->SetFrozen(true);
        game.SwitchTo(group);
        AddUnit(*map, QStringLiteral("TANK"), 10, -2, QStringLiteral("ab"), QStringLiteral("3"),
                true);
        const auto arrowUnit = AddUnit(*map, QStringLiteral("ARROW"), 0, 0, QString(), QString());
        const auto arrow = AddArrow(*map, -100, 7, 100, 101, 255);

        Bytes body;
        body.i16(2).small(game.Id().toLatin1()).small(name.toLatin1()).small("Rm").i16(1);
        body.small(group->Id().toLatin1()).i16(1).i16(-1).i16(1);
        body.i16(1).small("Start").small("R").text("T").i16(-1).i16(2);
        body.i16(2).small("TANK").i16(2).i32(10).i32(-2).small("ab").small("3").i16(-1);
        body.i16(3).small("ARROW").i16(2).small(arrowUnit->Id().toLatin1()).i32(0).i32(0);
        body.small("").small("").i16(0).i16(1).i16(1).small(arrow->Id().toLatin1());
        body.i32(100).i32(101).i32(-100).i32(7).i32(255);
        QByteArray expected = FileAround(body.data(), "KRC");
        unpaddedRemainders.insert(expected.size() % 4);
        expected += QByteArray((4 - expected.size() % 4) % 4, '\0');
        ASSERT_EQ(CGameFile::ToBytes(game, QStringLiteral("KRC")).toHex(), expected.toHex())
            << length;
        QString error;
        const std::shared_ptr<CGame> read = CGameFile::FromBytes(expected, &error);
        ASSERT_TRUE(read) << error.toStdString();
        ASSERT_EQ(CGameFile::ToBytes(*read, QStringLiteral("KRC")), expected) << length;
        for (qsizetype cut = 0; length == 63 && cut < body.data().size(); ++cut)
            EXPECT_FALSE(CGameFile::FromBytes(FileAround(body.data().left(cut), "KRC"), &error))
                << "cut at " << cut;
    }
    EXPECT_EQ(unpaddedRemainders.size(), 4);
}
