#include "support/PackEdit.h"

#include "contexts/CResFileMgr.h"
#include "contexts/CResFileWriter.h"
#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

QByteArray EditPack(const QByteArray& pack, const QMap<QString, QByteArray>& replace,
                    const QStringList& drop)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("edit.krm"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(pack) != pack.size()) {
        ADD_FAILURE() << "cannot write " << path.toStdString();
        return QByteArray();
    }
    file.close();

    CResFileMgr reader(dir.path(), QStringLiteral("edit.krm"));
    EXPECT_TRUE(reader.IsOpen()) << reader.LastError().toStdString();
    QMap<QString, QByteArray> pending;
    for (auto it = replace.cbegin(); it != replace.cend(); ++it)
        pending.insert(it.key().toLower(), it.value());
    QStringList dropped;
    for (const QString& name : drop)
        dropped.append(name.toLower());

    CResFileWriter writer;
    for (std::int32_t i = 1; i <= reader.EntryCount(); ++i) {
        const QString name = reader.Entry(i).Name;
        if (dropped.contains(name))
            continue;
        if (pending.contains(name)) {
            writer.AddEntry(name, pending.take(name));
            continue;
        }
        QByteArray data;
        EXPECT_TRUE(reader.ReadEntry(name, data)) << reader.LastError().toStdString();
        writer.AddEntry(name, data);
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
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("raw.krm")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(pack) == pack.size());
    file.close();
    CResFileMgr reader(dir.path(), QStringLiteral("raw.krm"));
    EXPECT_TRUE(reader.IsOpen()) << reader.LastError().toStdString();
    std::vector<std::pair<QString, QByteArray>> all;
    for (std::int32_t i = 1; i <= reader.EntryCount(); ++i) {
        QByteArray data;
        EXPECT_TRUE(reader.ReadEntry(reader.Entry(i).Name, data));
        all.emplace_back(reader.Entry(i).Name, data);
    }
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
