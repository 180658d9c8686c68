#include "model/ModelTestSupport.h"

#include "core/KorvaneError.h"

#include <gtest/gtest.h>

namespace {

class ModelRecords : public ModelFixture
{
protected:
    // A version 2 unit record without id.
    static Bytes& unitRecord(Bytes& bytes, std::int32_t x, const QByteArray& caption)
    {
        return bytes.i16(2).i32(x).i32(0).small(caption).small("").i16(0);
    }

    // A map record header up to (not including) the unit count.
    static Bytes mapHeader(const QByteArray& name)
    {
        Bytes bytes;
        bytes.i16(1).small(name).small("").text("").i16(0);
        return bytes;
    }

    // A version 1 game of mapCount empty maps named M1, M2 ... restored.
    static std::unique_ptr<CGame> versionOneGame(int mapCount)
    {
        Bytes bytes;
        bytes.i16(1)
            .small("OLD")
            .small("Old game")
            .small("")
            .i16(static_cast<std::int16_t>(mapCount));
        for (int i = 1; i <= mapCount; ++i)
            bytes.append(mapHeader("M" + QByteArray::number(i)).i16(0).i16(0).data());
        auto game = std::make_unique<CGame>(QStringLiteral("other"));
        CInputStream in = bytes.stream();
        game->RestoreFrom(in);
        return game;
    }

    // Group sizes, then per group its frozen flag and first and last map names.
    static QStringList layout(const CGame& game)
    {
        QStringList lines;
        for (const auto& group : game.MapGroups()) {
            const CVector<CMap>& maps = group->Maps();
            lines << QStringLiteral("%1 %2 %3-%4")
                         .arg(maps.Count())
                         .arg(group->Frozen() ? QStringLiteral("frozen") : QStringLiteral("open"))
                         .arg(maps.Item(1)->Name(), maps.Item(maps.Count())->Name());
        }
        return lines;
    }

    // A unit line naming the unit id only where the token keeps it.
    static QStringList describe(const CMap& map)
    {
        QStringList lines = contents(map);
        for (int i = 0; i < map.Units()->Count(); ++i) {
            const auto& unit = map.Units()->Item(i + 1);
            if (!unit->Token()->PersistId())
                lines[i].replace(unit->Id(), QStringLiteral("*"));
        }
        return lines;
    }
};

TEST_F(ModelRecords, unitRecordsKeepTheIdOnlyForArrowTokens)
{
    CUnit plain(QStringLiteral("U1"), token(QStringLiteral("TANK")));
    plain.SetX(10);
    plain.SetY(-2);
    plain.SetCaption(QStringLiteral("ab"));
    plain.SetData(QStringLiteral("3"));
    plain.SetHasMoved(true);
    COutputStream out;
    plain.SaveTo(out);
    Bytes plainBytes;
    plainBytes.i16(2).i32(10).i32(-2).small("ab").small("3").i16(-1);
    EXPECT_EQ(bytesOf(out), plainBytes.data());

    CUnit arrow(QStringLiteral("A1"), token(QStringLiteral("ARROW")));
    COutputStream arrowOut;
    arrow.SaveTo(arrowOut);
    Bytes arrowBytes;
    arrowBytes.i16(2).small("A1").i32(0).i32(0).small("").small("").i16(0);
    EXPECT_EQ(bytesOf(arrowOut), arrowBytes.data());

    // Reading back: the arrow-token unit takes the stored id, the other keeps its own.
    CInputStream in = arrowBytes.append(plainBytes.data()).stream();
    CUnit arrowCopy(QStringLiteral("generated"), token(QStringLiteral("ARROW")));
    arrowCopy.RestoreFrom(in);
    CUnit plainCopy(QStringLiteral("generated"), token(QStringLiteral("TANK")));
    plainCopy.RestoreFrom(in);
    EXPECT_EQ(arrowCopy.Id(), QStringLiteral("A1"));
    EXPECT_EQ(plainCopy.Id(), QStringLiteral("generated"));
    EXPECT_EQ(plainCopy.y(), -2);
    EXPECT_EQ(plainCopy.Data(), QStringLiteral("3"));
    EXPECT_TRUE(plainCopy.HasMoved());
    EXPECT_EQ(in.Remaining(), 0);

    // A version 1 record has no moved flag: the bytes after it are not read.
    CInputStream old = Bytes().i16(1).i32(5).i32(6).small("x2").small("2").i16(-1).stream();
    plainCopy.RestoreFrom(old);
    EXPECT_FALSE(plainCopy.HasMoved());
    EXPECT_EQ(plainCopy.Caption(), QStringLiteral("x2"));
    EXPECT_EQ(old.Remaining(), 2);
}

TEST_F(ModelRecords, aGameWithOneEmptyMapHasThisExactBody)
{
    CGame game(QStringLiteral("G"));
    game.SetName(QStringLiteral("Nm"));
    auto group = std::make_shared<CMapGroup>(QStringLiteral("GR"));
    game.MapGroups().AddItem(group);
    auto map = addMap(*group, QStringLiteral("M"));
    map->SetRemarks(QStringLiteral("R"));
    map->SetText(QStringLiteral("T"));
    map->SetFrozen(true);
    COutputStream out;
    game.SaveTo(out);

    Bytes expected;
    expected.i16(2).small("G").small("Nm").small("").i16(1).small("GR");
    expected.i16(1).i16(0).i16(1);
    expected.i16(1).small("M").small("R").text("T").i16(-1).i16(0).i16(0);
    EXPECT_EQ(bytesOf(out), expected.data());
}

TEST_F(ModelRecords, saveAndRestoreKeepTheDocumentAndEveryTruncationFailsCleanly)
{
    CGame game(CUtility::GenerateId());
    game.SetName(QStringLiteral("Battle"));
    game.SetRemarks(QStringLiteral("turn 3"));
    auto first = std::make_shared<CMapGroup>(CUtility::GenerateId());
    auto second = std::make_shared<CMapGroup>(CUtility::GenerateId());
    first->SetFrozen(true);
    game.MapGroups().AddItem(first);
    game.MapGroups().AddItem(second);
    auto x = addMap(*first, QStringLiteral("X"));
    auto y = addMap(*first, QStringLiteral("Y"));
    auto z = addMap(*second, QStringLiteral("Z"));
    x->SetText(QStringLiteral("long text\r\nline 2"));
    first->SwitchTo(x);
    addUnit(*x, QStringLiteral("INF"), 10, 20, QStringLiteral("x5"), QStringLiteral("5"), true);
    addUnit(*x, QStringLiteral("ARROW"), 30, 40, QString(), QString());
    addArrow(*x, 50, 255);
    first->SwitchTo(y); // x now lives in its swap file
    game.SwitchTo(second);
    addUnit(*z, QStringLiteral("MARK"), 1, 2, QStringLiteral("x9"), QStringLiteral("9"));
    x->AquireLock();
    const QStringList xBefore = describe(*x);
    x->ReleaseLock();
    const QStringList zBefore = describe(*z);

    COutputStream out;
    game.SaveTo(out);
    const QByteArray whole = bytesOf(out);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        CInputStream cut = CInputStream::FromBytes(whole.left(length));
        CGame damaged(QStringLiteral("C"));
        EXPECT_THROW(damaged.RestoreFrom(cut), KorvaneError) << "cut at " << length;
    }
    CInputStream in = CInputStream::FromBytes(whole);
    CGame copy(QStringLiteral("other"));
    copy.RestoreFrom(in);

