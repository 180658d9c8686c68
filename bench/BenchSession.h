#pragma once

#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "support/TestContext.h"

#include <QColor>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>

// The board benchmarks' context: twenty quantity tokens "T1" to "T20" with
// BoardUnitSize square pictures, on a board of size; with gridLines the board
// is drawn on, so the picture is not one flat colour.
constexpr int BoardTokenCount = 20;
constexpr int BoardUnitSize = 40;

inline std::shared_ptr<TestContext> MakeBoardContext(QSize size, bool gridLines)
{
    auto context =
        std::make_shared<TestContext>(QStringLiteral("x"), QStringLiteral("krm_bench_v1"));
    QImage board(size, QImage::Format_RGB32);
    board.fill(QColor(40, 120, 60));
    if (gridLines) {
        QPainter painter(&board);
        painter.setPen(QColor(20, 80, 30));
        for (int at = 0; at < std::max(size.width(), size.height()); at += 50) {
            painter.drawLine(at, 0, at, size.height());
            painter.drawLine(0, at, size.width(), at);
        }
    }
    context->SetMapPicture(board);
    auto units = std::make_shared<CImageList>(0xFF00FF, BoardUnitSize, BoardUnitSize);
    for (int i = 1; i <= BoardTokenCount; ++i) {
        const QString id = QStringLiteral("T%1").arg(i);
        context->AddToken(QStringLiteral("CQuantityToken"), id, BoardUnitSize, BoardUnitSize);
        QImage picture(BoardUnitSize, BoardUnitSize, QImage::Format_RGB32);
        picture.fill(QColor(10 * i, 200 - 5 * i, 90));
        units->Add(id, picture);
    }
    context->SetUnitImages(units);
    return context;
}

// A new game of one group holding one map, switched to; units and arrows are
// the caller's.
struct OneMap
{
    std::shared_ptr<CGame> Game;
    std::shared_ptr<CMap> Map;
};

inline OneMap OneMapGame()
{
    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    game->MapGroups().AddItem(group);
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group->Id());
    group->Maps().AddItem(map);
    game->SwitchTo(group);
    return {game, map};
}

template <typename Duration> double Seconds(Duration d)
{
    return std::chrono::duration<double>(d).count();
}

// Runs the registered benchmarks under a plain application object.
inline int RunBenchmarks(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

// Runs the registered benchmarks with a constructed root in a temporary home,
// settings kept away from the user's, tracing off and the given context
// active; beforeRelease (if any) runs before the root goes. Application is
// QApplication for benchmarks of windows.
template <typename Application = QCoreApplication>
int RunBenchmarksWithRoot(int argc, char** argv, std::shared_ptr<IGameContext> (*makeContext)(),
                          void (*beforeRelease)() = nullptr)
{
    Application app(argc, argv);
    QTemporaryDir home;
    QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    qputenv("KORVANE_HOME", home.path().toLocal8Bit());
    qunsetenv("KORVANE_TRACE");

    auto root = std::make_shared<CKorvane>();
    InstallRoot(root);
    root->Constructor(nullptr);
    root->SetContext(makeContext());

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    if (beforeRelease)
        beforeRelease();
    ReleaseRoot();
    return 0;
}
