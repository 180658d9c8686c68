#include "CModulePacker.h"

#include "CPictureDrawer.h"
#include "CSetupFile.h"

#include "contexts/CContextMgr.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileWriter.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"

#include "persist/CGameFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cstdio>

namespace {

[[noreturn]] void fail(const QString& text)
{
    throw KorvaneError(5, QStringLiteral("CModulePacker"), text);
}

QString readText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(QStringLiteral("Cannot read ") + path + QStringLiteral(": ") + file.errorString());
    return QString::fromUtf8(file.readAll());
}

// Points KORVANE_HOME somewhere else for as long as it lives.
class HomeOverride
{
public:
    explicit HomeOverride(const QString& home)
        : m_previous(qgetenv("KORVANE_HOME")), m_hadHome(qEnvironmentVariableIsSet("KORVANE_HOME"))
    {
        qputenv("KORVANE_HOME", home.toLocal8Bit());
    }
    ~HomeOverride()
    {
        if (m_hadHome)
            qputenv("KORVANE_HOME", m_previous);
        else
            qunsetenv("KORVANE_HOME");
    }
    HomeOverride(const HomeOverride&) = delete;
    HomeOverride& operator=(const HomeOverride&) = delete;

private:
    QByteArray m_previous;
    bool m_hadHome;
};

// Installs a root of its own and releases it, whatever happens.
class RootScope
{
public:
    RootScope()
    {
        auto root = std::make_shared<CKorvane>();
        InstallRoot(root);
        root->Constructor(nullptr);
    }
    ~RootScope() { ReleaseRoot(); }
    RootScope(const RootScope&) = delete;
    RootScope& operator=(const RootScope&) = delete;
};

// The initial game's file image, built against the pack written so far.
QByteArray initialGame(const CResFileWriter& writer, const QString& packName,
                       const CSetupFile& setup)
{
    QTemporaryDir home;
    if (!home.isValid())
        fail(QStringLiteral("Cannot create a temporary directory"));
    const HomeOverride override(home.path());
    QDir().mkpath(home.filePath(QStringLiteral("modules")));
    writer.Write(home.filePath(QStringLiteral("modules/") + packName));

    const RootScope scope;
    CKorvane& root = Root();
    if (root.ContextMgr().ContextCount() != 1)
        fail(QStringLiteral("The module is not found when installed"));
    const std::shared_ptr<IGameContext> context = root.ContextMgr().Context(1);
    root.SetContext(context);
    context->Activate(nullptr);
    const std::shared_ptr<CGame> game = setup.BuildGame(*context);
    const QByteArray bytes =
        CGameFile::ToBytes(*game, CContextMgr::TranslateInternalId(context->Id()));

    // Read it back as the program will.
    QString error;
    const std::shared_ptr<CGame> check = CGameFile::FromBytes(bytes, &error);
    if (!check)
        fail(QStringLiteral("The initial game does not read back: ") + error);
    const std::shared_ptr<CMap> map = check->ActiveMapGroup()->ActiveMap();
    if (!map || !map->Units() ||
        map->Units()->Count() != static_cast<std::int32_t>(setup.Units().size()))
        fail(QStringLiteral("The initial game does not read back with all its units"));
    root.SetContext(nullptr);
    context->Deactivate();
    return bytes;
}

} // namespace

void CModulePacker::Pack(const QString& folder, const QString& outputPath)
{
    const QDir source(folder);
    const QString definitionPath = source.filePath(QStringLiteral("module.def"));
    CModuleDefinition definition;
    if (!definition.LoadHeader(definitionPath) || !definition.LoadBody())
        fail(definitionPath + QStringLiteral(": ") + definition.LastError());

    CResFileWriter writer;
    QString definitionText = readText(definitionPath);
    writer.AddEntry(QStringLiteral("module.def"), definitionText.toUtf8());

    const QString pictures = source.filePath(QStringLiteral("pictures.txt"));
    if (QFileInfo::exists(pictures)) {
        const CPictureDrawer drawer(folder);
        const QStringList lines = readText(pictures).split(QLatin1Char('\n'));
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString line = lines[i].trimmed();
            if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
                continue;
            QString entry;
            const QByteArray bytes = drawer.Draw(line, static_cast<int>(i + 1), entry);
            writer.AddEntry(entry, bytes);
        }
    }
    const QStringList files = source.entryList({QStringLiteral("*.png"), QStringLiteral("*.bmp"),
                                                QStringLiteral("*.jpg"), QStringLiteral("*.gif")},
                                               QDir::Files, QDir::Name);
    for (const QString& file : files)
        writer.AddFile(file, source.filePath(file));

    const QString initialName = definition.InitialGameFile();
    const QString setupPath = source.filePath(QStringLiteral("setup.txt"));
    if (!initialName.isEmpty()) {
        if (!QFileInfo::exists(setupPath))
            fail(folder + QStringLiteral(" names the initial game ") + initialName +
                 QStringLiteral(" but has no setup.txt"));
        const CSetupFile setup = CSetupFile::Parse(readText(setupPath));
        writer.AddEntry(initialName, initialGame(writer, QFileInfo(outputPath).fileName(), setup));
    }

    QDir().mkpath(QFileInfo(outputPath).absolutePath());
    writer.Write(outputPath);
}
