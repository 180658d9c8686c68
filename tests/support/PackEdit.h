#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

// A module pack rewritten for a test: entries named in replace get new bytes
// (or are added), entries named in drop are left out; everything else is kept.
// Names compare in lower case, as packs store them. Fails the running test
// when the pack cannot be read.
QByteArray EditPack(const QByteArray& pack, const QMap<QString, QByteArray>& replace,
                    const QStringList& drop = {});

// The pack with further entries appended under names the writer would refuse
// ("notes..txt", a second "Board.png"); their data is stored as it is.
QByteArray AppendRawEntries(const QByteArray& pack,
                            const std::vector<std::pair<QString, QByteArray>>& entries);
