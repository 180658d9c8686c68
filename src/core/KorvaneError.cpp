#include "KorvaneError.h"

KorvaneError::KorvaneError(int number, const QString& source, const QString& description)
    : std::runtime_error((source + QStringLiteral(": ") + description).toStdString()),
      m_number(number), m_source(source), m_description(description)
{
}
