#include "CStandardGame.h"

#include "actions/CActToolClearArrows.h"
#include "actions/CActToolResetMoved.h"
#include "contexts/CImageList.h"
#include "contexts/CImageListMgr.h"
#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/IProgressMonitor.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "tokens/CTokenFactory.h"
#include "tokens/IToken.h"

#include "persist/CGameFile.h"

#include <limits>

namespace {

const QString definitionEntry = QStringLiteral("module.def");

void report(IProgressMonitor* progress, const QString& text, float seconds)
{
    if (progress)
        progress->UpdateStatus(text, seconds);
}

QString quoted(const QString& text)
{
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

// Makes a context the root's context for as long as it lives, then puts the
// previous one back.
class ActiveContextScope
{
public:
    explicit ActiveContextScope(std::shared_ptr<IGameContext> context)
        : m_root(Root()), m_previous(m_root.Context())
    {
        m_root.SetContext(std::move(context));
    }
    ~ActiveContextScope() { m_root.SetContext(std::move(m_previous)); }
    ActiveContextScope(const ActiveContextScope&) = delete;
    ActiveContextScope& operator=(const ActiveContextScope&) = delete;

private:
    CKorvane& m_root;
    std::shared_ptr<IGameContext> m_previous;
};

} // namespace

CStandardGame::CStandardGame() = default;

CStandardGame::~CStandardGame() = default;

QString CStandardGame::Id() const
{
    return m_id;
}

QString CStandardGame::Caption() const
{
    return m_title;
}

QImage CStandardGame::Picture() const
{
    if (!m_iconLoaded && m_resFile && ensureDefinition(false)) {
        m_iconLoaded = true;
        if (!m_definition->GameIconFile().isEmpty())
            m_icon = m_resFile->UnpackImage(m_definition->GameIconFile());
    }
    return m_icon;
}

QString CStandardGame::FontName() const
{
    return m_definition ? m_definition->FontName() : QString();
}

double CStandardGame::FontSize() const
{
    return m_definition ? m_definition->FontSize() : 0;
}

bool CStandardGame::HasTransparentLabel() const
{
    return m_definition && m_definition->HasTransparentLabels();
}

QString CStandardGame::MultiplierPrefix() const
{
    return m_definition ? m_definition->MultiplierPrefix() : QStringLiteral("x");
}

std::int32_t CStandardGame::LabelForeColor() const
{
    return m_definition ? m_definition->LabelForeColor() : CModuleDefinition::DefaultLabelForeColor;
}

std::int32_t CStandardGame::LabelBackColor() const
{
    return m_definition ? m_definition->LabelBackColor() : CModuleDefinition::DefaultLabelBackColor;
}

std::int32_t CStandardGame::LabelMovedColor() const
{
    return m_definition ? m_definition->LabelMovedColor()
                        : CModuleDefinition::DefaultLabelMovedColor;
}

QString CStandardGame::Url() const
{
    return ensureDefinition(false) ? m_definition->Url() : QString();
}

void CStandardGame::Initialize(std::shared_ptr<CModuleDefinition> definition,
                               std::shared_ptr<CResFileMgr> resFile)
{
    CTraceScope scope("Initialize", "CStandardGame");
    m_definition = std::move(definition);
    m_resFile = std::move(resFile);
    m_definitionTried = m_definition != nullptr;
    if (m_definition) {
        m_id = m_definition->Id();
        m_title = m_definition->Title();
    }
    scope.Denote(QStringLiteral("Id = ") + Id());
}

bool CStandardGame::ensureDefinition(bool raiseOnFailure) const
{
    if (!m_definition && !m_definitionTried && m_resFile) {
        m_definitionTried = true;
        auto definition = std::make_shared<CModuleDefinition>();
        const bool loaded = m_resFile->UnpackAndUse(
            definitionEntry, [&](const QString& path) { return definition->LoadHeader(path); });
        if (loaded)
            m_definition = std::move(definition);
        else
            // A definition that was never read has no error of its own.
            m_definitionError = definition->LastError().isEmpty() ? m_resFile->LastError()
                                                                  : definition->LastError();
    }
    if (!m_definition && raiseOnFailure) {
        const QString file = m_resFile ? m_resFile->FileName() : QStringLiteral("(none)");
        fail("Activate",
             tr("The module file %1 has no usable module.def: %2")
                 .arg(quoted(file),
                      m_definitionError.isEmpty() ? tr("nothing was given") : m_definitionError));
    }
    return m_definition != nullptr;
}

void CStandardGame::fail(const char* operation, const QString& description) const
{
    throw KorvaneError(ModuleErrorNumber,
                       QStringLiteral("CStandardGame.") + QLatin1String(operation), description);
}

void CStandardGame::Activate(IProgressMonitor* progress)
{
    CTraceScope scope("Activate", "CStandardGame");
    if (m_active)
        return;
    if (!m_resFile)
        fail("Activate",
             tr("The context %1 was activated before it was initialised").arg(quoted(Caption())));
    report(progress, tr("Loading the '%1' Module...").arg(Caption()), 0.2f);
    ensureDefinition(true);
    // The body is read from the cache copy, which another process on this home
    // may have removed since discovery: unpack it again when it has gone.
    if (!m_definition->BodyLoaded() &&
        !m_resFile->UnpackAndUse(definitionEntry,
                                 [&](const QString& path) { return m_definition->LoadBody(path); }))
        fail("Activate", tr("The module %1 cannot be loaded: %2")
                             .arg(quoted(Caption()), m_definition->LastError().isEmpty()
                                                         ? m_resFile->LastError()
                                                         : m_definition->LastError()));
    if (m_definition->TokenCount() > std::numeric_limits<std::int16_t>::max())
        fail("Activate",
             tr("The module %1 has more tokens than a game can keep").arg(quoted(Caption())));

    try {
        CImageListMgr& lists = Root().ImageListMgr();
        const CModuleDefinition& definition = *m_definition;
        m_palletList = lists.GetImageList(definition.MaskColor(), definition.PalletHeight(),
                                          definition.PalletWidth());
        m_dragList = lists.GetImageList(definition.MaskColor(), definition.UnitHeight(),
                                        definition.UnitWidth());
        m_unitList = lists.GetImageList(definition.MaskColor(), definition.UnitHeight(),
                                        definition.UnitWidth());

        report(progress, tr("Loading the Map..."), 0);
        m_mapPicture = m_resFile->UnpackImage(definition.MapFile());
        if (m_mapPicture.isNull())
            fail("Activate",
                 tr("The board picture %1 of the module %2 cannot be read: %3")
                     .arg(quoted(definition.MapFile()), quoted(Caption()), m_resFile->LastError()));

        m_tokens.Clear();
        m_customTools.Clear();
        buildTokens(progress);
        addCustomTools();
        m_customActions.Clear();
    } catch (...) {
        releaseActivation();
        throw;
    }
    m_pictures.clear();
    m_active = true;
    scope.Denote(QString::number(m_tokens.Count()) + QStringLiteral(" tokens"));
}

void CStandardGame::addCustomTools()
{
    // Each tool is offered only where the token kind it serves exists.
    bool hasQuantity = false;
    bool hasArrow = false;
    for (const auto& token : m_tokens) {
        hasQuantity = hasQuantity || token->Class() == QLatin1String("CQuantityToken");
        hasArrow = hasArrow || token->Class() == QLatin1String("CArrowToken");
    }
    if (hasQuantity)
        m_customTools.AddItem(std::make_shared<CActToolResetMoved>());
    if (hasArrow)
        m_customTools.AddItem(std::make_shared<CActToolClearArrows>());
}

QImage CStandardGame::picture(const QString& entryName)
{
    const QString key = entryName.toLower();
    const auto found = m_pictures.constFind(key);
    if (found != m_pictures.constEnd())
        return *found;
    QImage image = m_resFile->UnpackImage(entryName);
    m_pictures.insert(key, image);
    return image;
}

std::shared_ptr<IToken> CStandardGame::CreateToken(const CModuleDefinition::Token& record,
                                                   std::int16_t index, const QString& category,
                                                   std::int32_t unitWidth, std::int32_t unitHeight)
{
    std::shared_ptr<IToken> token = CTokenFactory::Create(
        record.Class, record.Id, index, category, record.Caption, record.Id, unitWidth, unitHeight,
        record.RegionLeft, record.RegionTop, record.RegionWidth, record.RegionHeight);
    token->SetCustom(record.CustomData);
    return token;
}

void CStandardGame::buildTokens(IProgressMonitor* progress)
{
    const CModuleDefinition& definition = *m_definition;
    const std::int32_t count = definition.TokenCount();
    const QString loading = tr("Loading Token %1 of %2...");
    for (std::int32_t i = 1; i <= count; ++i) {
        report(progress, loading.arg(i).arg(count), 0);
        CModuleDefinition::Token record;
        record.Class = definition.TokenClass(i);
        record.Id = definition.TokenId(i);
        record.Caption = definition.TokenCaption(i);
        record.CustomData = definition.TokenCustomData(i);
        record.RegionLeft = definition.TokenRegionLeft(i);
        record.RegionTop = definition.TokenRegionTop(i);
        record.RegionWidth = definition.TokenRegionWidth(i);
        record.RegionHeight = definition.TokenRegionHeight(i);
        m_tokens.AddItem(CreateToken(record, static_cast<std::int16_t>(i),
                                     definition.Category(definition.TokenCategoryNum(i)),
                                     definition.UnitWidth(), definition.UnitHeight()));

        // Pictures are unpacked once per entry name, however many lists and
        // tokens use them.
        m_dragList->Add(record.Id, picture(definition.TokenDragFile(i)));
        m_palletList->Add(record.Id, picture(definition.TokenPalletFile(i)));
        m_unitList->Add(record.Id, picture(definition.TokenUnitFile(i)));
    }
}

void CStandardGame::releaseActivation()
{
    if (CKorvane* root = RootOrNull(); root && root->IsConstructed()) {
        for (const auto* list : {&m_palletList, &m_dragList, &m_unitList}) {
            if (*list)
                root->ImageListMgr().ReleaseImageList(*list);
        }
    }
    m_palletList.reset();
    m_dragList.reset();
    m_unitList.reset();
    m_mapPicture = QImage();
    m_pictures.clear();
    m_tokens.Clear();
    m_customTools.Clear();
    m_customActions.Clear();
    m_active = false;
}

void CStandardGame::Deactivate()
{
    CTraceScope scope("Deactivate", "CStandardGame");
    releaseActivation();
}

void CStandardGame::Dispose()
{
    CTraceScope scope("Dispose", "CStandardGame");
    releaseActivation();
    if (m_resFile)
        m_resFile->RemoveCachedFiles();
    m_resFile.reset();
    m_definition.reset();
    m_icon = QImage();
}

std::shared_ptr<CGame> CStandardGame::CreateDefaultGame()
{
    CTraceScope scope("CreateDefaultGame", "CStandardGame");
    if (!m_active)
        fail("CreateDefaultGame",
             tr("The module %1 must be active to create a game").arg(quoted(Caption())));
    const QString initialGame = m_definition->InitialGameFile();
    if (initialGame.isEmpty())
        return createStartGame();
    scope.Denote(QStringLiteral("Initial Game = ") + initialGame);
    return createInitialGame(initialGame);
}

std::shared_ptr<CGame> CStandardGame::createStartGame() const
{
    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group->Id());
    map->SetName(tr("Start"));
    group->Maps().AddItem(map);
    game->MapGroups().AddItem(group);
    game->SwitchTo(group);
    return game;
}

