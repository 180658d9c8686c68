// Start-up of the korvane program with both shipped modules, from the start
// of the process to its main window shown, against a bare Qt program that
// shows one empty QMainWindow. Each side runs as a process of its own (this
// program started again with --child=...), alternately, and says "shown" on
// standard output once its window is exposed; the time counted is from the
// start of the process to that line. A second baseline gives the bare window
// a menu bar: the first text shown loads the font database, which is about
// half of what the program does before its window appears and which the
// empty window never needs.

#include "ui/app/CProgram.h"
#include "ui/app/mdiMain.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QProcess>
#include <QTemporaryDir>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstring>

namespace {

using WallClock = std::chrono::steady_clock;

void waitUntilExposed(QWidget& window)
{
    while (!window.windowHandle() || !window.windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::puts("shown");
    std::fflush(stdout);
}

int runChild(int argc, char** argv, const char* which)
{
    QApplication application(argc, argv);
    if (std::strcmp(which, "korvane") != 0) {
        QMainWindow window;
        window.resize(1024, 700);
        if (std::strcmp(which, "menus") == 0) {
            for (const char* title : {"&File", "&Action", "&View", "&Game", "&Tools", "&Help"})
                window.menuBar()->addMenu(QLatin1String(title));
        }
        window.show();
        waitUntilExposed(window);
        return 0;
    }
    CProgram program(application);
    waitUntilExposed(*program.Start());
    return 0;
}

struct Homes
{
    Homes()
    {
        QDir().mkpath(home.path() + QStringLiteral("/modules"));
        for (const char* pack : {"krcv1a.krm", "skirmish.krm"})
            QFile::copy(QStringLiteral(KORVANE_SHIPPED_MODULES_DIR "/") + QLatin1String(pack),
                        home.path() + QStringLiteral("/modules/") + QLatin1String(pack));
    }
    QTemporaryDir home;
    QTemporaryDir settings;
};

// Milliseconds from starting the child to its "shown", or a negative value.
double startChild(const QString& self, const char* which, const Homes& homes)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("KORVANE_HOME"), homes.home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), homes.settings.path());
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    child.setProcessEnvironment(environment);
    const auto start = WallClock::now();
    child.start(self, {QStringLiteral("--child=") + QLatin1String(which)});
    while (!child.canReadLine())
        if (!child.waitForReadyRead(30000))
            return -1;
    const auto shown = WallClock::now();
    child.waitForFinished(30000);
    if (!child.readLine().startsWith("shown"))
        return -1;
    return std::chrono::duration<double, std::milli>(shown - start).count();
}

void BM_StartUpToMainWindow(benchmark::State& state)
{
    const Homes homes;
    const QString self = QCoreApplication::applicationFilePath();
    double korvane = 0;
    double bare = 0;
    double menus = 0;
    for (auto _ : state) {
        const double k = startChild(self, "korvane", homes);
        const double b = startChild(self, "bare", homes);
        const double m = startChild(self, "menus", homes);
        if (k < 0 || b < 0 || m < 0) {
            state.SkipWithError("a child did not show its window");
            return;
        }
        korvane += k;
        bare += b;
        menus += m;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["korvane_ms"] = korvane / n;
    state.counters["bare_qt_ms"] = bare / n;
    state.counters["bare_menus_ms"] = menus / n;
    state.counters["ratio"] = korvane / bare;
    state.counters["ratio_menus"] = korvane / menus;
}
BENCHMARK(BM_StartUpToMainWindow)->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "--child=", 8) == 0)
            return runChild(argc, argv, argv[i] + 8);
    }
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
