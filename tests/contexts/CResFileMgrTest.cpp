#include "contexts/CResFileMgr.h"
#include "contexts/CResFileWriter.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "support/ContextTestSupport.h"
#include "support/RootFixture.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstring>

namespace {

// Where a pack's data starts when nothing pads it.
std::int32_t directoryEnd(const QByteArray& pack)
{
    std::int32_t stored = 0;
    std::memcpy(&stored, pack.constData() + 4, 4);
    return 8 + stored;
}

class ResFileTest : public RootFixture
{
protected:
    CResFileMgr writePack(const QString& relative, const CResFileWriter& writer)
    {
        const qsizetype slash = relative.lastIndexOf(QLatin1Char('/'));
        QDir().mkpath(home.File(relative.left(slash)));
        writer.Write(home.File(relative));
        return CResFileMgr(home.File(relative.left(slash + 1)), relative.mid(slash + 1));
    }

    QByteArray cached(const QString& name) const
    {
        QFile file(CUtility::GetCacheDir() + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(ResFileTest, EntriesRoundTripInAnyCase)
{
    const QByteArray text = QByteArray("<module_def>repeated text</module_def>\n").repeated(200);
    QByteArray noise(5000, Qt::Uninitialized);
    QRandomGenerator(7).fillRange(reinterpret_cast<quint32*>(noise.data()), noise.size() / 4);
    CResFileWriter writer;
    writer.AddEntry(QStringLiteral("Module.DEF"), text);
    writer.AddEntry(QStringLiteral("noise.bin"), noise);
    writer.AddEntry(QStringLiteral("empty.txt"), QByteArray());
    // One red pixel; Qt reads GIF but does not write it.
    writer.AddEntry(QStringLiteral("dot.gif"),
                    QByteArray::fromHex("47494638396101000100800000ff000000000021f904000000"
                                        "00002c00000000010001000002024401003b"));
    EXPECT_THROW(writer.AddEntry(QStringLiteral("MODULE.def"), text), KorvaneError);
    for (const QString& name : {QString(), QStringLiteral("a/b"), QStringLiteral("..png"),
                                QStringLiteral("a\\b"), QString(256, QLatin1Char('n')),
                                QStringLiteral("\u4e2d.png"), QStringLiteral("tab\there")})
        EXPECT_THROW(writer.AddEntry(name, "x"), KorvaneError) << name.toStdString();
    CResFileMgr pack = writePack(QStringLiteral("modules/test.krm"), writer);
    ASSERT_TRUE(pack.IsOpen()) << pack.LastError().toStdString();

    ASSERT_EQ(pack.EntryCount(), 4);
    const CResFileEntry& def = pack.Entry(pack.FindEntry(QStringLiteral("MODULE.DEF")));
    EXPECT_EQ(def.Name, QStringLiteral("module.def"));
    EXPECT_LT(def.StoredLength, def.UnpackedLength);
    const CResFileEntry& raw = pack.Entry(pack.FindEntry(QStringLiteral("Noise.Bin")));
    EXPECT_EQ(raw.StoredLength, raw.UnpackedLength);
    // Positions count from the start of the file; the data follows the directory at once.
    const QByteArray bytes = home.ReadFile(QStringLiteral("modules/test.krm"));
    EXPECT_EQ(bytes.mid(raw.Position, raw.StoredLength), noise);
    EXPECT_EQ(pack.Entry(1).Position, directoryEnd(bytes));

    EXPECT_FALSE(CUtility::DirExists(CUtility::GetCacheDir()));
    QString out;
    ASSERT_TRUE(pack.UnpackFile(QStringLiteral("MODULE.DEF"), -1, out));
    EXPECT_FALSE(out.contains(QLatin1Char('/')));
    EXPECT_EQ(cached(out), text);
    ASSERT_TRUE(pack.UnpackFile(QStringLiteral("NOISE.BIN"), -1, out));
    EXPECT_EQ(cached(out), noise);
    ASSERT_TRUE(pack.UnpackFile(QStringLiteral("empty.txt"), -1, out));
    EXPECT_TRUE(CUtility::FileExists(CUtility::GetCacheDir() + out));

    // A copy to a second place, replacing what was there.
    const QString copy = home.WriteFile(QStringLiteral("copy.bin"), "old");
    ASSERT_TRUE(pack.UnpackFile(QStringLiteral("noise.bin"), 0, out, copy));
    EXPECT_EQ(home.ReadFile(QStringLiteral("copy.bin")), noise);
    EXPECT_FALSE(pack.UnpackFile(QStringLiteral("missing.png"), -1, out));
    EXPECT_TRUE(out.isEmpty() && pack.LastError().contains(QStringLiteral("missing.png")));

    // Pictures are decoded by their content.
    EXPECT_EQ(pack.UnpackImage(QStringLiteral("DOT.GIF")).pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_TRUE(pack.UnpackImage(QStringLiteral("empty.txt")).isNull());
    EXPECT_TRUE(pack.LastError().contains(QStringLiteral("not a picture")));

    pack.RemoveCachedFiles();
    EXPECT_EQ(CUtility::GetDirListing(CUtility::GetCacheDir() + QStringLiteral("*")).Count(), 0);
}

TEST_F(ResFileTest, CacheFilesBelongToOnePackVersion)
{
    CResFileWriter first;
    first.AddEntry(QStringLiteral("board.png"), "first module's board");
    CResFileWriter second;
    second.AddEntry(QStringLiteral("board.png"), "second module's board!");
    CResFileMgr a = writePack(QStringLiteral("modules/a.krm"), first);
    CResFileMgr b = writePack(QStringLiteral("usermods/b.udm"), second);

    QString outA;
    QString outB;
    ASSERT_TRUE(a.UnpackFile(QStringLiteral("board.png"), -1, outA));
    ASSERT_TRUE(b.UnpackFile(QStringLiteral("board.png"), -1, outB));
    EXPECT_NE(outA, outB);
    EXPECT_EQ(cached(outA), QByteArray("first module's board"));
    EXPECT_EQ(cached(outB), QByteArray("second module's board!"));

    // A cache file cut short is written again.
    QFile::resize(CUtility::GetCacheDir() + outA, 3);
    ASSERT_TRUE(a.UnpackFile(QStringLiteral("board.png"), -1, outA));
    EXPECT_EQ(cached(outA), QByteArray("first module's board"));

    // Another reader of the pack (another process, say) finds a's file and
    // leaves it to a; once a removes it, the other unpacks it again on use.
    CResFileMgr other(home.File(QStringLiteral("modules")), QStringLiteral("a.krm"));
    ASSERT_TRUE(other.UnpackFile(QStringLiteral("board.png"), -1, outB));
    other.RemoveCachedFiles();
    EXPECT_EQ(cached(outA), QByteArray("first module's board"));
    a.RemoveCachedFiles();
    EXPECT_TRUE(cached(outA).isEmpty());
    int calls = 0;
    EXPECT_TRUE(other.UnpackAndUse(QStringLiteral("board.png"), [&](const QString& path) {
        // The first use finds the file gone, as if removed just after the unpack.
        if (++calls == 1)
            QFile::remove(path);
        return cached(QFileInfo(path).fileName()) == "first module's board";
    }));
    EXPECT_EQ(calls, 2);

    // The same pack rewritten to the same size: its time tells it apart.
    const QString path = home.File(QStringLiteral("modules/a.krm"));
    CResFileWriter replaced;
    replaced.AddEntry(QStringLiteral("board.png"), "FIRST MODULE'S BOARD");
    replaced.Write(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
    file.close();
    QString outNew;
    ASSERT_TRUE(a.UnpackFile(QStringLiteral("board.png"), -1, outNew));
    EXPECT_NE(outNew, outA);
    EXPECT_EQ(cached(outNew), QByteArray("FIRST MODULE'S BOARD"));
}

TEST_F(ResFileTest, DamagedPacksFailCleanly)
{
    CResFileWriter writer;
    writer.AddEntry(QStringLiteral("a.txt"), QByteArray("alpha ").repeated(50));
    const QByteArray good = writer.ToBytes();
    const std::int32_t dataStart = directoryEnd(good);
    const QByteArray payload = QByteArray(300, 'x');

    QByteArray garbledDirectory = good;
    for (int i = 10; i < dataStart; ++i)
        garbledDirectory[i] = static_cast<char>(garbledDirectory[i] ^ 0x5A);

    const struct
    {
        const char* what;
        QByteArray bytes;
    } cases[] = {
        {"short header", good.left(5)},
        {"directory beyond the end", good.left(dataStart - 1)},
        {"directory does not inflate", garbledDirectory},
        {"directory ends early", RawPack(2, {{"abcdefghijklmnopqrst", 60, 4, 4}}, payload)},
        {"entry outside the file", RawPack(1, {{"a", 50, 400, 400}}, payload)},
        {"entry before the data", RawPack(1, {{"a", 2, 4, 4}}, payload)},
        {"name leading up", RawPack(2, {{"b", 60, 4, 4}, {"../x", 60, 4, 4}}, payload)},
        {"name leading up behind", RawPack(1, {{"a\\..\\..\\b", 60, 4, 4}}, payload)},
        {"inflates too far", RawPack(1, {{"a", 60, 4, 100000}}, payload)},
    };
    for (const auto& c : cases) {
        home.WriteFile(QStringLiteral("modules/bad.krm"), c.bytes);
        CResFileMgr pack(home.File(QStringLiteral("modules")), QStringLiteral("bad.krm"));
        EXPECT_TRUE(!pack.IsOpen() && !pack.LastError().isEmpty()) << c.what;
        QString out = QStringLiteral("stale");
        EXPECT_FALSE(pack.UnpackFile(QStringLiteral("a"), -1, out)) << c.what;
        EXPECT_TRUE(out.isEmpty()) << c.what;
    }

    // A well-formed directory over damaged compressed data.
    home.WriteFile(QStringLiteral("modules/bad.krm"), RawPack(1, {{"a", 60, 200, 900}}, payload));
    CResFileMgr pack(home.File(QStringLiteral("modules")), QStringLiteral("bad.krm"));
    ASSERT_TRUE(pack.IsOpen()) << pack.LastError().toStdString();
    QString out;
    EXPECT_FALSE(pack.UnpackFile(QStringLiteral("a"), -1, out));
    EXPECT_TRUE(pack.LastError().contains(QStringLiteral("damaged")));
    EXPECT_EQ(CUtility::GetDirListing(CUtility::GetCacheDir() + QStringLiteral("*")).Count(), 0);

    CResFileMgr missing(home.File(QStringLiteral("modules")), QStringLiteral("none.krm"));
    EXPECT_FALSE(missing.IsOpen());
}
