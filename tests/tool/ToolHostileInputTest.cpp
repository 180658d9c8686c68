// Files built to exhaust the reader (entity expansion, deep nesting, counts
// and lengths far beyond the bytes at hand) are refused quickly, in little
// memory, with a message that says what is wrong.
#include "tool/ToolTestSupport.h"

#include "contexts/CResFileWriter.h"

#include <QElapsedTimer>
#include <QtEndian>

#ifdef Q_OS_UNIX
#include <sys/resource.h>

// Sanitized builds run several times slower and keep freed memory in
// quarantine, so only their time is checked, against a looser bound.
#if defined(__SANITIZE_ADDRESS__)
#define KORVANE_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KORVANE_SANITIZED 1
#endif
#endif

namespace {

#ifdef KORVANE_SANITIZED
constexpr qint64 MaxMilliseconds = 8000;
#else
constexpr qint64 MaxMilliseconds = 2000;
constexpr long MaxKilobytes = 200 * 1024;
#endif

QByteArray le32(std::uint32_t value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray packWithDefinition(const QByteArray& definition)
{
    CResFileWriter writer;
    writer.AddEntry(QStringLiteral("module.def"), definition);
    return writer.ToBytes();
}

// A pack header and zlib-compressed directory of exactly these bytes, then data.
QByteArray packWithDirectory(const QByteArray& directory, std::uint32_t claimedLength,
                             const QByteArray& data = QByteArray())
{
    const QByteArray stored = qCompress(directory, 9).mid(4); // qCompress prefixes a length
    return le32(claimedLength) + le32(static_cast<std::uint32_t>(stored.size())) + stored + data;
}

QByteArray directoryEntry(const QByteArray& name, std::uint32_t position, std::uint32_t stored,
                          std::uint32_t unpacked)
{
    return char(name.size()) + name + le32(position) + le32(stored) + le32(unpacked);
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
    const char* Command;
    // Part of the message the refusal must give.
    const char* Message;
};

class ToolHostileInput : public ToolFixture
{};

TEST_F(ToolHostileInput, HostileFilesAreRefusedQuicklyInLittleMemory)
{
    const HostileCase cases[] = {
        {"entity expansion in module.def", "laughs.krm", packWithDefinition(laughs()),
         "check-module", "module.def: line 1: "},
        {"external entity in module.def", "external.krm",
         packWithDefinition("<?xml version=\"1.0\"?>\n<!DOCTYPE module_def [<!ENTITY x SYSTEM "
                            "\"/etc/passwd\">]>\n<module_def>&x;</module_def>\n"),
         "check-module", "DOCTYPE of its own"},
        {"deep nesting in module.def", "deep.krm", packWithDefinition(deepNesting(200000)),
         "check-module", "module.def: "},
        {"module.def larger than any real one", "huge.krm",
         packWithDefinition("<?xml version=\"1.0\"?>\n<!--" + QByteArray(9 << 20, ' ') +
                            "-->\n<module_def/>\n"),
         "check-module", "too large for a module definition"},
        {"pack claiming five million entries", "millions.krm",
         packWithDirectory(le32(5000000) + directoryEntry("a", 64, 0, 0), 4 + 14), "check-module",
         "impossible entry count of 5000000"},
        {"pack directory claiming 2 GiB", "bigdir.krm", packWithDirectory(le32(0), 0x7FFFFFFF),
         "check-module", "impossible length"},
        {"pack entry claiming 2 GiB", "bigentry.krm",
         packWithDirectory(le32(1) + directoryEntry("module.def", 35, 4, 0x7FFFFFFF), 4 + 23,
                           "abcd"),
         "check-module", "impossible length"},
        {"game declaring a 2 GiB body", "big.krf",
         QByteArray("KR01\x0akrm_war_v1", 15) + le32(0x7FFFFFFF) +
             QByteArray::fromHex("789c03000000000100"),
         "info", "cannot be right"},
    };
    for (const HostileCase& hostile : cases) {
        SCOPED_TRACE(hostile.Name);
        const QString path = home.WriteFile(QString::fromLatin1(hostile.FileName), hostile.Bytes);
        QElapsedTimer timer;
        timer.start();
        const ToolRun run = Tool({QString::fromLatin1(hostile.Command), path});
        const qint64 elapsed = timer.elapsed();
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE((run.Out + run.Err).contains(QString::fromLatin1(hostile.Message)))
            << run.Out.toStdString() << run.Err.toStdString();
        EXPECT_LT(elapsed, MaxMilliseconds);
#ifndef KORVANE_SANITIZED
        // The largest child so far (counting the pages it shared with this
        // process when forked, so an upper bound): each case is checked as it
        // comes, so the first to pass the bound is the one at fault.
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        EXPECT_LT(usage.ru_maxrss, MaxKilobytes);
#endif
    }
}

} // namespace
#endif
