#pragma once

#include "core/CGui.h"
#include "core/FEditUnitNumDlg.h"
#include "core/FEditUnitTextDlg.h"
#include "core/FPopupMenu.h"
#include "core/FSplitUnitDlg.h"
#include "model/CUnit.h"

#include <QStringList>

// A popup menu that answers with a scripted key. It keeps what it was
// given ("caption|key" per entry) so tests can check the menu's make-up.
class ScriptedPopupMenu : public FPopupMenu
{
public:
    // The key to choose when shown; empty, or a key not on the menu, dismisses it.
    QString Answer;
    // Dismisses the menu while its context still names the Answer entry, as
    // a menu may that remembers the entry last under the pointer.
    bool DismissKeepingContext = false;
    QStringList Entries;
    int ShowCount = 0;

    void Clear() override
    {
        Entries.clear();
        m_selected = 0;
    }
    void Add(const QString& caption, const QString& key) override
    {
        if (Entries.size() < MaxEntries)
            Entries << caption + QLatin1Char('|') + key;
    }
    void Show() override
    {
        ++ShowCount;
        m_selected = 0;
        for (qsizetype i = 0; i < Entries.size() && !Answer.isEmpty(); ++i) {
            if (Entries.at(i).section(QLatin1Char('|'), 1) == Answer)
                m_selected = static_cast<std::int32_t>(i + 1);
        }
    }
    std::int32_t SelectedItem() const override { return DismissKeepingContext ? 0 : m_selected; }
    QString SelectedItemContext() const override
    {
        return m_selected > 0 ? Entries.at(m_selected - 1).section(QLatin1Char('|'), 1) : QString();
    }
    // The captions alone, in order.
    QStringList Captions() const
    {
        QStringList captions;
        for (const QString& entry : Entries)
            captions << entry.section(QLatin1Char('|'), 0, 0);
        return captions;
    }

private:
    std::int32_t m_selected = 0;
};

// Answers every Display with Confirm and the scripted value, and records
// what it was shown ("unitId lower..upper").
class ScriptedNumDlg : public FEditUnitNumDlg
{
public:
    bool Confirm = true;
    std::int32_t Answer = 0;
    QStringList Shown;

    bool Display(const std::shared_ptr<CUnit>& unit, std::int32_t lower,
                 std::int32_t upper) override
    {
        Shown << QStringLiteral("%1 %2..%3").arg(unit->Id()).arg(lower).arg(upper);
        return Confirm;
    }
    std::int32_t Value() const override { return Answer; }
};

class ScriptedTextDlg : public FEditUnitTextDlg
{
public:
    bool Confirm = true;
    QString AnswerText;
    QString AnswerExtended;
    QStringList Shown;

    bool Display(const std::shared_ptr<CUnit>& unit) override
    {
        Shown << unit->Id();
        return Confirm;
    }
    QString Text() const override { return AnswerText; }
    QString Extended() const override { return AnswerExtended; }
};

class ScriptedSplitDlg : public FSplitUnitDlg
{
public:
    bool Confirm = true;
    std::int32_t Answer = 1;
    QStringList Shown;

    bool Display(const std::shared_ptr<CUnit>& unit) override
    {
        Shown << unit->Id();
        return Confirm;
    }
    std::int32_t Value() const override { return Answer; }
};

// A GUI without windows whose menu and unit dialogs are scripted.
class ScriptedGui : public CGui
{
public:
    ScriptedPopupMenu Popup;
    ScriptedNumDlg NumDlg;
    ScriptedTextDlg TextDlg;
    ScriptedSplitDlg SplitDlg;

    FMainMdi* MainMdi() override { return nullptr; }
    FPopupMenu* PopupMenu() override { return &Popup; }
    FEditUnitNumDlg* EditUnitNumDlg() override { return &NumDlg; }
    FEditUnitTextDlg* EditUnitTextDlg() override { return &TextDlg; }
    FSplitUnitDlg* SplitUnitDlg() override { return &SplitDlg; }
};
