// Switching maps on the board while the changes are shown: three turns of a
// 10,000 x 10,000 board with 2,000 counters each, where every turn moves a
// tenth of the counters, changes a twentieth and adds and removes a few.
// Each switch goes to the next or previous turn (never the first, which has
// nothing before it), so every switch compares 2,000 counters with 2,000
// and draws the overlay, then paints the view. The baseline, in the same
// run, makes the same switches with the changes hidden. Target: a switch
// with the changes shown stays under 50 ms.
#include "BoardViewBench.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "ui/board/CBoardReview.h"
#include "ui/board/mdcBoard.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

constexpr int unitCount = 2000;
constexpr int turns = 3;
const QSize viewSize(1920, 1080);

std::shared_ptr<CUnit> unitAt(const IGameContext& context, int token, int x, int y, int count)
{
    auto unit = std::make_shared<CUnit>(CUtility::GenerateId(),
                                        context.Tokens().Item(token % BoardTokenCount + 1));
    unit->SetX(x);
    unit->SetY(y);
    unit->SetCaption(QStringLiteral("x%1").arg(count));
    unit->SetData(QString::number(count));
    return unit;
}

// Turn t of the game: the opening with turn t's moves, changes, losses and
// arrivals.
void fillTurn(CMap& map, const IGameContext& context, int turn)
{
    const int span = BoardViewSide - BoardUnitSize;
    for (int i = 0; i < unitCount; ++i) {
        if (turn > 0 && i % 97 == turn)
            continue; // lost this turn
        const bool moves = turn > 0 && i % 10 == turn;
        const int x = (i * 4937 + (moves ? 48 * turn : 0)) % span;
        const int y = (i * 7919 + (moves ? 41 * turn : 0)) % span;
        const int count = i % 12 + 1 - (turn > 0 && i % 20 == turn ? 1 : 0);
        map.Units()->AddItem(unitAt(context, i, x, y, count));
    }
    for (int i = 0; i < 20 * turn; ++i)
        map.Units()->AddItem(unitAt(context, i, (i * 131) % span, (i * 173) % span, 1));
}

struct Session
{
    std::shared_ptr<CMapGroup> Group;
    std::unique_ptr<mdcBoard> Board;
    CBoardReview* Review = nullptr;
};

Session& session()
{
    static Session made = [] {
        Session s;
        const IGameContext& context = *Root().Context();
        const auto [game, first] = OneMapGame();
        s.Group = game->ActiveMapGroup();
        fillTurn(*first, context, 0);
        for (int turn = 1; turn < turns; ++turn) {
            auto map = std::make_shared<CMap>(CUtility::GenerateId(), s.Group->Id());
            s.Group->Maps().AddItem(map);
            s.Group->SwitchTo(map);
            fillTurn(*map, context, turn);
        }
        Root().SetGame(game);
        s.Board = std::make_unique<mdcBoard>();
        s.Board->setFrameShape(QFrame::NoFrame);
        s.Board->resize(viewSize);
        s.Board->show();
        s.Review = new CBoardReview(s.Board.get());
        s.Board->NotifyOfNewGame();
        QCoreApplication::processEvents();
        return s;
    }();
    return made;
}

// Switches between the second and the third turn, shown or not.
void switchMaps(benchmark::State& state, bool shown)
{
    Session& s = session();
    s.Review->SetShown(shown);
    int step = 0;
    for (auto _ : state) {
        const auto map = s.Group->Maps().Item(2 + step++ % (turns - 1));
        s.Group->SwitchTo(map);
        s.Board->NotifyOfMapSwitch(QString(), map->Id());
        s.Board->viewport()->repaint();
    }
    state.counters["changes"] = static_cast<double>(s.Review->Comparison().Changes.size());
}

void BM_SwitchMapWithChanges(benchmark::State& state)
{
    switchMaps(state, true);
}
BENCHMARK(BM_SwitchMapWithChanges)->Unit(benchmark::kMillisecond)->MinTime(2.0);

void BM_SwitchMapBaseline(benchmark::State& state)
{
    switchMaps(state, false);
}
BENCHMARK(BM_SwitchMapBaseline)->Unit(benchmark::kMillisecond)->MinTime(2.0);

} // namespace

int main(int argc, char** argv)
{
    return RunBoardViewBenchmarks(argc, argv, [] { session().Board.reset(); });
}
