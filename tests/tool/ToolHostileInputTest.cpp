// Module packs built to exhaust the reader (entity expansion, deep nesting,
// counts and lengths far beyond the bytes at hand) are refused quickly, in
// little memory, with a message that says what is wrong. Game files of that
// kind are measured in the game reader's own tests.
#include "tool/ToolTestSupport.h"

#include "contexts/CResFileWriter.h"

#ifdef Q_OS_UNIX
#include "support/ResourceUse.h"

// Sanitized builds: only their processor time is checked, against a looser bound.

namespace {

#ifdef KORVANE_SANITIZED
constexpr qint64 MaxMilliseconds = 8000;
#else
constexpr qint64 MaxMilliseconds = 2000;
constexpr long MaxKilobytes = 200 * 1024;
#endif

QByteArray packWithDefinition(const QByteArray& definition)
{
    CResFileWriter writer;
    writer.AddEntry(QStringLiteral("module.def"), definition);
    return writer.ToBytes();
}

QByteArray laughs()
{
    QByteArray dtd = "<!DOCTYPE module_def [\n<!ENTITY l0 \"ha\">\n";
    for (int i = 1; i <= 12; ++i) {
        dtd += "<!ENTITY l" + QByteArray::number(i) + " \"";
        for (int j = 0; j < 10; ++j)
            dtd += "&l" + QByteArray::number(i - 1) + ';';
        dtd += "\">\n";
    }
    return "<?xml version=\"1.0\"?>\n" + dtd + "]>\n<module_def>&l12;</module_def>\n";
}

QByteArray deepNesting(int depth)
{
    return "<?xml version=\"1.0\"?>\n<module_def>" + QByteArray("<tabs>").repeated(depth) +
           QByteArray("</tabs>").repeated(depth) + "</module_def>\n";
}

struct HostileCase
{
    const char* Name;
    const char* FileName;
    QByteArray Bytes;
    // Part of the message the refusal must give.
    const char* Message;
};

using ToolHostileInput = ToolFixture;

TEST_F(ToolHostileInput, HostileFilesAreRefusedQuicklyInLittleMemory)
{
    const HostileCase cases[] = {
        {"entity expansion in module.def", "laughs.krm", packWithDefinition(laughs()),
         "module.def: line 1: "},
        {"deep nesting in module.def", "deep.krm", packWithDefinition(deepNesting(200000)),
         "module.def: "},
        {"module.def larger than any real one", "huge.krm",
         packWithDefinition("<?xml version=\"1.0\"?>\n<!--" + QByteArray(9 << 20, ' ') +
                            "-->\n<module_def/>\n"),
         "too large for a module definition"},
        {"pack claiming five million entries", "millions.krm",
         RawPack(5000000, {{"a", 64, 0, 0}}, {}), "impossible entry count of 5000000"},
        {"pack directory claiming 2 GiB", "bigdir.krm",
         QByteArray("\xff\xff\xff\x7f", 4) + RawPack(0, {}, {}).mid(4), "impossible length"},
    };
    for (const HostileCase& hostile : cases) {
        SCOPED_TRACE(hostile.Name);
        const QString path = home.WriteFile(QString::fromLatin1(hostile.FileName), hostile.Bytes);
        const qint64 cpuBefore = CpuMilliseconds(RUSAGE_CHILDREN);
        const ToolRun run = Tool({QStringLiteral("check-module"), path});
        const qint64 elapsed = CpuMilliseconds(RUSAGE_CHILDREN) - cpuBefore;
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE((run.Out + run.Err).contains(QString::fromLatin1(hostile.Message)))
            << run.Out.toStdString() << run.Err.toStdString();
        EXPECT_LT(elapsed, MaxMilliseconds);
#ifndef KORVANE_SANITIZED
        // The largest child so far (counting the pages it shared with this
        // process when forked, so an upper bound): each case is checked as it
        // comes, so the first to pass the bound is the one at fault.
        EXPECT_LT(PeakKiB(RUSAGE_CHILDREN), MaxKilobytes);
#endif
    }
}

} // namespace
#endif
