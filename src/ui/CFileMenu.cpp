#include "CFileMenu.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FBoardMdc.h"
#include "core/FMessageBox.h"
#include "model/CGame.h"
#include "persist/CPersistMgr.h"
#include "ui/CGameCommands.h"
#include "ui/CRecentFiles.h"
#include "ui/mdcBoard.h"
#include "ui/mdiMain.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

CFileMenu::CFileMenu(QMenu* menu, mdiMain* window)
    : CMenuHandler(menu, QStringLiteral("mnuFile"), QStringLiteral("&File")), m_window(window)
{
    AddItem(QStringLiteral("mnuFileNewGame"), QStringLiteral("&New Game"), [] {
        CGameCommands::NewGame();
    })->setShortcut(QKeySequence::New);
    AddItem(QStringLiteral("mnuFileOpenGame"), QStringLiteral("&Open Game..."), [] {
        CGameCommands::OpenGame();
    })->setShortcut(QKeySequence::Open);
    m_recent = menu->addMenu(QStringLiteral("Open &Recent"));
    m_recent->setObjectName(QStringLiteral("mnuFileRecent"));
    AddSeparator(QStringLiteral("mnuFileBar1"));
    m_save = AddItem(QStringLiteral("mnuFileSaveGame"), QStringLiteral("&Save Game"), [this] {
        if (Root().PersistMgr().SaveCurrentGame())
            m_window->GameSaved();
    });
    m_save->setShortcut(QKeySequence::Save);
    m_saveAs =
        AddItem(QStringLiteral("mnuFileSaveGameAs"), QStringLiteral("Save Game &As..."), [this] {
            if (Root().PersistMgr().SaveCurrentGameAs())
                m_window->GameSaved();
        });
    m_saveAs->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    AddSeparator(QStringLiteral("mnuFileBar2"));
    m_print =
        AddItem(QStringLiteral("mnuFilePrint"), QStringLiteral("Print..."), [this] { Print(); });
    m_print->setShortcut(QKeySequence::Print);
    AddSeparator(QStringLiteral("mnuFileBar3"));
    AddItem(QStringLiteral("mnuFileExit"), QStringLiteral("E&xit"), [this] {
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
        if (FMessageBox* messages = Root().Gui() ? Root().Gui()->Messages() : nullptr)
            messages->Information(CKorvane::Name(),
                                  QStringLiteral("File '") + path +
                                      QStringLiteral("' no longer exists. It has been removed "
                                                     "from the list of recent games."),
                                  FMessageBox::Icon::Exclamation);
        return;
    }
    CGameCommands::OpenFile(path);
}

void CFileMenu::Print()
{
    if (!Root().Game())
        return;
    const QImage picture = m_window->Board()->PaintToPbox();
    QPrinter printer(QPrinter::HighResolution);
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
