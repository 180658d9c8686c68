#pragma once

#include "review/CMapComparison.h"
#include "ui/board/CChangeOverlay.h"

#include <QImage>
#include <QObject>
#include <QPointer>

#include <memory>

class CChangeReplay;
class CMap;
class QLabel;
class mdcBoard;

// What changed on the shown map since another one, on the board: the
// overlay of ghosts, lines and rings while "Show Changes" is on, and the
// replay. The map compared with is the one before the shown map (see
// CMapHistory::MapBefore) unless the player chose another; it follows the
// shown map as the player switches. Only reads the game: the changed mark,
// the undo history and the model stay as they are.
class CBoardReview : public QObject
{
    Q_OBJECT

public:
    explicit CBoardReview(mdcBoard* board);
    ~CBoardReview() override;

    bool Shown() const { return m_shown; }
    void SetShown(bool shown);
    // Compares with base from now on (until a new game) and shows the changes.
    void CompareWith(const std::shared_ptr<CMap>& base);
    // The map the shown one is compared with, or null when there is none.
    std::shared_ptr<CMap> Base() const;
    // Whether the shown map has a map to compare with.
    bool Available() const { return Base() != nullptr; }

    const CMapComparison& Comparison() const { return m_comparison; }
    // "Turn 4 → Turn 5: 6 moved, 1 added, 2 removed, 3 changed"; empty when off.
    QString Summary() const;
    const CChangeOverlay& Overlay() const { return m_overlay; }
    // Scrolls the board so that change index (from 0) is in view, centred.
    void ScrollTo(int index);
    // Where change index is on the board (its new place, or its old one).
    QPointF PlaceOf(int index) const;
    // The board as it is shown, overlay included, at scale.
    QImage Picture(double scale) const;

    // Starts the replay of the changes since the base; false without a base.
    bool StartReplay();
    void EndReplay();
    CChangeReplay* Replay() const { return m_replay.get(); }

    // Compares again now instead of when the event loop comes round.
    void RefreshNow();

Q_SIGNALS:
    // The comparison or whether it is shown has changed.
    void ComparisonChanged();
    void ReplayChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void boardRebuilt();
    void modelChanged();
    void showProgress(int position, int steps);

    QPointer<mdcBoard> m_board;
    CChangeOverlay m_overlay;
    CMapComparison m_comparison;
    std::unique_ptr<CChangeReplay> m_replay;
    QLabel* m_progress;
    QString m_chosenBaseId;
    bool m_shown = false;
    bool m_refreshDue = false;
};
