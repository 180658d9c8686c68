#include "CMapComparison.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("CMapComparison", text);
}

// English needs only one and many; the two texts let a translator word both.
void addCount(QStringList& parts, int count, const char* one, const char* many)
{
    if (count == 1)
        parts << tr(one);
    else if (count > 1)
        parts << tr(many).arg(count);
}

} // namespace

QString CMapComparison::Summary() const
{
    QStringList parts;
    if (Count.Moved > 0)
        parts << tr("%1 moved").arg(Count.Moved);
    if (Count.Added > 0)
        parts << tr("%1 added").arg(Count.Added);
    if (Count.Removed > 0)
        parts << tr("%1 removed").arg(Count.Removed);
    if (Count.Changed > 0)
        parts << tr("%1 changed").arg(Count.Changed);
    addCount(parts, Count.ArrowsMoved, "1 arrow moved", "%1 arrows moved");
    addCount(parts, Count.ArrowsAdded, "1 arrow added", "%1 arrows added");
    addCount(parts, Count.ArrowsRemoved, "1 arrow removed", "%1 arrows removed");
    if (TextChanged)
        parts << tr("text changed");
    if (parts.isEmpty())
        return NameChanged ? tr("name changed") : tr("No changes");
    return parts.join(tr(", "));
}

QStringList CMapComparison::Lines(bool withName) const
{
    QStringList lines;
    lines.reserve(static_cast<qsizetype>(Changes.size()) + 2);
    for (const CMapChange& change : Changes)
        lines << change.Words();
    if (withName && NameChanged)
        lines << tr("Map name changed from \"%1\" to \"%2\"").arg(NameBefore, NameAfter);
    if (TextChanged)
        lines << tr("Map text changed");
    return lines;
}
