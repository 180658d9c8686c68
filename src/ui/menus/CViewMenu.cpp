#include "CViewMenu.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FFullScreenDlg.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "ui/app/CReviewWindows.h"
#include "ui/board/CBoardReview.h"
#include "ui/board/CMapState.h"
#include "ui/board/mdcBoard.h"
#include "ui/docks/frmMapText.h"

#include <QAction>
#include <QMenu>

CViewMenu::CViewMenu(QMenu* menu, mdcBoard* board, frmMapText* mapText, CReviewWindows* review)
    : CMenuHandler(menu, QStringLiteral("mnuView"), tr("&View")), m_board(board),
      m_mapText(mapText), m_review(review)
{
    AddItem(QStringLiteral("mnuViewMapText"), tr("&Map Text"), [this] { m_mapText->Show(); });
    AddSeparator(QStringLiteral("mnuViewBar1"));
    m_fullScreen = AddItem(QStringLiteral("mnuViewFullScreen"), tr("&Full Screen..."),
                           [this] { fullScreen(); });
    m_fullScreen->setShortcut(QKeySequence(Qt::Key_F11));
    AddSeparator(QStringLiteral("mnuViewBar2"));
    m_showChanges = AddItem(QStringLiteral("mnuViewShowChanges"), tr("Show &Changes"),
                            [this] { m_review->ShowChanges(m_showChanges->isChecked()); });
    m_showChanges->setCheckable(true);
    m_showChanges->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
    m_compareWith = AddItem(QStringLiteral("mnuViewCompareWith"), tr("Compare &With..."),
                            [this] { m_review->ChooseBase(); });
    m_replay = AddItem(QStringLiteral("mnuViewReplay"), tr("&Replay Changes"),
                       [this] { m_review->Replay(); });
    m_replay->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D));
    AddSeparator(QStringLiteral("mnuViewBarReview"));

    m_archives = menu->addMenu(tr("Archi&ve"));
    m_archives->setObjectName(QStringLiteral("mnuViewArchives"));
    m_current = m_archives->addAction(tr("&Current"));
    m_current->setObjectName(QStringLiteral("mnuViewArchCurrent"));
    connect(m_current, &QAction::triggered, this, [this] { switchToGroup(-1); });
    m_archives->addSeparator()->setObjectName(QStringLiteral("mnuViewArchBar1"));
    for (int i = 0; i < ArchiveCount; ++i) {
        m_groups[i] = m_archives->addAction(QStringLiteral("&%1.").arg(i + 1));
        m_groups[i]->setObjectName(QStringLiteral("mnuViewArch%1").arg(i + 1));
        connect(m_groups[i], &QAction::triggered, this, [this, i] { switchToGroup(i + 1); });
    }
    // The archive list is filled when the submenu itself opens, too: it can
    // be reached by keyboard without the View menu's own refresh.
    connect(m_archives, &QMenu::aboutToShow, this, [this] { Refresh(); });

    AddSeparator(QStringLiteral("mnuViewBar3"));
    AddItem(QStringLiteral("mnuViewZoomIn"), tr("Zoom &In"), [this] {
        m_board->ZoomIn();
    })->setShortcuts({QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    AddItem(QStringLiteral("mnuViewZoomOut"), tr("Zoom &Out"), [this] {
        m_board->ZoomOut();
    })->setShortcut(QKeySequence::ZoomOut);
    AddItem(QStringLiteral("mnuViewZoomReset"), tr("&Actual Size"), [this] {
        m_board->ZoomReset();
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    AddItem(QStringLiteral("mnuViewZoomFit"), tr("Fit to &Window"), [this] { m_board->ZoomFit(); });

    AddSeparator(QStringLiteral("mnuViewBar4"));
    AddItem(QStringLiteral("mnuViewPreviousMap"), tr("&Previous Map"), [this] {
        stepMap(-1);
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp));
    AddItem(QStringLiteral("mnuViewNextMap"), tr("&Next Map"), [this] {
        stepMap(1);
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown));
    AddItem(QStringLiteral("mnuViewFirstMap"), tr("F&irst Map"), [] {
        CMapState::SwitchToMapAt(1);
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Home));
    AddItem(QStringLiteral("mnuViewLastMap"), tr("&Last Map"), [] {
        if (const auto group = CMapState::ActiveGroup())
            CMapState::SwitchToMapAt(group->Maps().Count());
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_End));
    Refresh();
}

QString CViewMenu::ArchiveCaption(int number, const QString& firstMap, const QString& lastMap,
                                  int mapCount)
{
    if (mapCount > 1)
        return tr("&%1.  '%2'  to  '%3'").arg(number).arg(firstMap, lastMap);
    return tr("&%1.  '%2'").arg(number).arg(firstMap);
}

void CViewMenu::Refresh()
{
    const std::shared_ptr<CGame>& game = Root().Game();
    const std::int32_t groups = game ? game->MapGroups().Count() : 0;
    m_fullScreen->setEnabled(game != nullptr);
    const CBoardReview* review = m_review->Board();
    m_showChanges->setChecked(review->Shown());
    m_showChanges->setEnabled(review->Shown() || review->Available());
    m_compareWith->setEnabled(game && game->GetMapCount() > 1);
    m_replay->setEnabled(review->Available());
    m_current->setEnabled(groups > 0);
    for (int i = 0; i < ArchiveCount; ++i) {
        QAction* item = m_groups[i];
        item->setVisible(i < groups);
        if (i >= groups)
            continue;
        const auto group = game->MapGroups().Item(i + 1);
        const std::int32_t count = group->Maps().Count();
        const QString first = count > 0 ? group->Maps().Item(1)->Name() : QString();
        const QString last = count > 0 ? group->Maps().Item(count)->Name() : QString();
        item->setText(ArchiveCaption(i + 1, first, last, count));
        item->setCheckable(true);
        item->setChecked(group == game->ActiveMapGroup());
    }
}

void CViewMenu::fullScreen()
{
    CGui* gui = Root().Gui();
    FFullScreenDlg* dialog = gui ? gui->FullScreenDlg() : nullptr;
    if (dialog && Root().Game())
        dialog->Display(m_board->PaintToPbox());
}

void CViewMenu::switchToGroup(int number)
{
    const std::shared_ptr<CGame>& game = Root().Game();
    if (!game || game->MapGroups().Count() == 0)
        return;
    if (number < 0)
        number = game->MapGroups().Count();
    if (number > game->MapGroups().Count())
        return;
    CMapState::SwitchToGroup(game->MapGroups().Item(number));
}

void CViewMenu::stepMap(int step)
{
    const auto group = CMapState::ActiveGroup();
    if (!group || !group->ActiveMap())
        return;
    const std::int32_t position = group->Maps().IndexOf(group->ActiveMap());
    CMapState::SwitchToMapAt(position + step);
}
