#pragma once

#include <QPoint>
#include <QString>

#include <cstdint>

// One difference between an older and a newer map: a unit or an arrow that
// moved, changed, appeared or went. Positions are as stored: a unit's is its
// picture's top-left corner; an arrow's From/To are its tail and
// FromHead/ToHead its head. Fields of the side a change has no partner on
// (From for Added, To for Removed, the "Before" texts of an added unit, ...)
// are left empty or zero.
struct CMapChange
{
    enum class ChangeKind
    {
        // The position differs; caption and data may differ too.
        Moved,
        // Same position, but the caption or the data differs.
        Changed,
        // Only in the newer map.
        Added,
        // Only in the older map.
        Removed
    };
    enum class ChangeSubject
    {
        Unit,
        Arrow
    };

    ChangeKind Kind = ChangeKind::Changed;
    ChangeSubject Subject = ChangeSubject::Unit;
    // The token of the unit (for an arrow, of its handles; empty when the
    // arrow has none) and that token's caption in the active context.
    QString TokenId;
    QString TokenCaption;
    QString CaptionBefore;
    QString CaptionAfter;
    QString DataBefore;
    QString DataAfter;
    QPoint From;
    QPoint To;
    QPoint FromHead;
    QPoint ToHead;
    // The arrow's colour (24-bit, red in the low byte); 0 for units.
    std::int32_t Color = 0;
    // The unit's or arrow's id in the older and in the newer map, so that a
    // window can find its items; empty on the side without a partner.
    QString IdBefore;
    QString IdAfter;

    bool IsArrow() const { return Subject == ChangeSubject::Arrow; }
    bool HasFrom() const { return Kind != ChangeKind::Added; }
    bool HasTo() const { return Kind != ChangeKind::Removed; }

    // How the unit reads before and after: the token's caption and the
    // unit's own caption when it has one ("Red Infantry x3"), on one line.
    QString NameBefore() const;
    QString NameAfter() const;
    // The change in words, translated when a translator is installed:
    // "Red Infantry x3 moved from (120, 80) to (216, 80)",
    // "Red Infantry x3 → x2", "Blue Armour removed from (640, 300)".
    QString Words() const;
    // "moved", "changed", "added" or "removed": never translated (JSON).
    static QString KindName(ChangeKind kind);
};
