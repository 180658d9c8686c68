#pragma once

#include "core/CVector.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

class CArrow;
class CMap;
class CUnit;
class IToken;

// An arrow on a map is drawn from a CArrow; the user grabs it by two handle
// units of the arrow token, one at its head and one at its tail. A handle's
// Data names its arrow and its end ("<arrowId>|HEAD", "<arrowId>|TAIL").
//
// Taking arrows off a map remembers where every arrow and handle stood in
// its list, so that putting them back restores the lists exactly.
class CArrowHandles
{
public:
    enum class End
    {
        Head,
        Tail
    };

    static QString HandleData(const QString& arrowId, End end);
    // False (and nothing set) when data does not name an arrow end.
    static bool Parse(const QString& data, QString& arrowId, End& end);
    // Whether unit is a handle of the arrow arrowId, or of any arrow when
    // arrowId is empty.
    // Whether token is the arrow token, whose units are arrow handles.
    static bool IsArrowToken(const IToken& token);
    static bool IsHandle(const CUnit& unit, const QString& arrowId = QString());

    // An HTML colour ("#RRGGBB", or a colour name) as a 24-bit value with
    // red in the low byte; red when the text is not a colour.
    static std::int32_t ColorFromHtml(const QString& text);
    static constexpr std::int32_t FallbackColor = 255;

    // Arrows and handle units taken off a map, with their former positions.
    struct Removal
    {
        std::vector<std::pair<std::int32_t, std::shared_ptr<CArrow>>> Arrows;
        std::vector<std::pair<std::int32_t, std::shared_ptr<CUnit>>> Units;
        bool Empty() const { return Arrows.empty() && Units.empty(); }
    };

    // Takes the arrow arrowId and its handles off a locked map, or every
    // arrow and every handle when arrowId is empty.
    static Removal Take(CMap& map, const QString& arrowId, const char* source);
    // Puts removed items back where they were; the opposite of Take.
    static void PutBack(CMap& map, const Removal& removal, const char* source);
    // Announces the items as deleted (or, when restored, as added): the
    // arrows first, then their handles.
    static void Announce(const Removal& removal, bool restored, const void* notifySource);
};
