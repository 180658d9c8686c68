#include "CMapComparison.h"

#include <QCoreApplication>

namespace {

// English needs only one and many; the two texts let a translator word both.
void addCount(QStringList& parts, int count, const char* one, const char* many)
{
    if (count == 1)
        parts << QCoreApplication::translate("CMapComparison", one);
    else if (count > 1)
        parts << QCoreApplication::translate("CMapComparison", many).arg(count);
}

} // namespace

QString CMapComparison::Summary() const
{
    QStringList parts;
    if (Count.Moved > 0)
        parts << QCoreApplication::translate("CMapComparison", "%n moved", nullptr, Count.Moved);
    if (Count.Added > 0)
        parts << QCoreApplication::translate("CMapComparison", "%n added", nullptr, Count.Added);
    if (Count.Removed > 0)
        parts << QCoreApplication::translate("CMapComparison", "%n removed", nullptr,
                                             Count.Removed);
    if (Count.Changed > 0)
        parts << QCoreApplication::translate("CMapComparison", "%n changed", nullptr,
                                             Count.Changed);
    addCount(parts, Count.ArrowsMoved, QT_TRANSLATE_NOOP("CMapComparison", "1 arrow moved"),
             QT_TRANSLATE_NOOP("CMapComparison", "%1 arrows moved"));
    addCount(parts, Count.ArrowsAdded, QT_TRANSLATE_NOOP("CMapComparison", "1 arrow added"),
             QT_TRANSLATE_NOOP("CMapComparison", "%1 arrows added"));
    addCount(parts, Count.ArrowsRemoved, QT_TRANSLATE_NOOP("CMapComparison", "1 arrow removed"),
             QT_TRANSLATE_NOOP("CMapComparison", "%1 arrows removed"));
    if (TextChanged)
        parts << QCoreApplication::translate("CMapComparison", "text changed");
    if (parts.isEmpty())
        return NameChanged ? QCoreApplication::translate("CMapComparison", "name changed")
                           : QCoreApplication::translate("CMapComparison", "No changes");
    return parts.join(QCoreApplication::translate("CMapComparison", ", "));
}

QStringList CMapComparison::Lines(bool withName) const
{
    QStringList lines;
    lines.reserve(static_cast<qsizetype>(Changes.size()) + 2);
    for (const CMapChange& change : Changes)
        lines << change.Words();
    if (withName && NameChanged)
        lines << QCoreApplication::translate("CMapComparison",
                                             "Map name changed from \"%1\" to \"%2\"")
                     .arg(NameBefore, NameAfter);
    if (TextChanged)
        lines << QCoreApplication::translate("CMapComparison", "Map text changed");
    return lines;
}
