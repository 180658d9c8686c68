// korvane-fuzz-seeds OUTDIR: writes the seed corpora of the fuzz targets from
// the shipped modules, into OUTDIR/<target>/: the packs themselves and a
// small one, the module.def of each, the new game of every usable module, and
// the swap file of a map holding one unit of each token plus an arrow.
#include "FuzzEnvironment.h"

#include "contexts/CContextMgr.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CResFileWriter.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/MMain.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "persist/CGameFile.h"

#include <QDir>
#include <QFile>

namespace {

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

} // namespace

int main(int argc, char** argv)
{
    FuzzEnvironment& environment = FuzzEnvironment::Get();
    if (argc != 2)
        qFatal("usage: korvane-fuzz-seeds OUTDIR");
    const QString out = QFile::decodeName(argv[1]) + QLatin1Char('/');

    const QDir shipped(QStringLiteral(KORVANE_SHIPPED_MODULES_DIR));
    for (const QString& name : shipped.entryList({QStringLiteral("*.krm")}, QDir::Files)) {
        FuzzEnvironment::WriteFile(out + "pack/" + name, fileBytes(shipped.filePath(name)));
        CResFileMgr pack(shipped.path(), name);
        QByteArray definition;
        if (pack.ReadEntry(QStringLiteral("module.def"), definition))
            FuzzEnvironment::WriteFile(out + "module_def/" + name + QStringLiteral(".def"),
                                       definition);
    }

    // A small pack: one entry stored as it is, one compressed.
    CResFileWriter small;
    small.AddEntry(QStringLiteral("stored.bin"), QByteArrayLiteral("\x01\x7f\xfe\x80"));
    small.AddEntry(QStringLiteral("packed.txt"), QByteArray(200, 'k'));
    FuzzEnvironment::WriteFile(out + QStringLiteral("pack/small.krm"), small.ToBytes());

    const CContextMgr& contexts = environment.Root().ContextMgr();
    for (std::int32_t i = 1; i <= contexts.ContextCount(); ++i) {
        const std::shared_ptr<IGameContext> context = contexts.Context(i);
        if (!MMain::SwitchContext(context))
            continue;
        FuzzEnvironment::WriteFile(
            out + "game_file/" + QStringLiteral("new-%1.krf").arg(i),
            CGameFile::ToBytes(*context->CreateDefaultGame(),
                               CContextMgr::TranslateInternalId(context->Id())));
    }

    // The swap target reads its files under the context it picks itself.
    CMap map(CUtility::GenerateId(), CUtility::GenerateId());
    environment.FillAndSwapOut(map);
    FuzzEnvironment::WriteFile(out + QStringLiteral("swap_file/units.swap"),
                               fileBytes(map.SwapFile()));
    return 0;
}
