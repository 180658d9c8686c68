#include "CDiffReport.h"

#include "review/CGameComparison.h"
#include "review/CMapComparison.h"

#include <QJsonArray>

namespace {

QJsonArray pointJson(const QPoint& point)
{
    return QJsonArray{point.x(), point.y()};
}

void appendLines(QString& text, const CMapComparison& result, bool withName)
{
    for (const QString& line : result.Lines(withName))
        text += QStringLiteral("  ") + line + QLatin1Char('\n');
}

} // namespace

QJsonObject CDiffReport::CountsJson(const CMapComparison& result)
{
    const CMapComparison::Counts& count = result.Count;
    return QJsonObject{
        {QStringLiteral("moved"), count.Moved},
        {QStringLiteral("added"), count.Added},
        {QStringLiteral("removed"), count.Removed},
        {QStringLiteral("changed"), count.Changed},
        {QStringLiteral("arrows_added"), count.ArrowsAdded},
        {QStringLiteral("arrows_removed"), count.ArrowsRemoved},
        {QStringLiteral("arrows_moved"), count.ArrowsMoved},
    };
}

QString CDiffReport::MapText(const QString& from, const QString& to, const CMapComparison& result)
{
    QString text = from + QStringLiteral(" → ") + to + QStringLiteral(": ") + result.Summary() +
                   QLatin1Char('\n');
    appendLines(text, result, false);
    return text;
}

// Units only in "changes": arrows have two ends and no caption, and are
// counted in "counts".
QJsonObject CDiffReport::MapJson(const QString& from, const QString& to,
                                 const CMapComparison& result)
{
    QJsonArray changes;
    for (const CMapChange& change : result.Changes) {
        if (change.IsArrow())
            continue;
        QJsonObject entry{
            {QStringLiteral("kind"), CMapChange::KindName(change.Kind)},
            {QStringLiteral("token"), change.TokenId},
            {QStringLiteral("caption"),
             change.HasTo() ? change.CaptionAfter : change.CaptionBefore},
        };
        if (change.HasFrom())
            entry.insert(QStringLiteral("from"), pointJson(change.From));
        if (change.HasTo())
            entry.insert(QStringLiteral("to"), pointJson(change.To));
        changes.append(entry);
    }
    return QJsonObject{
        {QStringLiteral("from"), from},
        {QStringLiteral("to"), to},
        {QStringLiteral("counts"), CountsJson(result)},
        {QStringLiteral("text_changed"), result.TextChanged},
        {QStringLiteral("changes"), changes},
    };
}

QString CDiffReport::GameText(const QString& olderFile, const QString& newerFile,
                              const CGameComparison& result)
{
    using Status = CGameComparison::Entry::EntryStatus;
    QString text;
    int both = 0;
    for (const CGameComparison::Entry& entry : result.Maps) {
        text += QStringLiteral("%1:%2 %3: ").arg(entry.Group).arg(entry.Map).arg(entry.Name);
        switch (entry.Status) {
        case Status::Same:
            ++both;
            text += QStringLiteral("same\n");
            break;
        case Status::Changed:
            ++both;
            text +=
                QStringLiteral("changed (") + entry.Comparison.Summary() + QStringLiteral(")\n");
            appendLines(text, entry.Comparison, true);
            break;
        case Status::Added:
            text += QStringLiteral("only in ") + newerFile + QLatin1Char('\n');
            break;
        case Status::Removed:
            text += QStringLiteral("only in ") + olderFile + QLatin1Char('\n');
            break;
        }
    }
    const int changed = result.ChangedCount();
    if (both == 0)
        text += QStringLiteral("The files hold no map in common.\n");
    else if (changed == 0 && both == 1)
        text += QStringLiteral("The map both files hold is the same.\n");
    else if (changed == 0)
        text += QStringLiteral("The %1 maps both files hold are the same.\n").arg(both);
    else
        text += QStringLiteral("%1 of the %2 maps both files hold %3 from %4.\n")
                    .arg(changed)
                    .arg(both)
                    .arg(changed == 1 ? QStringLiteral("differs") : QStringLiteral("differ"))
                    .arg(olderFile);
    return text;
}

QJsonObject CDiffReport::GameJson(const CGameComparison& result)
{
    QJsonArray maps;
    for (const CGameComparison::Entry& entry : result.Maps) {
        maps.append(QJsonObject{
            {QStringLiteral("group"), entry.Group},
            {QStringLiteral("map"), entry.Map},
            {QStringLiteral("name"), entry.Name},
            {QStringLiteral("status"), CGameComparison::Entry::StatusName(entry.Status)},
            {QStringLiteral("counts"), CountsJson(entry.Comparison)},
        });
    }
    return QJsonObject{{QStringLiteral("maps"), maps}};
}
