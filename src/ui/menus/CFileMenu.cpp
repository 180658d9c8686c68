#include "CFileMenu.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/FMessageBox.h"
#include "core/FSaveFileDlg.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "persist/CMailSender.h"
#include "persist/CPersistMgr.h"
#include "render/CMapExport.h"
#include "ui/app/CGameCommands.h"
#include "ui/app/CRecentFiles.h"
#include "ui/app/CReviewWindows.h"
#include "ui/board/CBoardReview.h"
#include "ui/board/CMapState.h"
#include "ui/board/mdcBoard.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

CFileMenu::CFileMenu(QMenu* menu, mdcBoard* board, QWidget* window, CReviewWindows* review)
    : CMenuHandler(menu, QStringLiteral("mnuFile"), tr("&File")), m_board(board), m_window(window),
      m_review(review)
{
    AddItem(QStringLiteral("mnuFileNewGame"), tr("&New Game"), [] {
        CGameCommands::NewGame();
    })->setShortcut(QKeySequence::New);
    AddItem(QStringLiteral("mnuFileOpenGame"), tr("&Open Game..."), [] {
        CGameCommands::OpenGame();
    })->setShortcut(QKeySequence::Open);
    m_recent = menu->addMenu(tr("Open &Recent"));
    m_recent->setObjectName(QStringLiteral("mnuFileRecent"));
    AddSeparator(QStringLiteral("mnuFileBar1"));
    m_save = AddItem(QStringLiteral("mnuFileSaveGame"), tr("&Save Game"),
                     [] { Root().PersistMgr().SaveCurrentGame(); });
    m_save->setShortcut(QKeySequence::Save);
    m_saveAs = AddItem(QStringLiteral("mnuFileSaveGameAs"), tr("Save Game &As..."),
                       [] { Root().PersistMgr().SaveCurrentGameAs(); });
    m_saveAs->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    AddSeparator(QStringLiteral("mnuFileBar4"));
    m_export = AddItem(QStringLiteral("mnuFileExport"), tr("&Export Map Picture..."),
                       [this] { ExportPicture(); });
    m_export->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    m_send = AddItem(QStringLiteral("mnuFileSend"), tr("Sen&d to Opponent..."),
                     [this] { SendToOpponent(); });
    m_compareFile = AddItem(QStringLiteral("mnuFileCompareWithFile"), tr("Compare With &File..."),
                            [this] { m_review->CompareWithFile(); });
    AddSeparator(QStringLiteral("mnuFileBar2"));
    m_print = AddItem(QStringLiteral("mnuFilePrint"), tr("Print..."), [this] { Print(); });
    m_print->setShortcut(QKeySequence::Print);
    AddSeparator(QStringLiteral("mnuFileBar3"));
    AddItem(QStringLiteral("mnuFileExit"), tr("E&xit"), [this] {
        m_window->close();
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    fillRecent();
}

void CFileMenu::Refresh()
{
    const bool hasGame = Root().Game() != nullptr;
    m_save->setEnabled(hasGame);
    m_saveAs->setEnabled(hasGame);
    m_print->setEnabled(hasGame);
    m_export->setEnabled(hasGame);
    m_send->setEnabled(hasGame);
    m_compareFile->setEnabled(hasGame);
    fillRecent();
}

void CFileMenu::fillRecent()
{
    m_recent->clear();
    const QStringList files = CRecentFiles::List();
    for (int i = 0; i < files.size(); ++i) {
        const QString& path = files[i];
        QAction* item = m_recent->addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(
            QDir::toNativeSeparators(path).replace(QLatin1Char('&'), QStringLiteral("&&"))));
        item->setObjectName(QStringLiteral("mnuFileRecent%1").arg(i + 1));
        connect(item, &QAction::triggered, this, [this, path] { openRecent(path); });
    }
    m_recent->setEnabled(!files.isEmpty());
}

void CFileMenu::openRecent(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        CRecentFiles::Remove(path);
        fillRecent();
        FMessageBox::Tell(tr("File '%1' no longer exists. It has been removed from the list of "
                             "recent games.")
                              .arg(path),
                          FMessageBox::Icon::Exclamation);
        return;
    }
    CGameCommands::OpenFile(path);
}

