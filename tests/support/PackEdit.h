#pragma once

#include "support/ContextTestSupport.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

#include <utility>
#include <vector>

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

// The module's pack with further entries appended under names the writer
// would refuse ("notes..txt", a second "Board.png"); all data stored as it is.
QByteArray AppendRawEntries(const TestModule& module,
                            const std::vector<std::pair<QString, QByteArray>>& entries);
