#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>

class CMap;
class QLineEdit;

// The check a name must pass before the new-map, map-properties and
// game-properties dialogs close: not blank, none of the refused characters
// and, for maps, no other map of the active group with exactly that name. A
// refusal is told in an exclamation box and the name field gets the focus.
class CNameCheck
{
    Q_DECLARE_TR_FUNCTIONS(CNameCheck)

public:
    static QString BlankMessage();
    static QString CharactersMessage();

    // Why the trimmed name is refused, or an empty string when it is
    // accepted. checkMaps adds the duplicate rule; self is the map being
    // renamed, which never collides with its own name.
    static QString Refusal(const QString& name, bool checkMaps,
                           const std::shared_ptr<CMap>& self = nullptr);
    // Runs the check on the field's trimmed text; on a refusal tells the
    // user and puts the focus back on the field.
    static bool Accept(QLineEdit* field, bool checkMaps,
                       const std::shared_ptr<CMap>& self = nullptr);
    // Shows a message in an exclamation box titled with the program's name.
    static void Tell(const QString& text);
};
