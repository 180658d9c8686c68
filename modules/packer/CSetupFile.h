#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class CGame;
class IGameContext;

// The text description of a module's initial game: its name, the name of
// its one map, and one line per unit placed on it:
//
//     game = Border Skirmish
//     map = Turn 1
//     # token id; x; y; caption; data
//     red_inf; 96; 97; x3; 3
//
// Blank lines and lines starting with "#" are skipped. Errors raise
// KorvaneError naming the line.
class CSetupFile
{
public:
    struct Unit
    {
        QString TokenId;
        std::int32_t X = 0;
        std::int32_t Y = 0;
        QString Caption;
        QString Data;
        int Line = 0;
    };

    static CSetupFile Parse(const QString& text);

    const QString& GameName() const { return m_gameName; }
    const QString& MapName() const { return m_mapName; }
    const std::vector<Unit>& Units() const { return m_units; }

    // A game of one group holding one map with the units, whose tokens come
    // from the context (which must be active). Raises for an unknown token.
    std::shared_ptr<CGame> BuildGame(const IGameContext& context) const;

private:
    QString m_gameName;
    QString m_mapName = QStringLiteral("Start");
    std::vector<Unit> m_units;
};
