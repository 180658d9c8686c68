#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// Readable failure messages for Qt strings and byte arrays in gtest output.
// tests/CMakeLists.txt puts this header in front of every test source.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << bytes.toHex(' ').toStdString();
}