    EXPECT_EQ(copy.Id() + copy.Name() + copy.Remarks(), game.Id() + QStringLiteral("Battleturn 3"));
    ASSERT_EQ(copy.MapGroups().Count(), 2);
    const auto& g1 = copy.MapGroups().Item(1);
    const auto& g2 = copy.MapGroups().Item(2);
    EXPECT_EQ(g1->Id(), first->Id());
    EXPECT_EQ(g2->Id(), second->Id());
    EXPECT_TRUE(g1->Frozen());
    EXPECT_FALSE(g2->Frozen());
    EXPECT_EQ(copy.ActiveMapGroup(), g2);
    // Within every group the last map is active (and so locked).
    EXPECT_EQ(g1->ActiveMap(), g1->Maps().Item(2));
    EXPECT_EQ(g2->ActiveMap(), g2->Maps().Item(1));

    const auto& xCopy = g1->Maps().Item(1);
    EXPECT_EQ(xCopy->Name(), QStringLiteral("X"));
    EXPECT_EQ(xCopy->Text(), x->Text());
    EXPECT_NE(xCopy->Id(), x->Id()) << "maps get new ids";
    EXPECT_EQ(xCopy->GroupId(), g1->Id());
    xCopy->AquireLock();
    EXPECT_EQ(describe(*xCopy), xBefore);
    EXPECT_NE(xCopy->Units()->Item(1)->Id(), QString()) << "units without kept id get a new one";
    EXPECT_EQ(describe(*g2->Maps().Item(1)), zBefore);
}

TEST_F(ModelRecords, tokensAreFoundByIndexThenByIdThenByTheOneSubstitution)
{
    Bytes bytes = mapHeader("M");
    bytes.i16(4);
    unitRecord(bytes.i16(1).small("INF"), 1, "by index");
    unitRecord(bytes.i16(5).small("TANK"), 2, "index moved"); // index 5 holds NEINF
    unitRecord(bytes.i16(0).small("MARK"), 3, "no index");
    unitRecord(bytes.i16(99).small("CHBBD"), 4, "renamed");
    bytes.i16(0);
    CInputStream in = bytes.stream();
    CMap map(CUtility::GenerateId(), QString());
    map.RestoreFrom(in);
    map.AquireLock();
    QStringList tokens;
    for (const auto& unit : *map.Units())
        tokens << unit->Token()->Id() + QLatin1Char(':') + unit->Caption();
    EXPECT_EQ(tokens,
              (QStringList{QStringLiteral("INF:by index"), QStringLiteral("TANK:index moved"),
                           QStringLiteral("MARK:no index"), QStringLiteral("NEINF:renamed")}));
}

