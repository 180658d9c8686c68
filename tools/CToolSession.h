#pragma once

#include "persist/CGameFile.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>

class QFile;

class CGame;
class CKorvane;
class IGameContext;

// What one run of korvane-tool shares between its steps: the home, the
// application root (built on first use, so contexts are found exactly as the
// program finds them), the active context, and reading and writing files.
class CToolSession
{
public:
    // The largest game file or picture read; real ones are far smaller.
    static constexpr qint64 MaxInputFileSize = 256 * 1024 * 1024;

    // A game read from a file, with the context that was activated for it.
    struct LoadedGame
    {
        std::shared_ptr<CGame> Game;
        std::shared_ptr<IGameContext> Context;
        CGameFile::Header Header;
        // The stored id turned into the context's own id.
        QString ContextId;
        // The bytes the compressed body takes in the file, padding left out.
        std::int64_t CompressedLength = 0;
    };

    // home: a directory to use as Korvane's home, or empty for the program's
    // own ($KORVANE_HOME, else the executable's directory). It is checked when
    // the root is first needed.
    explicit CToolSession(QString home);
    // Releases the games, then the root and its contexts.
    ~CToolSession();
    CToolSession(const CToolSession&) = delete;
    CToolSession& operator=(const CToolSession&) = delete;

    // The application root, built and its contexts discovered on first use.
    // Raises CToolFailure when the home given is not a directory.
    CKorvane& Root();

    // The context of an id or of an old three-letter code. Raises
    // CToolFailure naming subject when no installed module serves it.
    std::shared_ptr<IGameContext> FindContext(const QString& id, const QString& subject);
    // Makes context the active one; raises CToolFailure naming subject when
    // its module cannot be used.
    void Activate(const std::shared_ptr<IGameContext>& context, const QString& subject);

    // Reads a game file, activating its context first. Raises CToolFailure
    // naming the file for anything that keeps the game from being read.
    LoadedGame LoadGame(const QString& path);

    // The whole content of a file; raises CToolFailure for a missing,
    // unreadable or oversized one.
    static QByteArray ReadInputFile(const QString& path);
    // Writes a file atomically: the old file, if any, survives any failure.
    static void WriteOutputFile(const QString& path, const QByteArray& bytes);

private:
    // Opens file for reading; raises CToolFailure for a missing, unreadable
    // or oversized one.
    static void openInputFile(QFile& file);

    QString m_home;
    std::shared_ptr<CKorvane> m_root;
};
