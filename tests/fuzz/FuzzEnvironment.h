#pragma once

#include "persist/CZlib.h"

#include <QBuffer>
#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

class CKorvane;
class CMap;

// What every fuzz target shares, built once per process and never destroyed
// (libFuzzer ends the process with exit() from inside a run): an offscreen
// QGuiApplication, settings and a home holding the shipped modules in a
// temporary folder removed at exit, and a constructed application root.
class FuzzEnvironment
{
public:
    static FuzzEnvironment& Get();

    CKorvane& Root() const { return *m_root; }
    // Fills an empty map with one unit of each token of the first usable
    // module with tokens (made the root's context) and an arrow, and swaps
    // it out; stops the process when no module can be used.
    void FillAndSwapOut(CMap& map);
    // Writes bytes to a file of that name in a scratch folder and returns
    // the folder, ending in "/".
    QString WriteScratch(const QString& name, const QByteArray& bytes) const;
    // Writes bytes to a file, creating its folder; stops the process when it cannot.
    static void WriteFile(const QString& path, const QByteArray& bytes);

private:
    FuzzEnvironment();

    QString m_scratch;
    std::shared_ptr<CKorvane> m_root;
};

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

// Inflates a zlib stream of at most 1 MiB, lets libFuzzer mutate what it holds
// and compresses that again at level 9, as game bodies and pack directories
// are stored; plainLength receives the mutated length. Null when the stream
// does not inflate.
inline QByteArray MutateInflated(const std::uint8_t* stream, std::size_t size,
                                 std::int32_t& plainLength)
{
    QBuffer in;
    in.setData(reinterpret_cast<const char*>(stream), static_cast<qsizetype>(size));
    in.open(QIODevice::ReadOnly);
    std::vector<unsigned char> plain(std::size_t(1) << 20);
    std::size_t length = 0;
    std::int64_t consumed = 0;
    if (CZlib::Inflate(in, plain.data(), plain.size(), length, consumed) != 0)
        return QByteArray();
    plain.resize(2 * length + 64);
    plain.resize(LLVMFuzzerMutate(plain.data(), length, plain.size()));
    plainLength = static_cast<std::int32_t>(plain.size());
    // qCompress is compress2 behind a big-endian length of its own.
    return qCompress(plain.data(), static_cast<qsizetype>(plain.size()), 9).mid(4);
}

// Hands a mutated input back to libFuzzer, or mutates plainly when it is too long.
inline std::size_t TakeMutation(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                const QByteArray& mutated)
{
    if (static_cast<std::size_t>(mutated.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, mutated.constData(), static_cast<std::size_t>(mutated.size()));
    return static_cast<std::size_t>(mutated.size());
}
