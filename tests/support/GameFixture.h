#pragma once

#include "actions/CActionMgr.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "support/EventLog.h"
#include "support/ScriptedGui.h"
#include "support/TestContext.h"
#include "support/TestHome.h"
#include "tokens/IToken.h"

#include <QStringList>

#include <gtest/gtest.h>

// A constructed root with a scripted GUI, an 800 x 600 test context and an
// open game of one group with two maps, "Turn 1" and "Turn 2" (active).
// Tokens: INF (quantity), TANK (empty), ARROW (arrow), MARK (numeric), NOTE
// (text). Every announcement lands in events.
class GameFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        auto root = std::make_shared<CKorvane>();
        if (WantsGui()) {
            root->SetGuiFactory([this] {
                auto scripted = std::make_unique<ScriptedGui>();
                gui = scripted.get();
                return scripted;
            });
        }
        InstallRoot(root);
        root->Constructor(nullptr);

        context = std::make_shared<TestContext>();
        for (const char* kind :
             {"CQuantityToken", "CEmptyToken", "CArrowToken", "CNumericToken", "CTextToken"})
            context->AddToken(QLatin1String(kind), tokenIdOf(QLatin1String(kind)));
        root->SetContext(context);

        game = std::make_shared<CGame>(CUtility::GenerateId());
        group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        game->MapGroups().AddItem(group);
        first = addMap(*group, QStringLiteral("Turn 1"));
        second = addMap(*group, QStringLiteral("Turn 2"));
        game->SwitchTo(group);
        root->SetGame(game);

        events = std::make_shared<EventLog>();
        root->EventMgr().Register(events);
    }

    void TearDown() override { ReleaseRoot(); }

    virtual bool WantsGui() const { return true; }

    static QString tokenIdOf(const QString& kind)
    {
        if (kind == QLatin1String("CQuantityToken"))
            return QStringLiteral("INF");
        if (kind == QLatin1String("CEmptyToken"))
            return QStringLiteral("TANK");
        if (kind == QLatin1String("CArrowToken"))
            return QStringLiteral("ARROW");
        if (kind == QLatin1String("CNumericToken"))
            return QStringLiteral("MARK");
        return QStringLiteral("NOTE");
    }

    std::shared_ptr<IToken> token(const QString& id) const
    {
        return context->Tokens().Item(CUtility::SearchById(context->Tokens(), id));
    }

    static std::shared_ptr<CMap> addMap(CMapGroup& target, const QString& name)
    {
        auto map = std::make_shared<CMap>(CUtility::GenerateId(), target.Id());
        map->SetName(name);
        target.Maps().AddItem(map);
        return map;
    }

    // The map on the board.
    std::shared_ptr<CMap> board() const { return game->ActiveMapGroup()->ActiveMap(); }

    // Puts a unit straight into the model of a locked map (the active one by default).
    std::shared_ptr<CUnit> addUnit(const QString& tokenId, std::int32_t x, std::int32_t y,
                                   const QString& data = QString(), bool moved = false,
                                   std::shared_ptr<CMap> map = nullptr) const
    {
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), token(tokenId));
        unit->SetX(x);
        unit->SetY(y);
        unit->SetData(data);
        unit->SetCaption(data.isEmpty() ? QString() : QStringLiteral("x") + data);
        unit->SetHasMoved(moved);
        (map ? map : board())->Units()->AddItem(unit);
        return unit;
    }

    CActionMgr& mgr() const { return Root().ActionMgr(); }
    std::int16_t dirty() const { return game->Dirty(); }

    // "id|token|x|y|caption|data|moved" per unit, then "id|hx|hy|tx|ty|colour"
    // per arrow, in list order, of a locked map.
    static QStringList contents(const CMap& map)
    {
        const auto n = [](std::int32_t v) { return QString::number(v); };
        QStringList lines;
        for (const auto& u : *map.Units())
            lines << QStringList{u->Id(),      u->Token()->Id(), n(u->x()),       n(u->y()),
                                 u->Caption(), u->Data(),        n(u->HasMoved())}
                         .join(QLatin1Char('|'));
        for (const auto& a : *map.Arrows())
            lines << QStringList{a->Id(),       n(a->HeadX()), n(a->HeadY()),
                                 n(a->TailX()), n(a->TailY()), n(a->Color())}
                         .join(QLatin1Char('|'));
        return lines;
    }

    static QStringList unitIds(const CMap& map)
    {
        QStringList ids;
        for (const auto& u : *map.Units())
            ids << u->Id();
        return ids;
    }

    // The whole game as text: its properties, then every group and map with
    // its contents. Maps that are swapped out are read back for the look.
    QStringList snapshot() const
    {
        QStringList lines{game->Name() + QLatin1Char('|') + game->Remarks()};
        for (const auto& g : game->MapGroups()) {
            lines << QStringLiteral("group ") + g->Id();
            for (const auto& m : g->Maps()) {
                lines << QStringList{QStringLiteral("map"), m->Id(),   m->Name(),
                                     m->Remarks(),          m->Text(), QString::number(m->Frozen())}
                             .join(QLatin1Char('|'));
                m->AquireLock();
                lines << contents(*m);
                m->ReleaseLock();
            }
        }
        return lines;
    }

    TestHome home;
    ScriptedGui* gui = nullptr;
    std::shared_ptr<TestContext> context;
    std::shared_ptr<CGame> game;
    std::shared_ptr<CMapGroup> group;
    std::shared_ptr<CMap> first;
    std::shared_ptr<CMap> second;
    std::shared_ptr<EventLog> events;
};
