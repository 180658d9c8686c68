#include "CFileCheck.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "persist/CGameFile.h"
#include "review/CGameComparer.h"
#include "ui/app/CRecentFiles.h"

#include <QFile>
#include <QFileInfo>

std::shared_ptr<CGame> CFileCheck::Read(const QString& path, QString* error)
{
    CKorvane& root = Root();
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    // The header first: the body of another module's file is not inflated.
    CGameFile::Header header;
    QString reason;
    const bool isGameFile =
        opened && CGameFile::ReadHeader(file.read(CGameFile::HeaderProbeLength), header, &reason);
    const QString contextId =
        isGameFile ? CContextMgr::TranslateExternalId(header.StoredContextId) : QString();
    if (!root.Context() || contextId.compare(root.Context()->Id(), Qt::CaseInsensitive) != 0) {
        *error = tr("'%1' is not a game of this module.").arg(name);
        return nullptr;
    }
    // Read from the file a piece at a time, in the one open.
    std::shared_ptr<CGame> game = CGameFile::FromDevice(file, &reason);
    if (!game)
        *error = tr("'%1' could not be read: %2").arg(name, reason);
    return game;
}

bool CFileCheck::Compare(const QString& path, CGameComparison& result, QString* error)
{
    const std::shared_ptr<CGame> open = Root().Game();
    if (!open)
        return false;
    const std::shared_ptr<CGame> other = Read(path, error);
    if (!other)
        return false;
    if (other->Id() != open->Id()) {
        *error = tr("'%1' holds another game; only files of the same game can be compared.")
                     .arg(QFileInfo(path).fileName());
        return false;
    }
    try {
        result = CGameComparer::Compare(*other, *open);
    } catch (const KorvaneError& failure) {
        *error = failure.Description();
        return false;
    }
    return true;
}

QString CFileCheck::CompareWithRecent(CGameComparison& result)
{
    CKorvane* root = RootOrNull();
    const std::shared_ptr<CGame> open = root ? root->Game() : nullptr;
    if (!open || open->FilePath().isEmpty())
        return QString();
    const QString own = QFileInfo(open->FilePath()).absoluteFilePath();
    for (const QString& path : CRecentFiles::List()) {
        // A file that is gone fails to open and is passed over like any other.
        QString ignored;
        if (QFileInfo(path).absoluteFilePath() != own && Compare(path, result, &ignored))
            return path;
    }
    return QString();
}

QString CFileCheck::StatusText(const QString& path, const CGameComparison& result)
{
    const QString name = QFileInfo(path).fileName();
    const int differing = result.ChangedCount();
    if (differing == 0)
        return tr("Earlier maps unchanged since %1").arg(name);
    if (differing == 1)
        return tr("1 earlier map differs from %1").arg(name);
    return tr("%1 earlier maps differ from %2").arg(differing).arg(name);
}
