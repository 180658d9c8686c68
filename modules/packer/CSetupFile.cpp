#include "CSetupFile.h"

#include "contexts/IGameContext.h"
#include "core/CUtility.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

namespace {

[[noreturn]] void fail(int line, const QString& text)
{
    throw KorvaneError(5, QStringLiteral("CSetupFile"),
                       QStringLiteral("setup.txt line ") + QString::number(line) +
                           QStringLiteral(": ") + text);
}

std::int32_t coordinate(const QString& text, int line)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok || value < 0 || value > 32767)
        fail(line, QStringLiteral("'") + text + QStringLiteral("' is no position"));
    return value;
}

} // namespace

CSetupFile CSetupFile::Parse(const QString& text)
{
    CSetupFile setup;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const int number = static_cast<int>(i + 1);
        const QString line = lines[i].trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals > 0 && !line.left(equals).contains(QLatin1Char(';'))) {
            const QString key = line.left(equals).trimmed();
            const QString value = line.mid(equals + 1).trimmed();
            if (key == QLatin1String("game"))
                setup.m_gameName = value;
            else if (key == QLatin1String("map"))
                setup.m_mapName = value;
            else
                fail(number, QStringLiteral("unknown setting '") + key + QLatin1Char('\''));
            continue;
        }
        const QStringList fields = line.split(QLatin1Char(';'));
        if (fields.size() != 5)
            fail(number, QStringLiteral("expected: token id; x; y; caption; data"));
        Unit unit;
        unit.TokenId = fields[0].trimmed();
        unit.X = coordinate(fields[1].trimmed(), number);
        unit.Y = coordinate(fields[2].trimmed(), number);
        unit.Caption = fields[3].trimmed();
        unit.Data = fields[4].trimmed();
        unit.Line = number;
        if (unit.TokenId.isEmpty())
            fail(number, QStringLiteral("the token id is missing"));
        setup.m_units.push_back(unit);
    }
    return setup;
}

std::shared_ptr<CGame> CSetupFile::BuildGame(const IGameContext& context) const
{
    auto game = std::make_shared<CGame>(CUtility::GenerateId());
    game->SetName(m_gameName);
    auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group->Id());
    map->SetName(m_mapName);
    group->Maps().AddItem(map);
    game->MapGroups().AddItem(group);
    // The active map is locked, so its units are reachable.
    game->SwitchTo(group);

    const CVector<IToken>& tokens = context.Tokens();
    for (const Unit& placed : m_units) {
        const std::int32_t position = CUtility::SearchById(tokens, placed.TokenId);
        if (position == 0)
            fail(placed.Line,
                 QStringLiteral("the module has no token '") + placed.TokenId + QLatin1Char('\''));
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), tokens.Item(position));
        unit->SetX(placed.X);
        unit->SetY(placed.Y);
        unit->SetCaption(placed.Caption);
        unit->SetData(placed.Data);
        map->Units()->AddItem(unit);
    }
    return game;
}
