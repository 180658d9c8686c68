#pragma once

#include "ui/board/CBoardLayer.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

class CBoardRenderer;
class CUnit;
class CUnitGhostItem;
class QVariantAnimation;
class mdcBoard;
struct CMapComparison;

// Plays the counters' changes of a comparison on the board one at a time.
// At the start the board shows the newer map as it was in the older one:
// the counters that changed are hidden and stand-ins drawn where they were.
// Each step glides a moved stand-in to its new place (about a third of a
// second), shows an added counter, takes a removed one away or gives a
// changed one its new caption. Nothing of the game is touched: the stand-ins
// are drawings, and ending the replay shows the board's own items again.
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
    // The stand-in drawn for step (from 0), or null once the board has gone.
    CUnitGhostItem* StandIn(int step) const;

Q_SIGNALS:
    void Moved(int position, int steps);

private:
    struct Step
    {
        std::shared_ptr<const CUnit> Before;
        std::shared_ptr<const CUnit> After;
        QString BoardItemId;
        CUnitGhostItem* Item = nullptr;
    };

    void showState(Step& step, bool played);

    QPointer<mdcBoard> m_board;
    QPointer<CBoardLayer> m_layer;
    std::vector<Step> m_steps;
    int m_position = 0;
    QVariantAnimation* m_glide;
};
