#pragma once

// Used by the window tests only: they link the UI and know where the build
// put the modules it ships.

#include "core/CKorvane.h"
#include "core/FNewGameDlg.h"
#include "core/FOpenFileDlg.h"
#include "core/FSaveFileDlg.h"
#include "support/ContextTestSupport.h"
#include "support/RootFixture.h"
#include "support/ScriptedGui.h"
#include "ui/CWidgetGui.h"
#include "ui/mdiMain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

// File and new-game dialogs that answer from a script.
class ScriptedChoices : public FSaveFileDlg, public FOpenFileDlg, public FNewGameDlg
{
public:
    QString Path;
    QString GameId;

    bool Display(const QString&, const QString&, const QString&, const QString&) override
    {
        return !Path.isEmpty();
    }
    bool Display(const QString&, const QString&, const QString&) override
    {
        return !Path.isEmpty();
    }
    bool Display() override { return !GameId.isEmpty(); }
    QString SelectedGameId() const override { return GameId; }
    QString SelDir() const override { return QFileInfo(Path).absolutePath() + QLatin1Char('/'); }
    QString SelFile() const override { return QFileInfo(Path).completeBaseName(); }
    QString SelExt() const override { return QFileInfo(Path).suffix(); }
};

// The program's own windows with message boxes, file dialogs and the
// right-click menu scripted.
class WindowGui : public CWidgetGui
{
public:
    ScriptedMessages Boxes;
    ScriptedChoices Choices;
    ScriptedPopupMenu Popup;

    FMessageBox* Messages() override { return &Boxes; }
    FSaveFileDlg* SaveFileDlg() override { return &Choices; }
    FOpenFileDlg* OpenFileDlg() override { return &Choices; }
    FNewGameDlg* NewGameDlg() override { return &Choices; }
    FPopupMenu* PopupMenu() override { return &Popup; }
};

// The main window on screen, over a home holding every module the build ships.
class WindowFixture : public RootFixture
{
protected:
    void SetUp() override
    {
        const QDir built(QStringLiteral(KORVANE_SHIPPED_MODULES_DIR));
        QDir().mkpath(home.File(QStringLiteral("modules")));
        for (const QString& pack : built.entryList({QStringLiteral("*.krm")}, QDir::Files))
            ASSERT_TRUE(QFile::copy(built.filePath(pack), home.File("modules/" + pack)));
        RootFixture::SetUp();
        window = gui->MainWindow();
        window->resize(1000, 760);
        window->show();
    }
    std::unique_ptr<CGui> MakeGui() override
    {
        auto made = std::make_unique<WindowGui>();
        gui = made.get();
        return made;
    }

    WindowGui* gui = nullptr;
    mdiMain* window = nullptr;
};
