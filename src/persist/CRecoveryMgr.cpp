#include "CRecoveryMgr.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CConfiguration.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/FMessageBox.h"
#include "core/KorvaneError.h"
#include "core/MMain.h"
#include "model/CGame.h"
#include "model/CGameEventMgr.h"
#include "persist/CGameFile.h"
#include "persist/CPersistMgr.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QLockFile>
#include <QSaveFile>

#include <algorithm>

namespace {

const QString copySuffix = QStringLiteral(".krf");
const QString infoSuffix = QStringLiteral(".json");
// An info file is a few lines; anything larger is not one of ours.
constexpr qint64 maximumInfoSize = 64 * 1024;

bool writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

void removeFiles(const QString& base)
{
    QFile::remove(base + copySuffix);
    QFile::remove(base + infoSuffix);
}

} // namespace

CRecoveryMgr::CRecoveryMgr() : m_base(CUtility::GetRecoveryDir() + CUtility::GenerateId())
{
    QObject::connect(&m_timer, &QTimer::timeout, [this] { WriteCopy(); });
}

CRecoveryMgr::~CRecoveryMgr() = default;

QString CRecoveryMgr::CopyPath() const
{
    return m_base + copySuffix;
}

void CRecoveryMgr::Start()
{
    CTraceScope scope("Start", "CRecoveryMgr");
    bool ok = false;
    int seconds = Root()
                      .Config()
                      .GetValue(QLatin1String(SettingsSection), QLatin1String(IntervalKey))
                      .toInt(&ok);
    if (!ok || seconds < 1)
        seconds = DefaultIntervalSeconds;
    m_timer.start(std::min(seconds, 24 * 3600) * 1000);
    scope.Denote(QStringLiteral("Every %1 s to ").arg(seconds) + CopyPath());
}

void CRecoveryMgr::GameSaved()
{
    removeCopy();
}

void CRecoveryMgr::Exit()
{
    m_timer.stop();
    removeCopy();
}

bool CRecoveryMgr::lock()
{
    if (m_lock)
        return true;
    if (!CUtility::BuildDirectory(CUtility::GetRecoveryDir()))
        return false;
    auto candidate = CUtility::OwnerLock(m_base);
    if (!candidate->tryLock(0))
        return false;
    m_lock = std::move(candidate);
    return true;
}

void CRecoveryMgr::removeCopy()
{
    removeFiles(m_base);
    // Unlocking deletes the lock file too.
    m_lock.reset();
}

bool CRecoveryMgr::WriteCopy()
{
    CTraceScope scope("WriteCopy", "CRecoveryMgr");
    const std::shared_ptr<CGame>& game = Root().Game();
    const std::shared_ptr<IGameContext>& context = Root().Context();
    if (!game || game->Dirty() == 0 || !context) {
        removeCopy();
        return true;
    }
    QByteArray bytes;
    try {
        bytes = CGameFile::ToBytes(*game, *context);
    } catch (const KorvaneError& failure) {
        scope.Denote(failure.Description());
        return false;
    }
    const QJsonObject info{
        {QStringLiteral("game"), game->Name()},
        {QStringLiteral("file"), game->FilePath()},
        {QStringLiteral("saved"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
    };
    // The lock comes first, so no other Korvane ever sees a copy without it.
    const bool written = lock() && writeWhole(CopyPath(), bytes) &&
                         writeWhole(m_base + infoSuffix, QJsonDocument(info).toJson());
    scope.Denote((written ? QStringLiteral("Wrote ") : QStringLiteral("Cannot write ")) +
                 CopyPath());
    return written;
}

CRecoveryMgr::Info CRecoveryMgr::readInfo(const QString& base)
{
    Info info;
    info.Saved = QFileInfo(base + copySuffix).lastModified();
    QFile file(base + infoSuffix);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maximumInfoSize)
        return info;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    info.GameName = object.value(QStringLiteral("game")).toString();
    info.OriginalPath = object.value(QStringLiteral("file")).toString();
    const QDateTime saved =
        QDateTime::fromString(object.value(QStringLiteral("saved")).toString(), Qt::ISODate);
    if (saved.isValid())
        info.Saved = saved;
    return info;
}

bool CRecoveryMgr::OfferRecovery(FMessageBox& messages)
{
    CTraceScope scope("OfferRecovery", "CRecoveryMgr");
    const QDir folder(CUtility::GetRecoveryDir());
    // What Korvanes that died leave beside no copy: their lock files, and
    // the temporary file of a copy they were writing. Taking the lock of a
    // dead owner and letting it go removes the lock file.
    for (const QString& name : folder.entryList(QDir::Files)) {
        const QString base = folder.filePath(name.section(QLatin1Char('.'), 0, 0));
        if (base == m_base || QFileInfo::exists(base + copySuffix) ||
            !CUtility::OwnerLock(base)->tryLock(0))
            continue;
        scope.Denote(QStringLiteral("Left over: ") + name);
        QFile::remove(folder.filePath(name));
    }

    const QFileInfoList copies =
        folder.entryInfoList({QStringLiteral("*") + copySuffix}, QDir::Files, QDir::Time);
    for (const QFileInfo& copy : copies) {
        const QString base = folder.filePath(copy.completeBaseName());
        if (base == m_base)
            continue;
        // Held for the question's length, so no second Korvane offers it too.
        const auto held = CUtility::OwnerLock(base);
        if (!held->tryLock(0))
            continue;
        const Info info = readInfo(base);
        QString label = QFileInfo(info.OriginalPath).fileName();
        if (label.isEmpty())
            label = info.GameName.isEmpty() ? copy.completeBaseName() : info.GameName;
        const QString when =
            QLocale::system().toString(info.Saved.toLocalTime(), QLocale::ShortFormat);
        const FMessageBox::Answer answer = messages.Question(
            CKorvane::Name(), tr("Restore unsaved changes to '%1' from %2?").arg(label, when),
            FMessageBox::Buttons::YesNo, FMessageBox::Icon::Question, FMessageBox::Answer::Yes);
        if (answer != FMessageBox::Answer::Yes) {
            scope.Denote(QStringLiteral("Discarded ") + copy.fileName());
            removeFiles(base);
            continue;
        }
        if (!restore(copy.filePath(), info, messages))
            return false;
        removeFiles(base);
        return true;
    }
    return false;
}

bool CRecoveryMgr::restore(const QString& copy, const Info& info, FMessageBox& messages)
{
    CKorvane& root = Root();
    const QString contextId = root.PersistMgr().ContextIdFromFile(copy);
    const std::int32_t position = root.ContextMgr().PosOfContext(contextId);
    if (position == 0) {
        messages.Information(CKorvane::Name(),
                             tr("The unsaved changes cannot be restored: the game module '%1' "
                                "is not installed.")
                                 .arg(contextId),

                             FMessageBox::Icon::Exclamation);
        return false;
    }
    if (!MMain::SwitchContext(root.ContextMgr().Context(position)) ||
        !root.PersistMgr().LoadGameFromFile(copy))
        return false;

    const std::shared_ptr<CGame> game = root.Game();
    QString directory;
    QString name;
    QString extension;
    if (!info.OriginalPath.isEmpty())
        CUtility::ParsePath(info.OriginalPath, directory, name, extension);
    // No original name: Save asks for one, as for a game never saved.
    game->SetDirectory(directory);
    game->SetFile(name);
    game->SetExtension(extension);
    game->SetDirty(1);
    root.EventMgr().NotifyOfNewGame(nullptr);
    // This process keeps the changes safe from now on; the program starts
    // the timer once recovery has been offered.
    WriteCopy();
    return true;
}
