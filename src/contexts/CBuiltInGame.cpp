#include "CBuiltInGame.h"

CBuiltInGame::CBuiltInGame(QString id, QString caption, QString fileExtension, QString fileCaption)
    : m_id(std::move(id)), m_caption(std::move(caption)), m_fileExtension(std::move(fileExtension)),
      m_fileCaption(std::move(fileCaption))
{}