std::shared_ptr<CGame> CStandardGame::createInitialGame(const QString& entryName)
{
    const QString cannotRead = tr("The initial game %1 of the module %2 cannot be read: %3");
    QByteArray bytes;
    if (!m_resFile->ReadEntry(entryName, bytes))
        fail("CreateDefaultGame",
             cannotRead.arg(quoted(entryName), quoted(Caption()), m_resFile->LastError()));

    QString error;
    std::shared_ptr<CGame> loaded;
    {
        // Units find their tokens through the root's context.
        const ActiveContextScope active(shared_from_this());
        loaded = CGameFile::FromBytes(bytes, &error);
    }
    if (!loaded)
        fail("CreateDefaultGame", cannotRead.arg(quoted(entryName), quoted(Caption()), error));
    if (loaded->MapGroups().Count() == 0 || !loaded->ActiveMapGroup())
        fail("CreateDefaultGame", tr("The initial game %1 of the module %2 holds no map")
                                      .arg(quoted(entryName), quoted(Caption())));

    // Every new game gets an id of its own; the loaded groups move over as they are.
    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    game->SetName(loaded->Name());
    game->SetRemarks(loaded->Remarks());
    const std::shared_ptr<CMapGroup> active = loaded->ActiveMapGroup();
    for (const auto& group : loaded->MapGroups())
        game->MapGroups().AddItem(group);
    loaded->MapGroups().Clear();
    game->SwitchTo(active);
    return game;
}
