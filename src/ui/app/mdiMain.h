#pragma once

#include "core/FMainMdi.h"

#include <QMainWindow>

#include <memory>

class CActionMenu;
class CFileMenu;
class CGameMenu;
class CHelpMenu;
class CRecoveryMgr;
class CReviewWindows;
class CToolsMenu;
class CViewMenu;
class QMimeData;
class UMapTabs;
class UTokenPalette;
class frmMapText;
class mdcBoard;

// The main window: menu bar, the map tabs over the board, the counter
// palette on the left and the map text beside the board.
//
// How each part follows the model: the event hub tells this window of every
// change first; it keeps its title and drives the map tabs and the palette,
// which do not listen themselves. The hub then tells the board, the map text
// and each menu handler (handed out below), which follow on their own. Every
// save, whichever command made it, ends in gameSaved through the
// persistence manager.
class mdiMain : public QMainWindow, public FMainMdi
{
    Q_OBJECT

public:
    static constexpr const char* SettingsSection = "mdiMain";

    explicit mdiMain(QWidget* parent = nullptr);
    ~mdiMain() override;

    // Takes the saved position and size, or a sensible size centred on the
    // screen at the first start.
    void Load();

    mdcBoard* Board() const { return m_board; }
    frmMapText* MapText() const { return m_mapText; }
    UMapTabs* MapTabs() const { return m_tabs; }
    UTokenPalette* Palette() const { return m_palette; }
    CReviewWindows* Review() const { return m_review; }

    // The autosave that gameSaved tells of a save; none by default.
    void SetRecovery(CRecoveryMgr* recovery) { m_recovery = recovery; }
    void UpdateTitle();

    IGameEventListener* BoardMdc() override;
    IGameEventListener* MapTextWin() override;
    IGameEventListener* FileMenu() override;
    IGameEventListener* ActionMenu() override;
    IGameEventListener* ViewMenu() override;
    IGameEventListener* GameMenu() override;
    IGameEventListener* ToolsMenu() override;
    IGameEventListener* HelpMenu() override;

    void NotifyOfArrowAdd(const QString&) override { followModel(); }
    void NotifyOfArrowDelete(const QString&) override { followModel(); }
    void NotifyOfArrowEdit(const QString&) override { followModel(); }
    void NotifyOfGameEdit() override { followModel(); }
    void NotifyOfGroupAdd(const QString&) override { followModel(); }
    void NotifyOfGroupDelete(const QString&) override { followModel(); }
    void NotifyOfGroupSwitch(const QString&, const QString&) override { rebuildTabs(); }
    void NotifyOfMapAdd(const QString&) override { rebuildTabs(); }
    void NotifyOfMapDelete(const QString&) override { rebuildTabs(); }
    void NotifyOfMapEdit(const QString&) override { rebuildTabs(); }
    void NotifyOfMapSwitch(const QString&, const QString&) override;
    void NotifyOfNewContext() override;
    void NotifyOfNewGame() override;
    void NotifyOfUnitAdd(const QString&) override { followModel(); }
    void NotifyOfUnitDelete(const QString&) override { followModel(); }
    void NotifyOfUnitEdit(const QString&) override { followModel(); }

    // The game file a drop from a file manager carries: one local file
    // named *.krf, else empty.
    static QString DroppedGameFile(const QMimeData& data);

protected:
    // Offers a modified game for saving; Cancel keeps the window open.
    void closeEvent(QCloseEvent* event) override;
    // A game file dropped anywhere on the window opens as File > Open would.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // The game was written to its file: it joins the recent games, the
    // recovery copy goes and the title loses its change mark.
    void gameSaved();
    void saveGeometry();
    // The map tabs and the title, after maps or groups changed.
    void rebuildTabs();
    void followModel() { UpdateTitle(); }

    mdcBoard* m_board;
    frmMapText* m_mapText;
    UMapTabs* m_tabs;
    UTokenPalette* m_palette;
    CFileMenu* m_fileMenu;
    CActionMenu* m_actionMenu;
    CViewMenu* m_viewMenu;
    CGameMenu* m_gameMenu;
    CToolsMenu* m_toolsMenu;
    CHelpMenu* m_helpMenu;
    CReviewWindows* m_review;
    CRecoveryMgr* m_recovery = nullptr;
    // Whether the drag over the window carries a game file; checked once on
    // entering, not on every move.
    bool m_dragIsGame = false;
};
