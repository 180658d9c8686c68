#pragma once

#include "core/CGui.h"
#include "core/FEditUnitNumDlg.h"
#include "core/FEditUnitTextDlg.h"
#include "core/FPopupMenu.h"
#include "core/FSplitUnitDlg.h"
#include "model/CUnit.h"

#include <QStringList>

// A popup menu that chooses the entry with the scripted key and keeps what
// it was given ("caption|key" per entry).
class ScriptedPopupMenu : public FPopupMenu
{
public:
    // Empty, or a key not on the menu, dismisses it.
    QString Answer;
    // Dismisses the menu while its context still names the Answer entry, as
    // a menu may that remembers the entry last under the pointer.
    bool DismissKeepingContext = false;
    QStringList Entries;
    int ShowCount = 0;

    void Clear() override { Entries.clear(); }
    void Add(const QString& caption, const QString& key) override
    {
        if (Entries.size() < MaxEntries)
            Entries << caption + QLatin1Char('|') + key;
    }
    void Show() override
    {
        ++ShowCount;
        m_selected = 0;
        for (qsizetype i = 0; i < Entries.size() && !Answer.isEmpty() && m_selected == 0; ++i) {
            if (Entries[i].section(QLatin1Char('|'), 1) == Answer)
                m_selected = static_cast<std::int32_t>(i + 1);
        }
    }
    std::int32_t SelectedItem() const override { return DismissKeepingContext ? 0 : m_selected; }
    QString SelectedItemContext() const override { return m_selected > 0 ? Answer : QString(); }

private:
    std::int32_t m_selected = 0;
};

// The three unit dialogs in one: every Display answers Confirm, and records
// "unitId" or "unitId lower..upper".
class ScriptedDialogs : public FEditUnitNumDlg, public FEditUnitTextDlg, public FSplitUnitDlg
{
public:
    bool Confirm = true;
    std::int32_t Number = 1;
    QString AnswerText;
    QString AnswerExtended;
    QStringList Shown;

    bool Display(const std::shared_ptr<CUnit>& unit, std::int32_t lower,
                 std::int32_t upper) override
    {
        Shown << QStringLiteral("%1 %2..%3").arg(unit->Id()).arg(lower).arg(upper);
        return Confirm;
    }
    bool Display(const std::shared_ptr<CUnit>& unit) override
    {
        Shown << unit->Id();
        return Confirm;
    }
    std::int32_t Value() const override { return Number; }
    QString Text() const override { return AnswerText; }
    QString Extended() const override { return AnswerExtended; }
};

// A GUI without windows whose menu and unit dialogs are scripted.
class ScriptedGui : public CGui
{
public:
    ScriptedPopupMenu Popup;
    ScriptedDialogs Dialogs;

    FMainMdi* MainMdi() override { return nullptr; }
    FPopupMenu* PopupMenu() override { return &Popup; }
    FEditUnitNumDlg* EditUnitNumDlg() override { return &Dialogs; }
    FEditUnitTextDlg* EditUnitTextDlg() override { return &Dialogs; }
    FSplitUnitDlg* SplitUnitDlg() override { return &Dialogs; }
};
