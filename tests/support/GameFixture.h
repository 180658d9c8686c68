#pragma once

#include "actions/CActionMgr.h"
#include "model/CGameEventMgr.h"
#include "model/ModelTestSupport.h"
#include "support/EventLog.h"
#include "support/ScriptedGui.h"

// The model fixture's root and context (800 x 600, tokens INF, TANK, ARROW,
// MARK, NEINF, plus the text token NOTE) with a scripted GUI and an open
// game of one group holding "Turn 1" and "Turn 2" (shown). Every
// announcement lands in events.
class GameFixture : public ModelFixture
{
protected:
    void SetUp() override
    {
        ModelFixture::SetUp();
        context->AddToken(QStringLiteral("CTextToken"), QStringLiteral("NOTE"));
        game = std::make_shared<CGame>(CUtility::GenerateId());
        group = std::make_shared<CMapGroup>(CUtility::GenerateId());
        game->MapGroups().AddItem(group);
        first = AddMap(*group, QStringLiteral("Turn 1"));
        second = AddMap(*group, QStringLiteral("Turn 2"));
        game->SwitchTo(group);
        Root().SetGame(game);
        events = std::make_shared<EventLog>();
        Root().EventMgr().Register(events);
    }

    std::unique_ptr<CGui> MakeGui() override
    {
        auto scripted = std::make_unique<ScriptedGui>();
        gui = scripted.get();
        return scripted;
    }

    std::shared_ptr<CMap> board() const { return game->ActiveMapGroup()->ActiveMap(); }
    CActionMgr& mgr() const { return Root().ActionMgr(); }
    std::int16_t dirty() const { return game->Dirty(); }

    // A unit put straight into the model of the board, captioned "x" + data.
    std::shared_ptr<CUnit> put(const QString& tokenId, std::int32_t x, std::int32_t y,
                               const QString& data = QString(), bool moved = false) const
    {
        return AddUnit(*board(), tokenId, x, y, QStringLiteral("x") + data, data, moved);
    }

    // The board's last unit.
    std::shared_ptr<CUnit> lastUnit() const
    {
        return board()->Units()->Item(board()->Units()->Count());
    }

    // Right-clicks the unit and picks the entry with this key (empty dismisses the menu).
    void choose(const std::shared_ptr<CUnit>& unit, const QString& key) const
    {
        gui->Popup.Answer = key;
        unit->Token()->HandleRightClick(unit);
    }

    // The entries of the unit's menu, dismissed.
    QStringList menuOf(const std::shared_ptr<CUnit>& unit) const
    {
        choose(unit, QString());
        return gui->Popup.Entries;
    }

    static QStringList unitIds(const CMap& map)
    {
        QStringList ids;
        for (const auto& u : *map.Units())
            ids << u->Id();
        return ids;
    }

    // Every group and map of the game with its properties and contents.
    QStringList snapshot() const
    {
        QStringList lines{game->Name() + QLatin1Char('|') + game->Remarks()};
        for (const auto& g : game->MapGroups()) {
            for (const auto& m : g->Maps()) {
                lines << QStringList{g->Id(),      m->Id(),   m->Name(),
                                     m->Remarks(), m->Text(), QString::number(m->Frozen())}
                             .join(QLatin1Char('|'));
                m->AquireLock();
                lines << contents(*m);
                m->ReleaseLock();
            }
        }
        return lines;
    }

    ScriptedGui* gui = nullptr;
    std::shared_ptr<CGame> game;
    std::shared_ptr<CMapGroup> group;
    std::shared_ptr<CMap> first;
    std::shared_ptr<CMap> second;
    std::shared_ptr<EventLog> events;
};
