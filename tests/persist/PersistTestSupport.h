#pragma once

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "support/ContextTestSupport.h"
#include "support/ScriptedFileDlg.h"
#include "support/TestHome.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

// The dialogs a test scripts; there is no main window.
class TestGui : public CGui
{
public:
    FMainMdi* MainMdi() override { return nullptr; }
    FMessageBox* Messages() override { return &Boxes; }
    FSaveFileDlg* SaveFileDlg() override { return &Save; }
    FOpenFileDlg* OpenFileDlg() override { return &Open; }
    FProgressWin* ProgressWin() override { return &Progress; }

    ScriptedMessages Boxes;
    ScriptedFileDlg Save;
    ScriptedFileDlg Open;
    RecordingProgress Progress;
};

// A game file image around an arbitrary body, compressed as game files
// store it (zlib, level 9), for exact and damaged-file cases.
QByteArray FileAround(const QByteArray& body, const QByteArray& storedId);

// A home whose module packs the test writes before it starts the root.
class PersistTest : public ::testing::Test
{
protected:
    void TearDown() override { ReleaseRoot(); }

    // A standard module "krm_<name>_v1" titled name, with tokens of each kind.
    static TestModule module(const QString& name);
    void writeModule(const QString& fileName, const TestModule& m) const;
    // Starts the root with a TestGui; returns the GUI.
    TestGui* start();
    // Activates the installed context of that id and makes it the root's.
    void activate(const QString& id);
    // A game of the active context: one group, one map, as a new game starts.
    std::shared_ptr<CGame> newGame(const QString& name);

    TestHome home;
};
