#pragma once

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "model/IGameEventListener.h"

#include <QAction>
#include <QObject>
#include <QString>

#include <functional>
#include <span>

class QMenu;

// A top-level menu of the main window and the object that answers it: it
// writes its captions, refreshes them when the menu opens and turns clicks
// into commands.
//
// How a menu follows the model: it listens to the event hub itself. Any
// change refreshes its captions and enabled items soon after (once for a
// burst of changes), so the shortcuts act on the state that is shown, not
// on the state when the menu was last opened. The objects a menu works on
// besides the root's services (the board, the map text window) are given
// to its constructor.
class CMenuHandler : public QObject, public IGameEventListener
{
    Q_OBJECT

public:
    CMenuHandler(QMenu* menu, const QString& name, const QString& caption);

    QMenu* Menu() const { return m_menu; }
    // Brings captions and enabled items up to date, as opening the menu does.
    void RefreshNow();

    void NotifyOfArrowAdd(const QString&) final { refreshSoon(); }
    void NotifyOfArrowDelete(const QString&) final { refreshSoon(); }
    void NotifyOfArrowEdit(const QString&) final { refreshSoon(); }
    void NotifyOfGameEdit() final { refreshSoon(); }
    void NotifyOfGroupAdd(const QString&) final { refreshSoon(); }
    void NotifyOfGroupDelete(const QString&) final { refreshSoon(); }
    void NotifyOfGroupSwitch(const QString&, const QString&) final { refreshSoon(); }
    void NotifyOfMapAdd(const QString&) final { refreshSoon(); }
    void NotifyOfMapDelete(const QString&) final { refreshSoon(); }
    void NotifyOfMapEdit(const QString&) final { refreshSoon(); }
    void NotifyOfMapSwitch(const QString&, const QString&) final { refreshSoon(); }
    void NotifyOfNewContext() final;
    void NotifyOfNewGame() final;
    void NotifyOfUnitAdd(const QString&) final { refreshSoon(); }
    void NotifyOfUnitDelete(const QString&) final { refreshSoon(); }
    void NotifyOfUnitEdit(const QString&) final { refreshSoon(); }

protected:
    // Called each time the menu is about to open, and soon after a change.
    virtual void Refresh() {}
    // Called at once when another module or game comes.
    virtual void ModuleChanged() {}

    // Appends an item named name (its object name, so tests find it) that
    // runs onClick; a failure inside the command is reported, not thrown into
    // the event loop.
    QAction* AddItem(const QString& name, const QString& caption, std::function<void()> onClick);
    QAction* AddSeparator(const QString& name);
    // Appends the hidden items that show the module's own commands, named
    // prefix1, prefix2, ...; clicking item i (from 0) runs run(i).
    void AddModuleItems(std::span<QAction*> items, const QString& prefix,
                        const std::function<void(int)>& run);
    // Enables the module's items while its commands are usable.
    static void EnableModuleItems(std::span<QAction* const> items);
    // The active context's list of commands (List is CustomActions or
    // CustomTools); null without a context.
    template <auto List> static auto ModuleEntries()
    {
        const std::shared_ptr<IGameContext>& context = Root().Context();
        return context ? &((*context).*List)() : nullptr;
    }
    // Entry index (from 0) of entries when a module command may run now and
    // the entry exists; null otherwise.
    template <typename Entries> static auto ModuleEntry(const Entries* entries, int index)
    {
        using Entry = std::decay_t<decltype(entries->Item(1))>;
        if (!entries || !ModuleCommandsUsable() || index >= entries->Count())
            return Entry();
        return entries->Item(index + 1);
    }
    // The module's own commands: item n shows entry n of entries (the
    // context's actions or tools, null when there is no context) and the
    // items past the last entry are hidden.
    template <typename Entries>
    static void ShowEntries(std::span<QAction* const> items, const Entries* entries)
    {
        const int count = entries ? entries->Count() : 0;
        for (int i = 0; i < static_cast<int>(items.size()); ++i) {
            items[i]->setVisible(i < count);
            items[i]->setText(i < count ? entries->Item(i + 1)->Caption() : QString());
        }
    }
    // Whether a command of the module may run: a game is open and its shown
    // map may be changed.
    static bool ModuleCommandsUsable();
    // Sets an item's caption and whether it can be chosen.
    static void SetCaption(QAction* item, const QString& caption, bool enabled);

private:
    void refreshSoon();

    QMenu* m_menu;
    bool m_refreshDue = false;
};
