#pragma once

#include <QString>

#include <cstdint>

// The shared right-click menu of the main window. Entries are added in
// order; a caption of "-" is a separator line and carries no key.
class FPopupMenu
{
public:
    static constexpr std::int32_t MaxEntries = 15;

    virtual ~FPopupMenu() = default;

    // Removes every entry and forgets the last choice.
    virtual void Clear() = 0;
    // Fills the next free entry; entries past MaxEntries are ignored.
    virtual void Add(const QString& caption, const QString& key) = 0;
    // Pops the menu up at the pointer and returns when it closes.
    virtual void Show() = 0;
    // The 1-based number of the chosen entry, 0 when the menu was dismissed.
    virtual std::int32_t SelectedItem() const = 0;
    // The key given with the chosen entry.
    virtual QString SelectedItemContext() const = 0;
};
