#include "CContextMgr.h"

#include "contexts/CAaGame.h"
#include "contexts/CAaeGame.h"
#include "contexts/CAapGame.h"
#include "contexts/CChessGame.h"
#include "contexts/CEastWestGame.h"
#include "contexts/CGreatWarGame.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CSquaresGame.h"
#include "contexts/CStandardGame.h"
#include "contexts/CUserDefinedGame.h"
#include "core/CString.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/IProgressMonitor.h"

#include <QFileInfo>

#include <array>
#include <exception>

namespace {

struct FixedContext
{
    const char* ShortCode;
    const char* Id;
};

// The old three-letter codes of game files and the ids they stand for, in
// the order the translations test them.
constexpr std::array<FixedContext, 7> shortCodes{{
    {"AAA", "krm_axis_and_allies_for_aaqt_v1"},
    {"AAE", "krm_a_and_a_europe_for_aaeqt_v1"},
    {"AAP", "krm_a_and_a_pacific_for_aapqt_doi_v2"},
    {"EAW", "krm_east_and_west_by_impgames_v4"},
    {"KRC", "krm_chess_by_tavrelstudio_v1"},
    {"TGW", "krm_the_great_war_by_impgames_v2"},
    {"SQU", "krm_squares_by_qxpl_v1"},
}};

template <typename Context> std::shared_ptr<CStandardGame> make()
{
    return std::make_shared<Context>();
}

struct FixedFile
{
    const char* FileName;
    std::shared_ptr<CStandardGame> (*Create)();
};

// The module file names the fixed classes serve, in the order they are tried.
constexpr std::array<FixedFile, 7> fixedFiles{{
    {"aaav2a.krm", &make<CAaGame>},
    {"aaev1.krm", &make<CAaeGame>},
    {"aapv2.krm", &make<CAapGame>},
    {"eawv4.krm", &make<CEastWestGame>},
    {"krcv1a.krm", &make<CChessGame>},
    {"squv1.krm", &make<CSquaresGame>},
    {"tgwv2.krm", &make<CGreatWarGame>},
}};

void report(IProgressMonitor* progress, const QString& text, float seconds)
{
    if (progress)
        progress->UpdateStatus(text, seconds);
}

} // namespace

CContextMgr::~CContextMgr()
{
    Dispose();
}

QString CContextMgr::TranslateExternalId(const QString& id)
{
    for (const FixedContext& row : shortCodes) {
        if (id == QLatin1String(row.ShortCode))
            return QLatin1String(row.Id);
    }
    return id;
}

QString CContextMgr::TranslateInternalId(const QString& id)
{
    for (const FixedContext& row : shortCodes) {
        if (id == QLatin1String(row.Id))
            return QLatin1String(row.ShortCode);
    }
    return id;
}

std::shared_ptr<CStandardGame> CContextMgr::CreateFixedContext(const QString& fileName)
{
    const QString name = fileName.toLower();
    for (const FixedFile& row : fixedFiles) {
        if (name == QLatin1String(row.FileName))
            return row.Create();
    }
    return nullptr;
}

std::shared_ptr<IGameContext> CContextMgr::Context(std::int32_t position) const
{
    return m_contexts.Item(position)->Context();
}

std::int32_t CContextMgr::PosOfContext(const QString& id) const
{
    return CUtility::SearchById(m_contexts, id);
}

void CContextMgr::Constructor(IProgressMonitor* progress)
{
    CTraceScope scope("Constructor", "CContextMgr");
    report(progress, tr("Searching for Games..."), 0.2f);

    CVector<CGameCtxInfo> modules;
    CVector<CGameCtxInfo> userModules;
    // The user's module folder comes first, so their copy of a module wins.
    for (const QString& directory : CUtility::GetModuleDirs())
        discover(directory, QStringLiteral("*.krm"), Kind::Module, modules, progress);
    discover(CUtility::GetUserModuleDir(), QStringLiteral("*.udm"), Kind::UserModule, userModules,
             progress);
    CUtility::SortByName(modules);
    CUtility::SortByName(userModules);

    // Modules always come before user modules, each part in name order.
    m_contexts.Clear();
    for (const auto& info : modules)
        m_contexts.AddItem(info);
    for (const auto& info : userModules)
        m_contexts.AddItem(info);
    scope.Denote(QString::number(m_contexts.Count()) + QStringLiteral(" contexts"));
}

