#include "CMapChange.h"

#include <QCoreApplication>

namespace {

// Captions may hold line breaks (notes); a change reads as one line.
QString oneLine(const QString& text)
{
    QString line = text;
    line.replace(QLatin1String("\r\n"), QLatin1String(" "));
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    line.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return line.trimmed();
}

QString nameOf(const QString& tokenCaption, const QString& caption)
{
    const QString token = oneLine(tokenCaption);
    const QString own = oneLine(caption);
    if (own.isEmpty() || own == token)
        return token;
    if (token.isEmpty())
        return own;
    return token + QLatin1Char(' ') + own;
}

QString arrowName(const CMapChange& change)
{
    const QString token = oneLine(change.TokenCaption);
    return token.isEmpty() ? QCoreApplication::translate("CMapChange", "Arrow") : token;
}

QString arrowWords(const CMapChange& change)
{
    const QString name = arrowName(change);
    switch (change.Kind) {
    case CMapChange::ChangeKind::Added:
        return QCoreApplication::translate("CMapChange", "%1 added from (%2, %3) to (%4, %5)")
            .arg(name)
            .arg(change.To.x())
            .arg(change.To.y())
            .arg(change.ToHead.x())
            .arg(change.ToHead.y());
    case CMapChange::ChangeKind::Removed:
        return QCoreApplication::translate("CMapChange", "%1 from (%2, %3) to (%4, %5) removed")
            .arg(name)
            .arg(change.From.x())
            .arg(change.From.y())
            .arg(change.FromHead.x())
            .arg(change.FromHead.y());
    case CMapChange::ChangeKind::Moved:
    case CMapChange::ChangeKind::Changed:
        break;
    }
    return QCoreApplication::translate("CMapChange",
                                       "%1 moved from (%2, %3)–(%4, %5) to (%6, %7)–(%8, %9)")
        .arg(name)
        .arg(change.From.x())
        .arg(change.From.y())
        .arg(change.FromHead.x())
        .arg(change.FromHead.y())
        .arg(change.To.x())
        .arg(change.To.y())
        .arg(change.ToHead.x())
        .arg(change.ToHead.y());
}

} // namespace

QString CMapChange::NameBefore() const
{
    return nameOf(TokenCaption, CaptionBefore);
}

QString CMapChange::NameAfter() const
{
    return nameOf(TokenCaption, CaptionAfter);
}

QString CMapChange::Words() const
{
    if (IsArrow())
        return arrowWords(*this);
    const bool captionChanged = oneLine(CaptionBefore) != oneLine(CaptionAfter);
    switch (Kind) {
    case ChangeKind::Moved:
        if (captionChanged)
            return QCoreApplication::translate("CMapChange",
                                               "%1 moved from (%2, %3) to (%4, %5), now %6")
                .arg(NameBefore())
                .arg(From.x())
                .arg(From.y())
                .arg(To.x())
                .arg(To.y())
                .arg(oneLine(CaptionAfter));
        return QCoreApplication::translate("CMapChange", "%1 moved from (%2, %3) to (%4, %5)")
            .arg(NameBefore())
            .arg(From.x())
            .arg(From.y())
            .arg(To.x())
            .arg(To.y());
    case ChangeKind::Changed:
        if (captionChanged) {
            const QString after = oneLine(CaptionAfter);
            return QCoreApplication::translate("CMapChange", "%1 → %2")
                .arg(NameBefore(), after.isEmpty()
                                       ? QCoreApplication::translate("CMapChange", "(no caption)")
                                       : after);
        }
        return QCoreApplication::translate("CMapChange", "%1 at (%2, %3) changed")
            .arg(NameAfter())
            .arg(To.x())
            .arg(To.y());
    case ChangeKind::Added:
        return QCoreApplication::translate("CMapChange", "%1 added at (%2, %3)")
            .arg(NameAfter())
            .arg(To.x())
            .arg(To.y());
    case ChangeKind::Removed:
        break;
    }
    return QCoreApplication::translate("CMapChange", "%1 removed from (%2, %3)")
        .arg(NameBefore())
        .arg(From.x())
        .arg(From.y());
}

QString CMapChange::KindName(ChangeKind kind)
{
    switch (kind) {
    case ChangeKind::Moved:
        return QStringLiteral("moved");
    case ChangeKind::Added:
        return QStringLiteral("added");
    case ChangeKind::Removed:
        return QStringLiteral("removed");
    case ChangeKind::Changed:
        break;
    }
    return QStringLiteral("changed");
}
