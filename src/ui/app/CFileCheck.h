#pragma once

#include "review/CGameComparison.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

class CGame;

// The open game compared with another file of the same game, map by map:
// whether the earlier maps are still as that file holds them. Reads the
// other file into a game of its own; the open game is only read.
class CFileCheck
{
    Q_DECLARE_TR_FUNCTIONS(CFileCheck)

public:
    // The other file's game, read for the active module; null with a reason
    // when it is not a game of that module or cannot be read.
    static std::shared_ptr<CGame> Read(const QString& path, QString* error);
    // Compares the file (the older side) with the open game (the newer).
    // False with a reason when the file cannot be read or holds another game.
    static bool Compare(const QString& path, CGameComparison& result, QString* error);
    // The newest file of the recent list, other than the open game's own,
    // that holds the open game, compared with it; "" when there is none.
    // Files that cannot be read are passed over without a word.
    static QString CompareWithRecent(CGameComparison& result);
    // "Earlier maps unchanged since <file>" or "2 earlier maps differ from <file>".
    static QString StatusText(const QString& path, const CGameComparison& result);
};
