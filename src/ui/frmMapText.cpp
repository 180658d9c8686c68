#include "frmMapText.h"

#include "model/CMap.h"
#include "ui/CMapState.h"

#include <QPlainTextEdit>

frmMapText::frmMapText(QWidget* parent)
    : QDockWidget(QStringLiteral("Map Text"), parent), m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("frmMapText"));
    m_text->setObjectName(QStringLiteral("txtMapText"));
    m_text->setReadOnly(true);
    setWidget(m_text);
}

void frmMapText::load()
{
    const auto map = CMapState::ActiveMap();
    m_text->setPlainText(map ? map->Text() : QString());
}
