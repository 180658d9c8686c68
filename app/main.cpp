#include "ui/app/CProgram.h"

#include <QApplication>

#include <cstdio>
#include <cstring>

namespace {

constexpr const char* usage =
    "Usage: korvane [FILE]\n"
    "Keeps the position of a map-and-counter board game for play by mail.\n"
    "\n"
    "Arguments:\n"
    "  FILE           A game file (.krf) to open at start-up.\n"
    "\n"
    "Options:\n"
    "  -h, --help     Shows this help.\n"
    "  -v, --version  Shows the version.\n"
    "\n"
    "The standard options of Qt programs (-platform, -style, ...) are understood too.\n"
    "See korvane(6) and korvane-tool(1).\n";

bool is(const char* argument, const char* shortName, const char* longName)
{
    return std::strcmp(argument, shortName) == 0 || std::strcmp(argument, longName) == 0;
}

} // namespace

int main(int argc, char** argv)
{
    // Answered before the application starts, so they need no display.
    if (argc == 2 && is(argv[1], "-h", "--help")) {
        std::fputs(usage, stdout);
        return 0;
    }
    if (argc == 2 && is(argv[1], "-v", "--version")) {
        std::fputs("korvane " KORVANE_VERSION_STRING "\n", stdout);
        return 0;
    }
    QApplication application(argc, argv);
    return CProgram::Run(application);
}
