#include "CNameCheck.h"

#include "core/CUtility.h"
#include "core/FMessageBox.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "ui/board/CMapState.h"

#include <QLineEdit>

QString CNameCheck::BlankMessage()
{
    return tr("Name cannot be blank.");
}

QString CNameCheck::CharactersMessage()
{
    return tr("Name cannot contain any of the following characters:\r\t\\/:*?\"<>|&");
}

QString CNameCheck::Refusal(const QString& name, bool checkMaps, const std::shared_ptr<CMap>& self)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return BlankMessage();
    if (!CUtility::ValidName(trimmed))
        return CharactersMessage();
    if (!checkMaps)
        return QString();
    const std::shared_ptr<CMapGroup> group = CMapState::ActiveGroup();
    if (!group)
        return QString();
    for (const auto& map : group->Maps()) {
        if (map != self && map->Name() == trimmed)
            return tr("A Map named '%1' already exists.").arg(trimmed);
    }
    return QString();
}

bool CNameCheck::Accept(QLineEdit* field, bool checkMaps, const std::shared_ptr<CMap>& self)
{
    const QString refusal = Refusal(field->text(), checkMaps, self);
    if (refusal.isEmpty())
        return true;
    Tell(refusal);
    field->setFocus(Qt::OtherFocusReason);
    field->selectAll();
    return false;
}

void CNameCheck::Tell(const QString& text)
{
    FMessageBox::Tell(text, FMessageBox::Icon::Exclamation);
}
