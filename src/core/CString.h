#pragma once

#include "core/IHasName.h"

#include <QString>

// One string that can live in a CVector and be sorted by name.
class CString : public IHasName
{
public:
    CString() = default;
    explicit CString(QString value) : m_value(std::move(value)) {}

    const QString& Value() const { return m_value; }
    void SetValue(const QString& value) { m_value = value; }
    QString Name() const override { return m_value; }

private:
    QString m_value;
};
