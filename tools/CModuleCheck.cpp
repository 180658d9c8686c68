#include "CModuleCheck.h"

#include "contexts/CModuleDefinition.h"
#include "contexts/CResFileMgr.h"
#include "contexts/CStandardGame.h"
#include "contexts/CUserDefinedGame.h"
#include "core/KorvaneError.h"
#include "tokens/IToken.h"

#include <QFileInfo>

namespace {

const QString definitionEntry = QStringLiteral("module.def");

QString quoted(const QString& text)
{
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace

CModuleCheck::CModuleCheck(QString path) : m_path(std::move(path))
{
    const QFileInfo info(m_path);
    m_fileName = info.fileName();
    m_userModule = info.suffix().compare(QLatin1String("udm"), Qt::CaseInsensitive) == 0;
}

CModuleCheck::~CModuleCheck()
{
    if (m_pack)
        m_pack->RemoveCachedFiles();
}

void CModuleCheck::problem(const QString& entry, const QString& text)
{
    m_problems.push_back({entry, text});
}

bool CModuleCheck::Run()
{
    m_problems.clear();
    const QFileInfo info(m_path);
    if (!info.isFile()) {
        problem(m_fileName, QStringLiteral("no such file"));
        return false;
    }
    const QString suffix = info.suffix().toLower();
    if (suffix != QLatin1String("krm") && suffix != QLatin1String("udm"))
        problem(m_fileName, QStringLiteral("the program finds only .krm modules and .udm user "
                                           "modules; this name ends in neither"));

    m_pack = std::make_shared<CResFileMgr>(info.absolutePath(), m_fileName);
    if (!m_pack->IsOpen()) {
        problem(m_fileName, m_pack->LastError());
        return false;
    }
    m_entryCount = m_pack->EntryCount();
    for (const CResFileIgnoredEntry& ignored : m_pack->IgnoredEntries())
        problem(ignored.Name, QStringLiteral("ignored: ") + ignored.Reason);
    if (!checkDefinition())
        return false;

    m_boardUsable = checkPicture(m_definition->MapFile(), QStringLiteral("the board picture"));
    if (!m_definition->GameIconFile().isEmpty())
        checkPicture(m_definition->GameIconFile(), QStringLiteral("the module's icon"));
    checkTokens();
    checkInitialGame();
    return m_problems.empty();
}

bool CModuleCheck::checkDefinition()
{
    if (m_pack->FindEntry(definitionEntry) == 0) {
        problem(definitionEntry, QStringLiteral("missing; every module needs one"));
        return false;
    }
    m_definition = std::make_shared<CModuleDefinition>();
    const auto origin =
        m_userModule ? CModuleDefinition::Origin::UserModule : CModuleDefinition::Origin::Module;
    const auto load = [&](const QString& path) {
        if (!m_definition->LoadHeader(path, origin))
            return false;
        m_id = m_definition->Id();
        m_title = m_definition->Title();
        return m_definition->LoadBody();
    };
    if (!m_pack->UnpackAndUse(definitionEntry, load)) {
        // A definition that was never read has no error of its own.
        problem(definitionEntry, m_definition->LastError().isEmpty() ? m_pack->LastError()
                                                                     : m_definition->LastError());
        return false;
    }
    m_categoryCount = m_definition->CategoryCount();
    m_tokenCount = m_definition->TokenCount();
    return true;
}

bool CModuleCheck::checkPicture(const QString& entry, const QString& use)
{
    if (entry.isEmpty()) {
        problem(definitionEntry, QStringLiteral("names no picture for ") + use);
        return false;
    }
    const QString key = entry.toLower();
    if (m_checkedPictures.contains(key))
        return true;
    m_checkedPictures.insert(key);
    if (m_pack->FindEntry(entry) == 0) {
        problem(entry, QStringLiteral("missing from the pack (") + use + QLatin1Char(')'));
        return false;
    }
    if (m_pack->UnpackImage(entry).isNull()) {
        problem(entry, QStringLiteral("not a picture the program can read (") + use +
                           QStringLiteral("): ") + m_pack->LastError());
        return false;
    }
    return true;
}

void CModuleCheck::checkTokens()
{
    const CModuleDefinition& definition = *m_definition;
    for (std::int32_t i = 1; i <= definition.TokenCount(); ++i) {
        const QString which = QStringLiteral("token ") + quoted(definition.TokenId(i));
        checkPicture(definition.TokenPalletFile(i), QStringLiteral("palette picture of ") + which);
        checkPicture(definition.TokenDragFile(i), QStringLiteral("drag picture of ") + which);
        checkPicture(definition.TokenUnitFile(i), QStringLiteral("map picture of ") + which);

        CModuleDefinition::Token record;
        record.Class = definition.TokenClass(i);
        record.Id = definition.TokenId(i);
        record.RegionLeft = definition.TokenRegionLeft(i);
        record.RegionTop = definition.TokenRegionTop(i);
        record.RegionWidth = definition.TokenRegionWidth(i);
        record.RegionHeight = definition.TokenRegionHeight(i);
        const std::shared_ptr<IToken> token =
            CStandardGame::CreateToken(record, static_cast<std::int16_t>(i), QString(),
                                       definition.UnitWidth(), definition.UnitHeight());
        const bool inside = token->RegionLeft() >= 0 && token->RegionTop() >= 0 &&
                            token->RegionWidth() > 0 && token->RegionHeight() > 0 &&
                            token->RegionLeft() + token->RegionWidth() <= token->ImageWidth() &&
                            token->RegionTop() + token->RegionHeight() <= token->ImageHeight();
        if (!inside)
            problem(definitionEntry,
                    which + QStringLiteral(": its click region (%1, %2, %3 x %4) does not lie "
                                           "inside its %5 x %6 map picture")
                                .arg(token->RegionLeft())
                                .arg(token->RegionTop())
                                .arg(token->RegionWidth())
                                .arg(token->RegionHeight())
                                .arg(token->ImageWidth())
                                .arg(token->ImageHeight()));
    }
}

void CModuleCheck::checkInitialGame()
{
    const QString entry = m_definition->InitialGameFile();
    if (entry.isEmpty())
        return;
    if (m_pack->FindEntry(entry) == 0) {
        problem(entry, QStringLiteral("missing from the pack (the initial game)"));
        return;
    }
    // Reading the game needs the module active, which needs its board.
    if (!m_boardUsable)
        return;
    std::shared_ptr<CStandardGame> context;
    if (m_userModule)
        context = std::make_shared<CUserDefinedGame>();
    else
        context = std::make_shared<CStandardGame>();
    context->Initialize(m_definition, m_pack);
    try {
        context->Activate(nullptr);
        context->CreateDefaultGame();
    } catch (const KorvaneError& error) {
        problem(entry, error.Description());
    }
    context->Dispose();
}
