#pragma once

#include "model/ModelTestSupport.h"
#include "support/ContextTestSupport.h"
#include "support/TestHome.h"

#include <QColor>
#include <QJsonValue>
#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>

class CArrow;
class CGame;
class CMap;
class CMapGroup;
class CUnit;
class IGameContext;

// What one run of korvane-tool did; Status is -1 when it crashed or hung.
struct ToolRun
{
    int Status = -1;
    QString Out;
    QString Err;

    QStringList ErrLines() const { return Err.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    // The output parsed as JSON (failing the test when it is not).
    QJsonValue Json() const;
};

// Runs the built korvane-tool with exactly these arguments, without a
// display and with settings kept in a temporary folder.
ToolRun RunTool(const QStringList& arguments);
// The same in two steps, for runs side by side; prepare runs in the child
// before the tool starts.
std::unique_ptr<QProcess> StartTool(const QStringList& arguments,
                                    const std::function<void()>& prepare = {});
ToolRun FinishTool(QProcess& process);

// A home holding the module "War Game" (modules/war.krm: a quantity token
// "inf", an image token "tank" and an arrow token "move", 32-pixel pictures
// on a 300 x 200 board), and a root in this process with that module active,
// so tests can build the games the tool then reads.
class ToolFixture : public ::testing::Test
{
protected:
    static constexpr int UnitSize = 32;

    void SetUp() override;
    void TearDown() override;

    static TestModule WarModule();
    // korvane-tool with these arguments followed by "--home" and the home.
    ToolRun Tool(QStringList arguments) const;

    // The module's new game (one group holding one map "Start", both active), named.
    std::shared_ptr<CGame> NewGame(const QString& name) const;
    // Adds a map to a group and makes it the group's active (locked) map.
    static std::shared_ptr<CMap> AddMap(CMapGroup& group, const QString& name);
    // Saves a game of the war module into the home; returns its path.
    QString Save(CGame& game, const QString& fileName) const;

    TestHome home;
    std::shared_ptr<IGameContext> context;
    // The solid colours of the module's pictures.
    const QColor board = TestModule::ColorOf(QStringLiteral("board.png"));
    const QColor infantry = TestModule::ColorOf(QStringLiteral("inf.png"));
    const QColor tank = TestModule::ColorOf(QStringLiteral("tank.png"));
};
