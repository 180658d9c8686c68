#pragma once

#include "review/CGameComparison.h"

#include <QObject>
#include <QString>

#include <memory>

class CBoardReview;
class CGame;
class QLabel;
class frmChanges;
class mdiMain;

// The turn review's parts of the main window: the changes on the board,
// their list in a dock, the summary in the status bar, and the comparison of
// the open game with another file of it (chosen, or found by itself in the
// recent files after a game is opened). Reads the game, never changes it.
class CReviewWindows : public QObject
{
    Q_OBJECT

public:
    explicit CReviewWindows(mdiMain* window);

    CBoardReview* Board() const { return m_review; }
    frmChanges* Dock() const { return m_dock; }
    QLabel* SummaryLabel() const { return m_summary; }
    QLabel* FileLabel() const { return m_fileStatus; }

    // View > Show Changes; the list comes up with them.
    void ShowChanges(bool shown);
    // View > Compare With: asks for the map to compare with.
    void ChooseBase();
    // View > Replay Changes.
    void Replay();
    // File > Compare With File: asks for the file and lists the maps.
    void CompareWithFile();
    // Lists the last comparison made with a file.
    void ShowFileComparison();

    // A game was opened or created: soon after, and without a word when it
    // fails, the open game is compared with the newest recent file of it.
    void GameOpened();
    // Runs the comparison GameOpened arranged, now.
    void CheckRecentNow();

private:
    void showSummary();

    mdiMain* m_window;
    CBoardReview* m_review;
    frmChanges* m_dock;
    QLabel* m_summary;
    QLabel* m_fileStatus;
    // The game last compared with a recent file: a failed open shows the
    // same game again, which needs no second look.
    std::weak_ptr<CGame> m_checkedGame;
    QString m_comparedFile;
    CGameComparison m_fileComparison;
    bool m_checkDue = false;
};
