#pragma once

#include <QRect>
#include <QString>

// The per-user settings store, under organisation and application "Korvane";
// a section is a settings group.
class CConfiguration
{
public:
    QString GetValue(const QString& section, const QString& key,
                     const QString& defaultValue = QString()) const;
    void SetValue(const QString& section, const QString& key, const QString& value);
    // A whole number; -1 when the key is missing or holds no number.
    int GetInt(const QString& section, const QString& key) const;
    // A window's frame kept as Left, Top, Width and Height (-1 for a part
    // that is missing).
    QRect GetRect(const QString& section) const;
    void SetRect(const QString& section, const QRect& rect);
};
