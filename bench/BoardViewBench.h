#pragma once

#include "BenchSession.h"

#include <QApplication>

// The side of the square board the window benchmarks draw on.
constexpr int BoardViewSide = 10000;

// Runs the registered window benchmarks on the offscreen platform with the
// board context of BoardViewSide; beforeRelease drops the benchmark's windows
// before the root goes.
inline int RunBoardViewBenchmarks(int argc, char** argv, void (*beforeRelease)())
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return RunBenchmarksWithRoot<QApplication>(
        argc, argv,
        []() -> std::shared_ptr<IGameContext> {
            return MakeBoardContext(QSize(BoardViewSide, BoardViewSide), true);
        },
        beforeRelease);
}
