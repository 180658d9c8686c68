#pragma once

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QImage>
#include <QString>

// Draws the pictures of the modules we ship from one-line descriptions, so
// no picture needs to be kept as a binary file:
//
//     <entry name> <width>x<height> <shape> [key=value ...]
//
// Keys: fill and line (colours "#RRGGBB"), side (a second fill colour),
// file (a terrain file beside the description, for boards) and size (the
// width of one hex of a hex board). Token pictures have a transparent
// background. Errors raise KorvaneError naming the line.
class CPictureDrawer
{
public:
    // folder: where files named by file= are found.
    explicit CPictureDrawer(QString folder);

    // The PNG bytes of the picture one description line asks for.
    QByteArray Draw(const QString& line, int lineNumber, QString& entryName) const;

private:
    QImage Render(const QString& shape, QSize size, const QHash<QString, QString>& keys,
                  int lineNumber) const;
    QColor color(const QHash<QString, QString>& keys, const QString& key, const QColor& fallback,
                 int lineNumber) const;
    QString readFile(const QString& name, int lineNumber) const;

    QString m_folder;
};
