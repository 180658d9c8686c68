#pragma once

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

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
