#include "support/PackEdit.h"

#include "contexts/CResFileMgr.h"
#include "contexts/CResFileWriter.h"
#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Every entry of a pack, in directory order; fails the running test when the
// pack cannot be read.
std::vector<std::pair<QString, QByteArray>> entriesOf(const QByteArray& pack)
{
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("edit.krm")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(pack) == pack.size());
    file.close();
    CResFileMgr reader(dir.path(), QStringLiteral("edit.krm"));
    EXPECT_TRUE(reader.IsOpen()) << reader.LastError().toStdString();
    std::vector<std::pair<QString, QByteArray>> entries;
    for (std::int32_t i = 1; i <= reader.EntryCount(); ++i) {
        QByteArray data;
        EXPECT_TRUE(reader.ReadEntry(reader.Entry(i).Name, data))
            << reader.LastError().toStdString();
        entries.emplace_back(reader.Entry(i).Name, data);
    }
    return entries;
}

} // namespace

QByteArray EditPack(const QByteArray& pack, const QMap<QString, QByteArray>& replace,
                    const QStringList& drop)
{
    QMap<QString, QByteArray> pending;
    for (auto it = replace.cbegin(); it != replace.cend(); ++it)
        pending.insert(it.key().toLower(), it.value());
    CResFileWriter writer;
    for (const auto& [name, data] : entriesOf(pack)) {
        if (!drop.contains(name, Qt::CaseInsensitive))
            writer.AddEntry(name, pending.contains(name) ? pending.take(name) : data);
    }
    for (auto it = pending.cbegin(); it != pending.cend(); ++it)
        writer.AddEntry(it.key(), it.value());
    return writer.ToBytes();
}

QByteArray RawPack(std::int32_t count, const std::vector<RawEntry>& entries, const QByteArray& data)
{
    COutputStream directory;
    directory.Constructor(4096);
    directory.WriteLong(count);
    for (const RawEntry& e : entries) {
        directory.WriteSmallString(e.Name);
        directory.WriteLong(e.Position);
        directory.WriteLong(e.Stored);
        directory.WriteLong(e.Unpacked);
    }
    directory.Resize(directory.Offset(), true);
    const auto packed = CZlib().Compact(directory);
    QByteArray bytes;
    for (const std::int32_t value : {directory.Size(), packed->Size()})
        bytes.append(reinterpret_cast<const char*>(&value), 4);
    bytes.append(reinterpret_cast<const char*>(packed->Address()), packed->Size());
    return bytes + data;
}

QByteArray AppendRawEntries(const QByteArray& pack,
                            const std::vector<std::pair<QString, QByteArray>>& entries)
{
    std::vector<std::pair<QString, QByteArray>> all = entriesOf(pack);
    all.insert(all.end(), entries.begin(), entries.end());

    // Every entry stored as it is; the data starts a little after the
    // directory, which readers accept.
    const auto directory = [&all](std::int32_t position) {
        std::vector<RawEntry> records;
        for (const auto& [name, data] : all) {
            const auto size = static_cast<std::int32_t>(data.size());
            records.push_back({name, position, size, size});
            position += size;
        }
        return records;
    };
    const auto count = static_cast<std::int32_t>(all.size());
    const auto dataStart = static_cast<std::int32_t>(RawPack(count, directory(0), {}).size() + 64);
    QByteArray bytes = RawPack(count, directory(dataStart), {});
    EXPECT_LE(bytes.size(), dataStart);
    bytes.append(QByteArray(dataStart - bytes.size(), '\0'));
    for (const auto& entry : all)
        bytes.append(entry.second);
    return bytes;
}
