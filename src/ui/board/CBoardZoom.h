#pragma once

#include <QString>

#include <map>

// The board's scale: preset steps from 25 % to 400 % for the menu and the
// wheel, any value in that range for "fit to window", and the scale each game
// had last, kept while the program runs.
class CBoardZoom
{
public:
    static constexpr double Minimum = 0.25;
    static constexpr double Maximum = 4.0;

    double Scale() const { return m_scale; }
    // Clamped to the range; returns the scale taken.
    double SetScale(double scale);
    // The next preset step above or below the current scale.
    double StepIn() const;
    double StepOut() const;

    // Remembers the current scale for the game shown so far and takes the
    // scale last used with gameId (100 % for a game not seen before).
    double SwitchGame(const QString& gameId);

private:
    double m_scale = 1.0;
    QString m_gameId;
    std::map<QString, double> m_byGame;
};