void CFileMenu::Print()
{
    if (!Root().Game())
        return;
    const QImage picture = m_board->PaintToPbox();
    QPrinter printer(QPrinter::HighResolution);
    // Names the print job, and the file when printing to one.
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    printer.setDocName(map ? Root().Game()->Name() + QStringLiteral(" - ") + map->Name()
                           : Root().Game()->Name());
    QPrintDialog dialog(&printer, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QPainter painter(&printer);
    const QRect page = painter.viewport();
    QSize size = picture.size();
    size.scale(page.size(), Qt::KeepAspectRatio);
    painter.setViewport(page.x(), page.y(), size.width(), size.height());
    painter.setWindow(picture.rect());
    painter.drawImage(0, 0, picture);
}

void CFileMenu::ExportPicture()
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    FSaveFileDlg* dialog = Root().Gui() ? Root().Gui()->SaveFileDlg() : nullptr;
    FMessageBox* messages = FMessageBox::Current();
    if (!map || !dialog || !Root().Context())
        return;
    double scale = 1.0;
    const double zoom = m_board->Zoom();
    if (messages && qAbs(zoom - 1.0) > 0.001) {
        const auto answer = messages->Question(
            CKorvane::Name(),
            tr("Export the picture at the current zoom (%1 %)?\n\nNo exports it at 100 %.")
                .arg(qRound(zoom * 100)),
            FMessageBox::Buttons::YesNoCancel, FMessageBox::Icon::Question,
            FMessageBox::Answer::Yes);
        if (answer == FMessageBox::Answer::Cancel)
            return;
        if (answer == FMessageBox::Answer::Yes)
            scale = zoom;
    }
    if (!dialog->Display(tr("PNG Pictures (*.png)|*.png"), map->Name(), QStringLiteral("png"),
                         CPersistMgr::StartDirectory()))
        return;
    CPersistMgr::RememberDirectory(dialog->SelDir());
    const QString path =
        CUtility::JoinPath(dialog->SelDir(), dialog->SelFile(),
                           dialog->SelExt().isEmpty() ? QStringLiteral("png") : dialog->SelExt());
    QString error;
    // With the changes shown the picture is the board's, overlay included.
    const CBoardReview* review = m_review->Board();
    if (review->Shown()) {
        if (!review->Picture(scale).save(path, "PNG"))
            FMessageBox::Tell(tr("The picture could not be saved."),
                              FMessageBox::Icon::Exclamation);
        return;
    }
    if (!CMapExport::ToPng(map, Root().Context(), scale, path, error))
        FMessageBox::Tell(tr("The picture could not be saved.\n\n%1").arg(error),
                          FMessageBox::Icon::Exclamation);
}

void CFileMenu::SendToOpponent()
{
    const std::shared_ptr<CGame> game = Root().Game();
    if (!game)
        return;
    // The opponent gets what is on the board now: unsaved changes and a game
    // never saved are written first, and a cancelled save sends nothing.
    if ((game->Dirty() != 0 || game->FilePath().isEmpty()) &&
        !Root().PersistMgr().SaveCurrentGame())
        return;
    const QString path = game->FilePath();
    // The mail program is watched without waiting for it; what went wrong
    // is told when it has ended.
    CMailSender().Send(
        path, CMailSender::Subject(*game), this, [path](CMailSender::Outcome outcome) {
            if (outcome == CMailSender::Outcome::FolderShown)
                FMessageBox::Tell(tr("No mail program could be started. The folder that holds "
                                     "'%1' has been opened, so you can attach the game yourself.")
                                      .arg(QFileInfo(path).fileName()),
                                  FMessageBox::Icon::Information);
            else if (outcome == CMailSender::Outcome::Failed)
                FMessageBox::Tell(tr("No mail program could be started. Attach the game file "
                                     "yourself:\n\n%1")
                                      .arg(QDir::toNativeSeparators(path)),
                                  FMessageBox::Icon::Exclamation);
        });
}
