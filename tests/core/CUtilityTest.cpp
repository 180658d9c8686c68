#include "core/CUtility.h"

#include "support/TestHome.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList values(const CVector<CString>& list)
{
    QStringList result;
    for (const auto& s : list)
        result << s->Value();
    return result;
}

} // namespace

TEST(CUtility, GenerateIdIsUniqueUpperHexInGuidOrder)
{
    const QRegularExpression format(u"^[0-9A-F]{12}4[0-9A-F]{3}[89AB][0-9A-F]{15}$"_s);
    QSet<QString> seen;
    for (int i = 0; i < 2000; ++i) {
        const QString id = CUtility::GenerateId();
        // The version and variant digits of a random GUID stay where its text form has them.
        ASSERT_TRUE(format.match(id).hasMatch()) << id.toStdString();
        seen.insert(id);
    }
    EXPECT_EQ(seen.size(), 2000);
}

TEST(CUtility, SearchesSortNamesCaptionsAndPaths)
{
    CVector<CString> list;
    for (const char* name : {"d", "B", "b", "a", "C"})
        list.AddItem(std::make_shared<CString>(QLatin1String(name)));
    EXPECT_EQ(CUtility::SearchByName(list, u"b"_s), 3);
    EXPECT_EQ(CUtility::SearchByName(list, u"c"_s), 0);
    CUtility::SortByName(list);
    // "B" stood before "b": the selection sort's swaps reverse them.
    EXPECT_EQ(values(list).join(QString()), u"abBCd"_s);

    // Names, captions and paths.
    for (const QChar c : u"\\/:*?\"<>|&"_s)
        EXPECT_FALSE(CUtility::ValidName(u"map"_s + c)) << c.toLatin1();
    EXPECT_TRUE(CUtility::ValidName(u"Turn 12 (Allies)"_s));
    EXPECT_EQ(CUtility::EscapeCaption(u"Tom & Jerry &"_s), u"Tom && Jerry &&"_s);

    const char* cases[][4] = {{"C:\\games\\turn.1.krf", "C:\\games\\", "turn.1", "krf"},
                              {"mixed/a\\b.txt", "mixed/a\\", "b", "txt"},
                              {"dir.v2/readme", "dir.v2/", "readme", ""}};
    for (const auto& c : cases) {
        QString directory, name, extension;
        CUtility::ParsePath(QLatin1String(c[0]), directory, name, extension);
        EXPECT_EQ(QStringList({directory, name, extension}),
                  QStringList({QLatin1String(c[1]), QLatin1String(c[2]), QLatin1String(c[3])}));
    }
}

// Where the folders lie shows in every test that finds modules in a home.
TEST(CUtility, DirListingFindsFilesOfAPatternInAnyCaseInNameOrder)
{
    TestHome home;
    for (const char* name : {"KRCV1A.KRM", "beta.krm", "Alpha.krm", "gamma.txt", "krm", "x.krmx"})
        home.WriteFile(u"modules/"_s + QLatin1String(name), "x");
    QDir(home.Path()).mkpath(u"modules/folder.krm"_s);
    const QStringList expected = {u"Alpha.krm"_s, u"beta.krm"_s, u"KRCV1A.KRM"_s};
    EXPECT_EQ(values(CUtility::GetDirListing(CUtility::GetModuleDir() + u"*.krm"_s)), expected);
    const QString backslashed = QString(CUtility::GetModuleDir() + u"*.KRM"_s).replace('/', '\\');
    EXPECT_EQ(values(CUtility::GetDirListing(backslashed)), expected);
    EXPECT_EQ(CUtility::GetDirListing(home.File(u"none/*.krm"_s)).Count(), 0);
}
