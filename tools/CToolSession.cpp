#include "CToolSession.h"

#include "CToolFailure.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "model/CMap.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString quoted(const QString& text)
{
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace

CToolSession::CToolSession(QString home) : m_home(std::move(home)) {}

CToolSession::~CToolSession()
{
    if (!m_root)
        return;
    try {
        if (m_root->Context())
            m_root->Context()->Deactivate();
        m_root->SetGame(nullptr);
        m_root->SetContext(nullptr);
        ReleaseRoot();
        CMap::RemoveLeftoverSwapFiles();
    } catch (const std::exception& error) {
        // The command's outcome stands; a leftover cache file is all this can cost.
        qCritical("shutting down: %s", error.what());
    }
}

CKorvane& CToolSession::Root()
{
    if (!m_root) {
        if (!m_home.isEmpty()) {
            const QFileInfo info(m_home);
            if (!info.isDir())
                throw CToolFailure::Input(m_home, QStringLiteral("no such directory for the home"));
            qputenv("KORVANE_HOME", QDir::cleanPath(info.absoluteFilePath()).toLocal8Bit());
        }
        m_root = std::make_shared<CKorvane>();
        InstallRoot(m_root);
        m_root->Constructor(nullptr);
    }
    return *m_root;
}

std::shared_ptr<IGameContext> CToolSession::FindContext(const QString& id, const QString& subject)
{
    const CContextMgr& contexts = Root().ContextMgr();
    const QString contextId = CContextMgr::TranslateExternalId(id);
    const std::int32_t position = contexts.PosOfContext(contextId);
    if (position == 0)
        throw CToolFailure::Input(subject, QStringLiteral("no installed module has the id ") +
                                               quoted(contextId) +
                                               QStringLiteral(" (see 'korvane-tool modules')"));
    return contexts.Context(position);
}

void CToolSession::Activate(const std::shared_ptr<IGameContext>& context, const QString& subject)
{
    CKorvane& root = Root();
    if (root.Context() == context)
        return;
    if (root.Context())
        root.Context()->Deactivate();
    root.SetContext(nullptr);
    try {
        context->Activate(nullptr);
    } catch (const KorvaneError& error) {
        throw CToolFailure::Input(subject, QStringLiteral("its module ") + quoted(context->Id()) +
                                               QStringLiteral(" cannot be used: ") +
                                               error.Description());
    }
    root.SetContext(context);
}

CToolSession::LoadedGame CToolSession::LoadGame(const QString& path)
{
    LoadedGame loaded;
    // The body is inflated from the file as it is read, never held twice.
    QFile file(path);
    openInputFile(file);
    QString error;
    if (!CGameFile::ReadHeader(file.read(CGameFile::MaximumHeaderLength), loaded.Header, &error))
        throw CToolFailure::Input(path, error);
    loaded.ContextId = CContextMgr::TranslateExternalId(loaded.Header.StoredContextId);
    loaded.Context = FindContext(loaded.ContextId, path);
    Activate(loaded.Context, path);
    loaded.Game = CGameFile::FromDevice(file, &error, &loaded.CompressedLength);
    if (file.error() != QFileDevice::NoError)
        throw CToolFailure::Input(path, QStringLiteral("cannot be read: ") + file.errorString());
    if (!loaded.Game)
        throw CToolFailure::Input(path, error);
    return loaded;
}

void CToolSession::openInputFile(QFile& file)
{
    const QString path = file.fileName();
    if (!QFileInfo(path).isFile())
        throw CToolFailure::Input(path, QStringLiteral("no such file"));
    if (!file.open(QIODevice::ReadOnly))
        throw CToolFailure::Input(path, QStringLiteral("cannot be read: ") + file.errorString());
    if (file.size() > MaxInputFileSize)
        throw CToolFailure::Input(
            path, QStringLiteral("is too large (%1 bytes) to be read").arg(file.size()));
}

QByteArray CToolSession::ReadInputFile(const QString& path)
{
    QFile file(path);
    openInputFile(file);
    const QByteArray bytes = file.readAll();
    if (bytes.size() != file.size())
        throw CToolFailure::Input(path, QStringLiteral("cannot be read: ") + file.errorString());
    return bytes;
}

void CToolSession::WriteOutputFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw CToolFailure::Input(path, QStringLiteral("cannot be written: ") + file.errorString());
    if (file.write(bytes) != bytes.size() || !file.commit())
        throw CToolFailure::Input(path, QStringLiteral("cannot be written: ") + file.errorString());
}
