#pragma once

#include "ui/board/CBoardLayer.h"

#include <QPointer>

#include <memory>

class CBoardScene;
struct CMapComparison;

// The changes of a comparison drawn over the board: faded ghosts of moved and
// removed counters at their older places (under the counters), a line from
// each moved counter's older place to its new one and a ring around added
// and changed counters (over them). Removed and moved arrows show as faded
// lines where they were; an added arrow glows along its length and has a
// ring around its head. The drawing lives in two layers of the board's
// scene, so export and print show it too; a rebuild of the board that clears
// the scene takes the layers with it, which the overlay notices.
class CChangeOverlay
{
public:
    // Stacking: ghosts above the map picture and under the counters; lines
    // and rings above the counters and under the arrows.
    static constexpr double UnderLayer = -0.5;
    static constexpr double OverLayer = 0.75;
    static constexpr double GhostOpacity = 0.4;

    CChangeOverlay() = default;
    CChangeOverlay(const CChangeOverlay&) = delete;
    CChangeOverlay& operator=(const CChangeOverlay&) = delete;
    ~CChangeOverlay();

    // Draws comparison on scene in place of what was drawn before.
    void Show(CBoardScene& scene, const CMapComparison& comparison);
    void Clear();
    // Hides or shows the drawing without dropping it.
    void SetVisible(bool visible);
    bool Visible() const;
    // How many ghosts, lines and rings are drawn (for the tests and the list).
    int Ghosts() const;
    int Marks() const;

private:
    QPointer<CBoardLayer> m_under;
    QPointer<CBoardLayer> m_over;
};
