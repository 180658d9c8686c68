#pragma once

#include <QJsonObject>
#include <QString>

class CGame;

// A whole game as JSON, for scripts:
// {"context", "game": {"id", "name", "remarks", "activeGroup", "groups": [{"id",
// "frozen", "activeMap", "maps": [{"id", "name", "remarks", "text", "frozen",
// "units": [...], "arrows": [...]}]}]}}. Positions of the active group and
// map count from 1 (0 when there is none); numbers are JSON numbers and flags
// JSON booleans. Map ids are the ones this reading gave the maps.
class CGameJson
{
public:
    static QJsonObject FromGame(const CGame& game, const QString& contextId);
};
