#include "CBoardZoom.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<double, 13> steps{0.25, 1.0 / 3, 0.5, 2.0 / 3, 0.75, 1.0, 1.25,
                                       1.5,  2.0,     2.5, 3.0,     3.5,  4.0};
// Scales closer than this count as the same step.
constexpr double tolerance = 1e-6;

} // namespace

double CBoardZoom::SetScale(double scale)
{
    m_scale = std::clamp(scale, Minimum, Maximum);
    return m_scale;
}

double CBoardZoom::StepIn() const
{
    for (double step : steps) {
        if (step > m_scale + tolerance)
            return step;
    }
    return Maximum;
}

double CBoardZoom::StepOut() const
{
    for (auto it = steps.rbegin(); it != steps.rend(); ++it) {
        if (*it < m_scale - tolerance)
            return *it;
    }
    return Minimum;
}

double CBoardZoom::SwitchGame(const QString& gameId)
{
    if (gameId == m_gameId)
        return m_scale;
    if (!m_gameId.isEmpty())
        m_byGame[m_gameId] = m_scale;
    m_gameId = gameId;
    const auto found = m_byGame.find(gameId);
    return SetScale(found == m_byGame.end() ? 1.0 : found->second);
}
