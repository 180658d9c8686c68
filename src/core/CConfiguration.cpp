#include "CConfiguration.h"

#include <QSettings>

namespace {

QSettings openStore()
{
    return QSettings(QSettings::defaultFormat(), QSettings::UserScope, QStringLiteral("Korvane"),
                     QStringLiteral("Korvane"));
}

QString keyOf(const QString& section, const QString& key)
{
    return section + QLatin1Char('/') + key;
}

} // namespace

QString CConfiguration::GetValue(const QString& section, const QString& key,
                                 const QString& defaultValue) const
{
    return openStore().value(keyOf(section, key), defaultValue).toString();
}

void CConfiguration::SetValue(const QString& section, const QString& key, const QString& value)
{
    openStore().setValue(keyOf(section, key), value);
}

int CConfiguration::GetInt(const QString& section, const QString& key) const
{
    bool ok = false;
    const int value = GetValue(section, key).toInt(&ok);
    return ok ? value : -1;
}

QRect CConfiguration::GetRect(const QString& section) const
{
    return QRect(GetInt(section, QStringLiteral("Left")), GetInt(section, QStringLiteral("Top")),
                 GetInt(section, QStringLiteral("Width")),
                 GetInt(section, QStringLiteral("Height")));
}

void CConfiguration::SetRect(const QString& section, const QRect& rect)
{
    SetValue(section, QStringLiteral("Left"), QString::number(rect.left()));
    SetValue(section, QStringLiteral("Top"), QString::number(rect.top()));
    SetValue(section, QStringLiteral("Width"), QString::number(rect.width()));
    SetValue(section, QStringLiteral("Height"), QString::number(rect.height()));
}
