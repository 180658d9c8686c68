// Start-up discovery of 50 module packs against libxml2 alone parsing and
// validating the same 50 definitions. Discovery also opens every pack, reads
// its compressed directory, unpacks "module.def" into the cache, checks the
// header and builds the context; disposing the contexts removes the cache
// files again, so every round starts as the program does. The two sides are
// timed alternately within the same iterations.

#include "BenchSession.h"
#include "ThreadCpuClock.h"
#include "contexts/CContextMgr.h"
#include "contexts/CResFileWriter.h"
#include "core/CUtility.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/valid.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlversion.h>

#include <chrono>
#include <ctime>
#include <vector>

namespace {

constexpr int packCount = 50;
constexpr int tokensPerPack = 24;

using CpuClock = ThreadCpuClock;
using WallClock = std::chrono::steady_clock;

QByteArray smallPicture(int seed)
{
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(QColor::fromRgb(static_cast<QRgb>(0x204060 + seed * 7919)));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

// A definition the size of a real one: 24 tokens of every kind in three tabs.
QByteArray definition(int pack)
{
    static const char* const types[] = {"Quantity", "Numeric", "Text", "Arrow", "Image"};
    QString tabs;
    for (int category = 0; category < 3; ++category) {
        tabs += QStringLiteral("<category name=\"Tab %1\">\n").arg(category + 1);
        for (int t = 0; t < tokensPerPack / 3; ++t) {
            const int index = category * (tokensPerPack / 3) + t;
            const QString type = QLatin1String(types[index % 5]);
            const QString extra =
                type == QLatin1String("Text") ? QStringLiteral("<default_text>Hold</default_text>")
                : type == QLatin1String("Arrow") ? QStringLiteral("<line_html_color>#FF0000"
                                                                  "</line_html_color>")
                                                 : QString();
            tabs += QStringLiteral(
                        "  <token token_id=\"t%1\" token_type=\"%2\"><pallet_image>t%1.png"
                        "</pallet_image><drag_image>t%1.png</drag_image><map_image>t%1.png"
                        "</map_image><caption>Token number %1</caption><click_region_x>2"
                        "</click_region_x><click_region_y>2</click_region_y><click_region_w>28"
                        "</click_region_w><click_region_h>28</click_region_h>%3</token>\n")
                        .arg(index)
                        .arg(type, extra);
        }
        tabs += QStringLiteral("</category>\n");
    }
    return QStringLiteral(
               "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
               "<module_def format_version=\"1\">\n<game_info><title>Generated Module %1</title>"
               "<author>Bench</author><url>https://example.org/%1</url><copyright>none"
               "</copyright><min_kr_version>1.0.0</min_kr_version></game_info>\n"
               "<game_info_ex><new_game_image>icon.png</new_game_image></game_info_ex>\n"
               "<game_id><unique_id>generated_%1</unique_id><version>1</version></game_id>\n"
               "<board_settings><board_image>board.png</board_image><label_font_name>Arial"
               "</label_font_name><label_font_size>9</label_font_size><label_is_transparent>false"
               "</label_is_transparent><label_text_html_color>#FFFF00</label_text_html_color>"
               "</board_settings>\n<image_settings><mask_html_color>#FF00FF</mask_html_color>"
               "<pallet_img_width>32</pallet_img_width><pallet_img_height>32</pallet_img_height>"
               "<map_image_width>32</map_image_width><map_image_height>32</map_image_height>"
               "</image_settings>\n<tabs>\n%2</tabs>\n<initial_setup_cmf></initial_setup_cmf>\n"
               "</module_def>\n")
        .arg(pack)
        .arg(tabs)
        .toUtf8();
}

struct Fixture
{
    Fixture()
    {
        qputenv("KORVANE_HOME", home.path().toLocal8Bit());
        QDir().mkpath(CUtility::GetModuleDir());
        for (int pack = 0; pack < packCount; ++pack) {
            CResFileWriter writer;
            definitions.push_back(definition(pack));
            writer.AddEntry(QStringLiteral("module.def"), definitions.back());
            writer.AddEntry(QStringLiteral("board.png"), smallPicture(pack));
            writer.AddEntry(QStringLiteral("icon.png"), smallPicture(pack + 1));
            for (int t = 0; t < tokensPerPack; ++t)
                writer.AddEntry(QStringLiteral("t%1.png").arg(t), smallPicture(pack * 100 + t));
            writer.Write(CUtility::GetModuleDir() + QStringLiteral("generated%1.krm").arg(pack));
        }
        QFile grammarFile(QStringLiteral(":/korvane/module.dtd"));
        grammarFile.open(QIODevice::ReadOnly);
        grammar = grammarFile.readAll();
    }
    QTemporaryDir home;
    std::vector<QByteArray> definitions;
    QByteArray grammar;
};

#if LIBXML_VERSION >= 21200
void ignoreXmlError(void*, const xmlError*) {}
#else
void ignoreXmlError(void*, xmlErrorPtr) {}
#endif

// libxml2 alone: the grammar read once, then every document parsed and validated.
int parseAndValidate(const Fixture& fixture)
{
    xmlParserInputBufferPtr input = xmlParserInputBufferCreateMem(
        fixture.grammar.constData(), static_cast<int>(fixture.grammar.size()),
        XML_CHAR_ENCODING_NONE);
    xmlDtdPtr dtd = xmlIOParseDTD(nullptr, input, XML_CHAR_ENCODING_NONE);
    int valid = 0;
    for (const QByteArray& document : fixture.definitions) {
        xmlDocPtr doc = xmlReadMemory(document.constData(), static_cast<int>(document.size()),
                                      "module.def", nullptr, XML_PARSE_NONET);
        // The grammar stands in for an internal one, as the program reads it.
        if (doc && doc->standalone == 1)
            doc->standalone = 0;
        xmlValidCtxtPtr context = xmlNewValidCtxt();
        valid += doc && xmlValidateDtd(context, doc, dtd) == 1;
        xmlFreeValidCtxt(context);
        xmlFreeDoc(doc);
    }
    xmlFreeDtd(dtd);
    return valid;
}

int discover()
{
    CContextMgr manager;
    manager.Constructor(nullptr);
    const int count = manager.ContextCount();
    manager.Dispose();
    return count;
}

template <typename Duration> double milliseconds(Duration d)
{
    return std::chrono::duration<double, std::milli>(d).count();
}

void BM_DiscoveryVsParsing(benchmark::State& state)
{
    const Fixture fixture;
    xmlSetStructuredErrorFunc(nullptr, &ignoreXmlError);
    if (discover() != packCount || parseAndValidate(fixture) != packCount) {
        state.SkipWithError("not every generated module loads");
        return;
    }
    CpuClock::duration discoveryCpu{}, parsingCpu{};
    WallClock::duration discoveryWall{}, parsingWall{};
    for (auto _ : state) {
        auto cpu = CpuClock::now();
        auto wall = WallClock::now();
        benchmark::DoNotOptimize(discover());
        discoveryCpu += CpuClock::now() - cpu;
        discoveryWall += WallClock::now() - wall;
        cpu = CpuClock::now();
        wall = WallClock::now();
        benchmark::DoNotOptimize(parseAndValidate(fixture));
        parsingCpu += CpuClock::now() - cpu;
        parsingWall += WallClock::now() - wall;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["discovery_ms"] = milliseconds(discoveryCpu) / n;
    state.counters["parsing_ms"] = milliseconds(parsingCpu) / n;
    state.counters["ratio_cpu"] = milliseconds(discoveryCpu) / milliseconds(parsingCpu);
    state.counters["ratio_wall"] = milliseconds(discoveryWall) / milliseconds(parsingWall);
}
BENCHMARK(BM_DiscoveryVsParsing)->Unit(benchmark::kMillisecond)->MinTime(5.0);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv);
}
