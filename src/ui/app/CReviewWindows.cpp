#include "CReviewWindows.h"

#include "core/CKorvane.h"
#include "core/FMessageBox.h"
#include "model/CGame.h"
#include "persist/CPersistMgr.h"
#include "ui/app/CFileCheck.h"
#include "ui/app/mdiMain.h"
#include "ui/board/CBoardReview.h"
#include "ui/board/CMapState.h"
#include "ui/board/mdcBoard.h"
#include "ui/dialogs/frmCompareWith.h"
#include "ui/dialogs/frmFileComparison.h"
#include "ui/docks/frmChanges.h"

#include <QFileInfo>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>

CReviewWindows::CReviewWindows(mdiMain* window)
    : QObject(window), m_window(window), m_review(new CBoardReview(window->Board())),
      m_dock(new frmChanges(m_review, window)), m_summary(new QLabel(window)),
      m_fileStatus(new QLabel(window))
{
    window->addDockWidget(Qt::RightDockWidgetArea, m_dock);
    m_dock->hide();
    m_summary->setObjectName(QStringLiteral("lblChanges"));
    m_fileStatus->setObjectName(QStringLiteral("lblFileCheck"));
    m_fileStatus->setTextFormat(Qt::RichText);
    m_fileStatus->hide();
    window->statusBar()->addWidget(m_summary, 1);
    window->statusBar()->addPermanentWidget(m_fileStatus);
    connect(m_fileStatus, &QLabel::linkActivated, this, [this] { ShowFileComparison(); });
    connect(m_review, &CBoardReview::ComparisonChanged, this, &CReviewWindows::showSummary);
}

void CReviewWindows::showSummary()
{
    m_summary->setText(m_review->Summary());
}

void CReviewWindows::ShowChanges(bool shown)
{
    m_review->SetShown(shown);
    m_dock->setVisible(shown);
}

void CReviewWindows::ChooseBase()
{
    const std::shared_ptr<CGame> game = Root().Game();
    const std::shared_ptr<CMap> shown = CMapState::ActiveMap();
    if (!game || !shown)
        return;
    frmCompareWith dialog(m_window);
    if (!dialog.Display(*game, shown, m_review->Base()))
        return;
    m_review->CompareWith(dialog.Chosen());
    m_dock->show();
}

void CReviewWindows::Replay()
{
    m_review->StartReplay();
}

void CReviewWindows::CompareWithFile()
{
    if (!Root().Game())
        return;
    const QString path = Root().PersistMgr().SelectFileToOpen();
    if (path.isEmpty())
        return;
    CGameComparison result;
    QString error;
    if (!CFileCheck::Compare(path, result, &error)) {
        FMessageBox::Tell(error, FMessageBox::Icon::Information);
        return;
    }
    m_comparedFile = path;
    m_fileComparison = result;
    ShowFileComparison();
}

void CReviewWindows::ShowFileComparison()
{
    if (m_comparedFile.isEmpty())
        return;
    frmFileComparison dialog(m_window);
    dialog.Show(m_comparedFile, m_fileComparison);
    dialog.exec();
}

void CReviewWindows::GameOpened()
{
    const std::shared_ptr<CGame> game = Root().Game();
    if (game == m_checkedGame.lock() || m_checkDue)
        return;
    m_checkedGame = game;
    m_fileStatus->hide();
    if (!game || game->FilePath().isEmpty())
        return;
    // After the open has finished and the window shows the game.
    m_checkDue = true;
    QTimer::singleShot(0, this, [this] {
        if (m_checkDue)
            CheckRecentNow();
    });
}

void CReviewWindows::CheckRecentNow()
{
    m_checkDue = false;
    CGameComparison result;
    const QString path = CFileCheck::CompareWithRecent(result);
    if (path.isEmpty())
        return;
    m_comparedFile = path;
    m_fileComparison = result;
    m_fileStatus->setText(CFileCheck::StatusText(path, result).toHtmlEscaped() +
                          QStringLiteral(" <a href=\"#maps\">") + tr("Show maps") +
                          QStringLiteral("</a>"));
    m_fileStatus->setToolTip(QFileInfo(path).absoluteFilePath());
    m_fileStatus->show();
}