TEST_F(ModelRecords, anUnknownTokenFailsTheReadAndNamesTheToken)
{
    Bytes bytes = mapHeader("new name");
    bytes.i16(2);
    unitRecord(bytes.i16(1).small("INF"), 1, "fine");
    unitRecord(bytes.i16(1).small("GHOST"), 2, "lost");
    bytes.i16(0);
    CInputStream in = bytes.stream();
    CMap map(CUtility::GenerateId(), QString());
    map.SetName(QStringLiteral("old name"));
    EXPECT_TRUE(errorOf([&] { map.RestoreFrom(in); }).contains(QStringLiteral("\"GHOST\"")));
    EXPECT_EQ(map.Name(), QStringLiteral("old name")) << "nothing of a failed read is kept";
}

TEST_F(ModelRecords, damagedDataFailsCleanly)
{
    // Zeros behind each case so that only the damage named fails the read.
    auto failsWith = [](Bytes bytes, const QString& words) {
        CInputStream in = bytes.append(QByteArray(24, '\0')).stream();
        CGame game(QStringLiteral("G"));
        const QString error = errorOf([&] { game.RestoreFrom(in); });
        return error.section(QLatin1Char(':'), 1).contains(words) ? QString() : error;
    };
    Bytes game;
    game.i16(2).small("G").small("").small("");

    // Counts that the remaining bytes cannot hold, or that are negative.
    EXPECT_EQ(failsWith(Bytes(game).i16(32767).small("GR"), QStringLiteral("32767")), QString());
    EXPECT_EQ(failsWith(Bytes(game).i16(-1), QStringLiteral("negative")), QString());
    Bytes manyUnits = Bytes(game).i16(1).small("GR").i16(1).i16(0).i16(1);
    manyUnits.append(mapHeader("M").i16(30000).data());
    EXPECT_EQ(failsWith(manyUnits, QStringLiteral("30000")), QString());
    Bytes badText = Bytes(game).i16(1).small("GR").i16(1).i16(0).i16(1);
    badText.i16(1).small("").small("").i16(-5);
    EXPECT_EQ(failsWith(badText, QStringLiteral("negative")), QString());

    // Records of versions this program does not know.
    const QString newer = QStringLiteral("newer");
    EXPECT_EQ(failsWith(Bytes().i16(3), newer), QString());
    EXPECT_EQ(failsWith(Bytes(game).i16(1).small("GR").i16(2), newer), QString());
    Bytes newerMap = Bytes(game).i16(1).small("GR").i16(1).i16(0).i16(1).i16(2);
    EXPECT_EQ(failsWith(newerMap, newer), QString());
    Bytes newerUnit = Bytes(game).i16(1).small("GR").i16(1).i16(0).i16(1);
    newerUnit.append(mapHeader("M").i16(1).i16(1).small("INF").i16(3).data());
    EXPECT_EQ(failsWith(newerUnit, newer), QString());
    EXPECT_EQ(failsWith(Bytes().i16(0), QStringLiteral("invalid")), QString());
}

TEST_F(ModelRecords, versionOneGamesAreGroupedByHundreds)
{
    const auto small = versionOneGame(120);
    EXPECT_EQ(small->Id() + small->Name(), QStringLiteral("OLDOld game"));
    EXPECT_EQ(layout(*small), QStringList{QStringLiteral("120 open M1-M120")});
    EXPECT_EQ(layout(*versionOneGame(151)), (QStringList{QStringLiteral("99 frozen M1-M99"),
                                                         QStringLiteral("52 open M100-M151")}));

    // Above 1050 maps the first hundred are dropped.
    const auto large = versionOneGame(1060);
    QStringList expected{QStringLiteral("99 frozen M101-M199")};
    for (int first = 200; first < 1000; first += 100)
        expected << QStringLiteral("100 frozen M%1-M%2").arg(first).arg(first + 99);
    expected << QStringLiteral("61 open M1000-M1060");
    EXPECT_EQ(layout(*large), expected);
    EXPECT_EQ(large->GetMapCount(), 960);
    const auto& last = large->MapGroups().Item(10);
    EXPECT_EQ(large->ActiveMapGroup(), last);
    EXPECT_EQ(last->ActiveMap(), last->Maps().Item(61));
    EXPECT_EQ(last->Maps().Item(1)->GroupId(), last->Id());
}

} // namespace
