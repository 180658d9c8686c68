#include "mdiMain.h"

#include "core/CConfiguration.h"
#include "core/CKorvane.h"
#include "model/CGame.h"
#include "persist/CPersistMgr.h"
#include "persist/CRecoveryMgr.h"
#include "ui/app/CCommandGuard.h"
#include "ui/app/CGameCommands.h"
#include "ui/app/CRecentFiles.h"
#include "ui/app/CReviewWindows.h"
#include "ui/board/mdcBoard.h"
#include "ui/docks/UMapTabs.h"
#include "ui/docks/UTokenPalette.h"
#include "ui/docks/frmMapText.h"
#include "ui/menus/CActionMenu.h"
#include "ui/menus/CFileMenu.h"
#include "ui/menus/CGameMenu.h"
#include "ui/menus/CHelpMenu.h"
#include "ui/menus/CToolsMenu.h"
#include "ui/menus/CViewMenu.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const QString section = QLatin1String(mdiMain::SettingsSection);

} // namespace

mdiMain::mdiMain(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mdiMain"));
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_tabs = new UMapTabs(centre);
    m_board = new mdcBoard(centre);
    layout->addWidget(m_tabs);
    layout->addWidget(m_board, 1);
    setCentralWidget(centre);
    setAcceptDrops(true);

    m_palette = new UTokenPalette(this);
    addDockWidget(Qt::LeftDockWidgetArea, m_palette);
    m_mapText = new frmMapText(this);
    addDockWidget(Qt::RightDockWidgetArea, m_mapText);
    m_mapText->hide();
    m_review = new CReviewWindows(this);

    QMenuBar* bar = menuBar();
    m_fileMenu = new CFileMenu(bar->addMenu(QString()), m_board, this, m_review);
    m_actionMenu = new CActionMenu(bar->addMenu(QString()));
    m_viewMenu = new CViewMenu(bar->addMenu(QString()), m_board, m_mapText, m_review);
    m_gameMenu = new CGameMenu(bar->addMenu(QString()));
    m_toolsMenu = new CToolsMenu(bar->addMenu(QString()));
    m_helpMenu = new CHelpMenu(bar->addMenu(QString()));
    UpdateTitle();
    if (CKorvane* root = RootOrNull())
        root->PersistMgr().SetSavedObserver([this] { gameSaved(); });
}

mdiMain::~mdiMain()
{
    if (CKorvane* root = RootOrNull())
        root->PersistMgr().SetSavedObserver({});
}

void mdiMain::Load()
{
    const QRect kept = Root().Config().GetRect(section);
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect available = screen ? screen->availableGeometry() : QRect(0, 0, 1280, 800);
    if (kept.width() >= 200 && kept.height() >= 150) {
        // A window saved on a larger screen (or at a smaller scale) is made
        // to fit; one saved on a screen that is gone comes back onto this one.
        QRect saved(kept.topLeft(), kept.size().boundedTo(available.size()));
        if (!available.contains(saved))
            saved.moveTopLeft(QPoint(
                std::clamp(saved.left(), available.left(), available.right() - saved.width() + 1),
                std::clamp(saved.top(), available.top(), available.bottom() - saved.height() + 1)));
        setGeometry(saved);
        return;
    }
    QSize size(available.width() * 4 / 5, available.height() * 4 / 5);
    size = size.boundedTo(QSize(1400, 950));
    resize(size);
    move(available.center() - QPoint(size.width() / 2, size.height() / 2));
}

QString mdiMain::DroppedGameFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.constFirst().isLocalFile())
        return QString();
    const QString path = urls.constFirst().toLocalFile();
    const QFileInfo info(path);
    return info.isFile() && info.suffix().compare(QLatin1String("krf"), Qt::CaseInsensitive) == 0
               ? path
               : QString();
}

void mdiMain::dragEnterEvent(QDragEnterEvent* event)
{
    m_dragIsGame = !DroppedGameFile(*event->mimeData()).isEmpty();
    if (m_dragIsGame)
        event->acceptProposedAction();
}

// The board below refuses what is not a counter; the window takes it back.
void mdiMain::dragMoveEvent(QDragMoveEvent* event)
{
    if (m_dragIsGame)
        event->acceptProposedAction();
}

void mdiMain::dropEvent(QDropEvent* event)
{
    m_dragIsGame = false;
    const QString path = DroppedGameFile(*event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // Opened once the drop is over, so that the file manager is not held
    // while the player answers a question about the current game.
    QTimer::singleShot(0, this, [path] { CGameCommands::OpenFile(path); });
}

void mdiMain::saveGeometry()
{
    Root().Config().SetRect(section, geometry());
}

void mdiMain::gameSaved()
{
    const std::shared_ptr<CGame> game = Root().Game();
    const QString path = game ? game->FilePath() : QString();
    if (!path.isEmpty())
        CRecentFiles::Add(QFileInfo(path).absoluteFilePath());
    if (m_recovery)
        m_recovery->GameSaved();
    UpdateTitle();
}

void mdiMain::UpdateTitle()
{
    CKorvane* root = RootOrNull();
    const std::shared_ptr<CGame> game = root ? root->Game() : nullptr;
    if (!game) {
        setWindowTitle(CKorvane::Name());
        return;
    }
    QString title = game->Name().isEmpty() ? tr("Untitled") : game->Name();

    const QString path = game->FilePath();
    if (!path.isEmpty())
        title += QStringLiteral(" - ") + QFileInfo(path).fileName();
    if (game->Dirty() != 0)
        title += QLatin1Char('*');
    setWindowTitle(title + QStringLiteral(" - ") + CKorvane::Name());
}

IGameEventListener* mdiMain::BoardMdc()
{
    return m_board;
}

IGameEventListener* mdiMain::MapTextWin()
{
    return m_mapText;
}

IGameEventListener* mdiMain::FileMenu()
{
    return m_fileMenu;
}

IGameEventListener* mdiMain::ActionMenu()
{
    return m_actionMenu;
}

IGameEventListener* mdiMain::ViewMenu()
{
    return m_viewMenu;
}

IGameEventListener* mdiMain::GameMenu()
{
    return m_gameMenu;
}

IGameEventListener* mdiMain::ToolsMenu()
{
    return m_toolsMenu;
}

IGameEventListener* mdiMain::HelpMenu()
{
    return m_helpMenu;
}

void mdiMain::rebuildTabs()
{
    m_tabs->Rebuild();
    followModel();
}

void mdiMain::NotifyOfMapSwitch(const QString&, const QString&)
{
    m_tabs->SelectActive();
    followModel();
}

void mdiMain::NotifyOfNewGame()
{
    rebuildTabs();
    m_review->GameOpened();
}

void mdiMain::NotifyOfNewContext()
{
    m_palette->Rebuild();
    followModel();
}

void mdiMain::closeEvent(QCloseEvent* event)
{
    bool mayClose = true;
    CCommandGuard::Run([&mayClose] { mayClose = Root().PersistMgr().AbandonCurrentGame(); });
    if (!mayClose) {
        event->ignore();
        return;
    }
    saveGeometry();
    event->accept();
}
