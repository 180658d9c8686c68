#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

// Windows-1252, the code page of every text stored in game files and module
// packs. One byte per UTF-16 unit; a character the code page cannot hold is
// written as "?".
class CAnsiCodec
{
public:
    static QByteArray Encode(QStringView text);
    // Writes exactly text.size() bytes to destination. False when some
    // character had to be written as "?".
    static bool EncodeInto(QStringView text, unsigned char* destination);
    static QString Decode(const unsigned char* bytes, qsizetype length);
    static QString Decode(const QByteArray& bytes);
};
