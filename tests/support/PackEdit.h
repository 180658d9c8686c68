#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <cstdint>

#include <utility>
#include <vector>

// A module pack rewritten for a test: entries named in replace get new bytes
// (or are added), entries named in drop are left out; everything else is kept.
// Names compare in lower case, as packs store them. Fails the running test
// when the pack cannot be read.
QByteArray EditPack(const QByteArray& pack, const QMap<QString, QByteArray>& replace,
                    const QStringList& drop = {});

// One record of a pack's directory, saying whatever the test wants it to.
struct RawEntry
{
    QString Name;
    std::int32_t Position;
    std::int32_t Stored;
    std::int32_t Unpacked;
};

// A pack assembled by hand: its header, a directory that claims count records
// and holds these, then data.
QByteArray RawPack(std::int32_t count, const std::vector<RawEntry>& entries,
                   const QByteArray& data);

// The pack with further entries appended under names the writer would refuse
// ("notes..txt", a second "Board.png"); their data is stored as it is.
QByteArray AppendRawEntries(const QByteArray& pack,
                            const std::vector<std::pair<QString, QByteArray>>& entries);
