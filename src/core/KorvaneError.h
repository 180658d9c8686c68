#pragma once

#include <QString>

#include <stdexcept>

// The program's run-time error: a number, the operation that raised it
// ("CVector.Item") and a description ("Out Of Bounds").
class KorvaneError : public std::runtime_error
{
public:
    KorvaneError(int number, const QString& source, const QString& description);

    int Number() const { return m_number; }
    const QString& Source() const { return m_source; }
    const QString& Description() const { return m_description; }

private:
    int m_number;
    QString m_source;
    QString m_description;
};
