#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

// A module pack rewritten for a test: entries named in replace get new bytes
// (or are added), entries named in drop are left out; everything else is kept.
// Names compare in lower case, as packs store them. Fails the running test
// when the pack cannot be read.
QByteArray EditPack(const QByteArray& pack, const QMap<QString, QByteArray>& replace,
                    const QStringList& drop = {});
