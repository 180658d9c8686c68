#include "CGameComparison.h"

#include <algorithm>

QString CGameComparison::Entry::StatusName(EntryStatus status)
{
    switch (status) {
    case EntryStatus::Changed:
        return QStringLiteral("changed");
    case EntryStatus::Added:
        return QStringLiteral("added");
    case EntryStatus::Removed:
        return QStringLiteral("removed");
    case EntryStatus::Same:
        break;
    }
    return QStringLiteral("same");
}

int CGameComparison::ChangedCount() const
{
    return static_cast<int>(std::count_if(Maps.begin(), Maps.end(), [](const Entry& entry) {
        return entry.Status == Entry::EntryStatus::Changed;
    }));
}
