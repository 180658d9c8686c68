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
