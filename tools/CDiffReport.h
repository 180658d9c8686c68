#pragma once

#include <QJsonObject>
#include <QString>

struct CGameComparison;
struct CMapComparison;

// How korvane-tool diff writes a comparison: in words for people, or as
// JSON for scripts.
class CDiffReport
{
public:
    // "Turn 4 → Turn 5: 2 moved, 1 added", then each change on its own
    // indented line.
    static QString MapText(const QString& from, const QString& to, const CMapComparison& result);
    static QJsonObject MapJson(const QString& from, const QString& to,
                               const CMapComparison& result);
    // One line per map ("1:2 Turn 2: changed (1 moved)") with the changes of
    // those that differ, then a closing line naming the files.
    static QString GameText(const QString& olderFile, const QString& newerFile,
                            const CGameComparison& result);
    static QJsonObject GameJson(const CGameComparison& result);
    static QJsonObject CountsJson(const CMapComparison& result);
};
