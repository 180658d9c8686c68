#pragma once

#include "review/CMapChange.h"
#include "ui/board/CBoardLayer.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class CBoardRenderer;
class CUnit;
class CUnitGhostItem;
class CUnitPictureCache;
class QVariantAnimation;
class arcArrows;
class mdcBoard;
struct CMapComparison;

// Plays the changes of a comparison on the board one at a time.
// At the start the board shows the newer map as it was in the older one:
// the counters that changed are hidden and stand-ins drawn where they were.
// Each step glides a moved stand-in to its new place (about a third of a
// second), shows an added counter, takes a removed one away or gives a
// changed one its new caption. Nothing of the game is touched: the stand-ins
// are drawings, and ending the replay shows the board's own items again.
//
// Arrows are played the same way. The board's arrow canvas is hidden while
// the replay runs and a canvas of the replay's own, holding copies of the
// shown map's arrows set back to the older map, is drawn in its place; the
// handles of changed arrows are hidden too and drawn as stand-ins that
// travel with their arrow's ends. Hiding the real canvas rather than giving
// it a display-only mode keeps the board's arrow code unaware of replays:
// a rebuild or a model change ends the replay and shows the canvas again.
class CChangeReplay : public QObject
{
    Q_OBJECT

public:
    static constexpr int GlideMilliseconds = 330;

    CChangeReplay(mdcBoard& board, const CMapComparison& comparison, QObject* parent = nullptr);
    ~CChangeReplay() override;

    int Steps() const { return static_cast<int>(m_steps.size()); }
    // How many changes have been played.
    int Position() const { return m_position; }
    // Plays the next change; a glide still under way ends at once first.
    // False at the end.
    bool Forward();
    // Takes the last played change back; false at the start.
    bool Back();
    // Ends a running glide at its end.
    void FinishGlide();
    // The stand-in drawn for step (from 0), or null for an arrow's step or
    // once the board has gone.
    CUnitGhostItem* StandIn(int step) const;
    // The arrows as the replay shows them, or null once the board has gone.
    const arcArrows* Arrows() const;

Q_SIGNALS:
    void Moved(int position, int steps);

private:
    struct Step
    {
        std::shared_ptr<const CUnit> Before;
        std::shared_ptr<const CUnit> After;
        CUnitGhostItem* Item = nullptr;
        // An arrow's change, its id on the replay's canvas and the stand-ins
        // of its handles (null when its token is not in the module).
        std::optional<CMapChange> Arrow;
        QString ArrowId;
        CUnitGhostItem* Tail = nullptr;
        CUnitGhostItem* Head = nullptr;
    };

    void addArrowStep(const CMapChange& change,
                      const std::shared_ptr<const CBoardRenderer>& renderer);
    void hideBoardItems(const mdcBoard& board, const std::vector<QString>& changedArrows);
    void showState(Step& step, bool played);
    void showArrow(Step& step, bool played);
    void placeArrow(Step& step, QPointF tail, QPointF head);
    // Runs at(progress) from 0 to 1 over the glide's time.
    void glide(std::function<void(double)> at);

    QPointer<mdcBoard> m_board;
    QPointer<CBoardLayer> m_layer;
    // The board's pictures, shared by the stand-ins.
    std::shared_ptr<CUnitPictureCache> m_pictures;
    arcArrows* m_arrows = nullptr;
    std::vector<Step> m_steps;
    // The board's own unit items hidden while the replay runs.
    std::vector<QString> m_hidden;
    int m_position = 0;
    QVariantAnimation* m_glide;
};