void CContextMgr::discover(const QString& directory, const QString& pattern, Kind kind,
                           CVector<CGameCtxInfo>& found, IProgressMonitor* progress) const
{
    const CVector<CString> files = CUtility::GetDirListing(directory + pattern);
    for (const auto& file : files) {
        const QString& fileName = file->Value();
        std::shared_ptr<CGameCtxInfo> info;
        std::shared_ptr<CResFileMgr> resFile;
        try {
            resFile = std::make_shared<CResFileMgr>(directory, fileName);
            // A built-in game is listed by its file name alone; a damaged pack
            // of one fails when it is activated. Any other pack must be read.
            if (kind == Kind::Module)
                info = loadFixed(resFile);
            if (!info && resFile->IsOpen())
                info = loadStandard(resFile, kind);
        } catch (const std::exception& error) {
            // A hostile pack must not stop the program from starting.
            CTraceScope scope("Constructor", "CContextMgr");
            scope.Denote(fileName + QStringLiteral(" skipped: ") +
                         QString::fromLocal8Bit(error.what()));
            if (resFile)
                resFile->RemoveCachedFiles();
            info.reset();
        }
        if (!info)
            continue;
        if (CUtility::SearchById(found, info->Id()) != 0) {
            // The first file with this id wins; the later one leaves nothing behind.
            info->Context()->Dispose();
            continue;
        }
        found.AddItem(info);
        report(progress, tr("Module '%1' was loaded...").arg(info->Context()->Caption()), 0.1f);
    }
}

std::shared_ptr<CGameCtxInfo>
CContextMgr::loadFixed(const std::shared_ptr<CResFileMgr>& resFile) const
{
    std::shared_ptr<CStandardGame> context = CreateFixedContext(resFile->FileName());
    if (!context)
        return nullptr;
    auto info = std::make_shared<CGameCtxInfo>();
    info->SetResFile(resFile);
    info->SetFileName(resFile->FileName());
    info->SetDirectory(resFile->Directory());
    info->SetContext(context);
    context->Initialize(nullptr, resFile);
    info->SetName(context->Caption());
    info->SetId(context->Id());
    info->SetShortCode(TranslateInternalId(context->Id()));
    return info;
}

std::shared_ptr<CGameCtxInfo> CContextMgr::loadStandard(const std::shared_ptr<CResFileMgr>& resFile,
                                                        Kind kind) const
{
    auto info = std::make_shared<CGameCtxInfo>();
    info->SetResFile(resFile);
    info->SetFileName(resFile->FileName());
    info->SetDirectory(resFile->Directory());

    auto definition = std::make_shared<CModuleDefinition>();
    const auto origin = kind == Kind::Module ? CModuleDefinition::Origin::Module
                                             : CModuleDefinition::Origin::UserModule;
    QString loadedFrom;
    const bool loaded =
        resFile->UnpackAndUse(QStringLiteral("module.def"), [&](const QString& path) {
            loadedFrom = path;
            return definition->LoadHeader(path, origin);
        });
    if (!loaded || !definition->IsKrm()) {
        resFile->RemoveCachedFiles();
        return nullptr;
    }
    const QFileInfo unpacked(loadedFrom);
    info->SetDefinitionFile(unpacked.fileName());
    info->SetCacheDirectory(CUtility::GetCacheDir());
    info->SetDefinition(definition);

    std::shared_ptr<CStandardGame> context;
    if (kind == Kind::Module)
        context = std::make_shared<CStandardGame>();
    else
        context = std::make_shared<CUserDefinedGame>();
    info->SetContext(context);
    context->Initialize(definition, resFile);
    info->SetId(definition->Id());
    info->SetName(definition->Title());
    return info;
}

void CContextMgr::Dispose()
{
    if (m_contexts.Count() == 0)
        return;
    CTraceScope scope("Dispose", "CContextMgr");
    for (const auto& info : m_contexts) {
        if (info->Context())
            info->Context()->Dispose();
    }
    m_contexts.Clear();
}
