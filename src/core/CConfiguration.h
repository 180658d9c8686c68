#pragma once

#include <QString>

// The per-user settings store, under organisation and application "Korvane";
// a section is a settings group.
class CConfiguration
{
public:
    QString GetValue(const QString& section, const QString& key,
                     const QString& defaultValue = QString()) const;
    void SetValue(const QString& section, const QString& key, const QString& value);
};
