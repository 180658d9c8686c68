// Drawing a busy map (a 1600 x 1200 board, 500 counters with labels, 30
// arrows) through the board renderer. The baseline, measured in the same run,
// draws only the board and the 500 counter pictures with plain QPainter calls:
// the least any drawing of that map must do.
#include "contexts/CImageList.h"
#include "contexts/IGameContext.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "render/CBoardRenderer.h"
#include "tokens/CTokenFactory.h"
#include "tokens/IToken.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

constexpr int tokenCount = 20;
constexpr int unitCount = 500;
constexpr int unitSize = 40;

// A board, token pictures and a label look; nothing else is used.
class BenchContext : public IGameContext
{
public:
    BenchContext() : m_board(1600, 1200, QImage::Format_RGB32)
    {
        m_board.fill(QColor(40, 120, 60));
        m_units = std::make_shared<CImageList>(0xFF00FF, unitSize, unitSize);
        for (std::int16_t i = 1; i <= tokenCount; ++i) {
            const QString id = QStringLiteral("T%1").arg(i);
            m_tokens.AddItem(CTokenFactory::Create(QStringLiteral("CQuantityToken"), id, i,
                                                   QStringLiteral("Units"), id, id, unitSize,
                                                   unitSize));
            QImage picture(unitSize, unitSize, QImage::Format_RGB32);
            picture.fill(QColor(10 * i, 200 - 5 * i, 90));
            m_units->Add(id, picture);
        }
    }
    QString Id() const override { return QStringLiteral("krm_bench_v1"); }
    QString Caption() const override { return QStringLiteral("Bench"); }
    QImage Picture() const override { return QImage(); }
    QString FontName() const override { return QStringLiteral("Sans"); }
    double FontSize() const override { return 9; }
    bool HasTransparentLabel() const override { return false; }
    QString MultiplierPrefix() const override { return QStringLiteral("x"); }
    std::int32_t LabelForeColor() const override { return 65535; }
    std::int32_t LabelBackColor() const override { return 0; }
    std::int32_t LabelMovedColor() const override { return 65280; }
    QString FileExtension() const override { return QString(); }
    QString FileCaption() const override { return QString(); }
    void Initialize(std::shared_ptr<CModuleDefinition>, std::shared_ptr<CResFileMgr>) override {}
    void Activate(IProgressMonitor*) override {}
    void Deactivate() override {}
    void Dispose() override {}
    std::shared_ptr<CGame> CreateDefaultGame() override { return nullptr; }
    QImage MapPicture() const override { return m_board; }
    std::int32_t MapWidth() const override { return m_board.width(); }
    std::int32_t MapHeight() const override { return m_board.height(); }
    std::shared_ptr<CImageList> PalletImgLst() const override { return nullptr; }
    std::shared_ptr<CImageList> DragImgLst() const override { return nullptr; }
    bool IsUserDefined() const override { return false; }
    std::shared_ptr<CImageList> UnitImgLst() const override { return m_units; }
    const CVector<IToken>& Tokens() const override { return m_tokens; }
    const CVector<IActionTool>& CustomTools() const override { return m_tools; }
    const CVector<IAction>& CustomActions() const override { return m_actions; }
    QString Url() const override { return QString(); }

private:
    QImage m_board;
    std::shared_ptr<CImageList> m_units;
    CVector<IToken> m_tokens;
    CVector<IActionTool> m_tools;
    CVector<IAction> m_actions;
};

double seconds(std::chrono::steady_clock::duration d)
{
    return std::chrono::duration<double>(d).count();
}

void BM_RenderBusyMap(benchmark::State& state)
{
    const auto context = std::make_shared<BenchContext>();
    CMap map(CUtility::GenerateId(), CUtility::GenerateId());
    map.AquireLock();
    for (int i = 0; i < unitCount; ++i) {
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(),
                                            context->Tokens().Item(i % tokenCount + 1));
        unit->SetX(i * 37 % 1560);
        unit->SetY(i * 53 % 1140);
        unit->SetCaption(QStringLiteral("x%1").arg(i % 12 + 1));
        unit->SetHasMoved(i % 5 == 0);
        map.Units()->AddItem(unit);
    }
    for (int i = 0; i < 30; ++i) {
        auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
        arrow->SetTailX(i * 50);
        arrow->SetTailY(100 + i * 30);
        arrow->SetHeadX(i * 50 + 80);
        arrow->SetHeadY(140 + i * 30);
        arrow->SetColor(0x0000FF);
        map.Arrows()->AddItem(arrow);
    }
    const CBoardRenderer renderer(context);
    QImage target(1600, 1200, QImage::Format_ARGB32_Premultiplied);
    const QImage board = context->MapPicture();
    std::vector<std::pair<QPoint, QImage>> pictures;
    for (const auto& unit : *map.Units())
        pictures.emplace_back(QPoint(unit->x(), unit->y()),
                              context->UnitImgLst()->Image(unit->Token()->UnitImage()));

    using clock = std::chrono::steady_clock;
    clock::duration rendering{}, plain{};
    for (auto _ : state) {
        const auto t0 = clock::now();
        {
            QPainter painter(&target);
            renderer.PaintMap(painter, map);
        }
        const auto t1 = clock::now();
        {
            QPainter painter(&target);
            painter.drawImage(QPoint(0, 0), board);
            for (const auto& [at, picture] : pictures)
                painter.drawImage(at, picture);
        }
        const auto t2 = clock::now();
        rendering += t1 - t0;
        plain += t2 - t1;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["render_ms"] = seconds(rendering) / n * 1e3;
    state.counters["plain_ms"] = seconds(plain) / n * 1e3;
    state.counters["ratio"] = seconds(rendering) / seconds(plain);
}
BENCHMARK(BM_RenderBusyMap)->Unit(benchmark::kMillisecond)->MinTime(2.0);

} // namespace

int main(int argc, char** argv)
{
    // Labels need fonts, so a QGuiApplication, which needs no display here.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir home;
    qputenv("KORVANE_HOME", home.path().toLocal8Bit());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
