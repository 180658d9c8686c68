#include "support/PackEdit.h"

#include "persist/COutputStream.h"
#include "persist/CZlib.h"

#include <gtest/gtest.h>

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

QByteArray AppendRawEntries(const TestModule& module,
                            const std::vector<std::pair<QString, QByteArray>>& entries)
{
    std::vector<std::pair<QString, QByteArray>> all = module.Entries();
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
