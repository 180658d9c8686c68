#include "core/CConfiguration.h"
#include "support/GameFixture.h"
#include "ui/CMapState.h"
#include "ui/UMapTabs.h"
#include "ui/frmMapText.h"

#include <QApplication>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

// The map text window docked in a main window beside the real map tabs and
// a button to click elsewhere, hearing the game's announcements.
class MapText : public GameFixture
{
protected:
    void SetUp() override
    {
        GameFixture::SetUp();
        open();
    }
    void TearDown() override
    {
        close();
        GameFixture::TearDown();
    }
    // Like quitting: the window goes, and the game stops telling it anything.
    void close()
    {
        Root().EventMgr().Unregister(listener);
        window.reset();
    }

    void open()
    {
        window = std::make_unique<QMainWindow>();
        auto* centre = new QWidget(window.get());
        auto* layout = new QVBoxLayout(centre);
        tabs = new UMapTabs(centre);
        elsewhere = new QPushButton(QStringLiteral("Board"), centre);
        layout->addWidget(tabs);
        layout->addWidget(elsewhere);
        window->setCentralWidget(centre);
        dock = new frmMapText(window.get());
        window->addDockWidget(Qt::RightDockWidgetArea, dock);
        box = dock->findChild<QPlainTextEdit*>(QStringLiteral("txtMapText"));
        listener = std::shared_ptr<IGameEventListener>(dock, [](IGameEventListener*) {});
        Root().EventMgr().Register(listener);
        tabs->Rebuild();
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        dock->Show();
    }

    void typeIntoBox(const QString& text)
    {
        box->setFocus();
        QTest::keyClick(box, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(box, text);
    }
    void clickTab(int index)
    {
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(index).center());
    }

    std::unique_ptr<QMainWindow> window;
    std::shared_ptr<IGameEventListener> listener;
    UMapTabs* tabs = nullptr;
    QPushButton* elsewhere = nullptr;
    frmMapText* dock = nullptr;
    QPlainTextEdit* box = nullptr;
};

TEST_F(MapText, typedTextIsCommittedOnceBeforeAnotherMapIsShownAndUndoShowsTheOldText)
{
    second->SetText(QStringLiteral("Rain."));
    CMapState::SwitchToMap(first);
    CMapState::SwitchToMap(second);
    EXPECT_EQ(box->toPlainText(), "Rain.");

    // Leaving the box without a change records nothing.
    box->setFocus();
    QTest::mouseClick(elsewhere, Qt::LeftButton);
    EXPECT_EQ(mgr().NextUndoAction(), nullptr);

    typeIntoBox(QStringLiteral(" Mud"));
    typeIntoBox(QStringLiteral(" everywhere."));
    clickTab(0);
    EXPECT_EQ(board(), first);
    EXPECT_EQ(second->Text(), "Rain. Mud everywhere.");
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), "Edit Map Text");
    EXPECT_EQ(box->toPlainText(), "");

    // One undo step brings the edited map back with its old text.
    mgr().Undo();
    EXPECT_EQ(board(), second);
    EXPECT_EQ(box->toPlainText(), "Rain.");
    EXPECT_EQ(mgr().NextUndoAction(), nullptr);
    EXPECT_EQ(dirty(), 0);

    // A switch no gesture announced keeps typed text for when the map returns.
    box->setFocus();
    box->setPlainText(QStringLiteral("Fog."));
    CMapState::SwitchToMap(first);
    CMapState::SwitchToMap(second);
    EXPECT_EQ(box->toPlainText(), "Fog.");
    QTest::mouseClick(elsewhere, Qt::LeftButton);
    EXPECT_EQ(second->Text(), "Fog.");
}

TEST_F(MapText, aProtectedMapsTextCanBeReadButNotChanged)
{
    first->SetText(QStringLiteral("Sealed orders."));
    first->SetFrozen(true);
    clickTab(0);
    EXPECT_EQ(box->toPlainText(), "Sealed orders.");
    typeIntoBox(QStringLiteral("x"));
    QTest::mouseClick(elsewhere, Qt::LeftButton);
    EXPECT_EQ(box->toPlainText(), "Sealed orders.");
    EXPECT_EQ(first->Text(), "Sealed orders.");
    EXPECT_EQ(mgr().NextUndoAction(), nullptr);
}

TEST_F(MapText, altCommitsAndHandsTheFocusToTheMainWindow)
{
    typeIntoBox(QStringLiteral("Hold the ford."));
    QTest::keyClick(box, Qt::Key_Alt, Qt::AltModifier);
    EXPECT_EQ(second->Text(), "Hold the ford.");
    EXPECT_FALSE(box->hasFocus());
    EXPECT_EQ(QApplication::focusWidget(), window.get());
}

TEST_F(MapText, aFloatingWindowComesBackWhereItWasAfterARestart)
{
    dock->setFloating(true);
    const QRect placed(140, 120, 330, 260);
    dock->setGeometry(placed);
    QTest::qWait(0);
    close();
    EXPECT_EQ(Root().Config().GetValue(QStringLiteral("frmMapText"), QStringLiteral("Width")),
              "330");
    open();
    EXPECT_TRUE(dock->isFloating());
    EXPECT_EQ(dock->geometry(), placed);
}

} // namespace
