#pragma once

#include <QDesktopServices>
#include <QString>
#include <QUrl>

// (Temporary until the platform helper lands.)
class CWinApi
{
public:
    void LauchUrl(const QString& url) { QDesktopServices::openUrl(QUrl(url)); }
};
