#include "CPersistMgr.h"

#include "actions/CActionMgr.h"
#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CConfiguration.h"
#include "core/CDebug.h"
#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/FMessageBox.h"
#include "core/FOpenFileDlg.h"
#include "core/FSaveFileDlg.h"
#include "core/KorvaneError.h"
#include "model/CGame.h"
#include "persist/CGameFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopedValueRollback>
#include <QStringList>

#include <zlib.h>

namespace {

const char* const saveFilter =
    QT_TRANSLATE_NOOP("CPersistMgr", "Korvane Game Files  (*.krf)|*.krf");
const QString openDefaultPattern = QStringLiteral("*.krf;*.cmf");

// Magic, the longest context id and the body length, a body of the largest
// length the reader accepts at zlib's worst expansion, and the padding. A
// larger file is refused before it is read into memory.
const qint64 maximumFileSize = CGameFile::MaximumHeaderLength +
                               static_cast<qint64>(compressBound(CGameFile::MaximumBodyLength)) + 3;

void tell(const QString& text, FMessageBox::Icon icon)
{
    if (CDebug* trace = CTraceScope::ActiveTrace())
        trace->DenoteMethod(text);
    FMessageBox::Tell(text, icon);
}

// A reason as a sentence of its own: capital first letter, closing full stop.
QString sentence(QString reason)
{
    if (reason.isEmpty())
        return reason;
    reason[0] = reason[0].toUpper();
    if (!reason.endsWith(QLatin1Char('.')))
        reason += QLatin1Char('.');
    return reason;
}

// The installed context whose id matches without regard to case, or null.
std::shared_ptr<IGameContext> installedContext(const QString& id)
{
    const CContextMgr& manager = Root().ContextMgr();
    for (std::int32_t i = 1; i <= manager.ContextCount(); ++i) {
        std::shared_ptr<IGameContext> context = manager.Context(i);
        if (QString::compare(context->Id(), id, Qt::CaseInsensitive) == 0)
            return context;
    }
    return nullptr;
}

} // namespace

bool CPersistMgr::SaveCurrentGame()
{
    CTraceScope scope("SaveCurrentGame", "CPersistMgr");
    return save(false);
}

bool CPersistMgr::SaveCurrentGameAs()
{
    CTraceScope scope("SaveCurrentGameAs", "CPersistMgr");
    return save(true);
}

bool CPersistMgr::MaySave() const
{
    return !m_saving && Root().Game() && Root().Context();
}

bool CPersistMgr::save(bool askForName)
{
    if (!MaySave())
        return false;
    const QScopedValueRollback<bool> busy(m_saving, true);
    // Held here so the game outlives the save whatever the dialogs do.
    const std::shared_ptr<CGame> game = Root().Game();
    // The image comes first, so that a player who does not want texts
    // changed can stop before a name is asked for or a file touched.
    QByteArray image;
    QStringList lossyTexts;
    const bool built = GameToStream(image, lossyTexts);
    if (built && !lossyTexts.isEmpty() && !MayChangeTexts(lossyTexts))
        return false;
    if (askForName || game->Directory().isEmpty() || game->File().isEmpty()) {
        if (!SelectFileToSave())
            return false;
    }
    if (!built || !WriteGameFile(image)) {
        tell(tr("Disk write error!"), FMessageBox::Icon::Critical);
        return false;
    }
    game->SetDirty(0);
    Root().ActionMgr().Clear();
    if (m_saved)
        m_saved();
    return true;
}

QString CPersistMgr::LossyTextsSummary(const QStringList& texts, qsizetype shown,
                                       const QString& separator)
{
    QStringList quoted;
    for (const QString& text : texts.first(std::min(shown, texts.size())))
        quoted << QLatin1Char('"') + text + QLatin1Char('"');
    QString summary = quoted.join(separator);
    if (texts.size() > shown)
        summary += separator + tr("and %1 more").arg(texts.size() - shown);
    return summary;
}

bool CPersistMgr::MayChangeTexts(const QStringList& texts) const
{
    FMessageBox* box = FMessageBox::Current();
    if (!box)
        return true;
    const QString question =
        tr("Game files keep texts in the Western (Windows-1252) character set. These texts hold "
           "characters outside it, which will be saved as \"?\":\n\n%1\n\nDo you want to save "
           "the game anyway?")
            .arg(LossyTextsSummary(texts, 10, QStringLiteral("\n")));
    return box->Question(CKorvane::Name(), question, FMessageBox::Buttons::YesNo,
                         FMessageBox::Icon::Exclamation,
                         FMessageBox::Answer::Yes) == FMessageBox::Answer::Yes;
}

bool CPersistMgr::AbandonCurrentGame()
{
    CTraceScope scope("AbandonCurrentGame", "CPersistMgr");
    const std::shared_ptr<CGame>& game = Root().Game();
    if (!game || game->Dirty() == 0)
        return true;
    FMessageBox::Answer answer = FMessageBox::Answer::Yes;
    if (FMessageBox* box = FMessageBox::Current())
        answer = box->Question(CKorvane::Name(),
                               tr("The current game has been modified.  Do you want to save the "
                                  "changes to this game?"),
                               FMessageBox::Buttons::YesNoCancel, FMessageBox::Icon::Question,
                               FMessageBox::Answer::Yes);
    switch (answer) {
    case FMessageBox::Answer::Yes:
        return SaveCurrentGame();
    case FMessageBox::Answer::No:
        return true;
    case FMessageBox::Answer::Cancel:
        break;
    }
    return false;
}

bool CPersistMgr::SelectFileToSave()
{
    CTraceScope scope("SelectFileToSave", "CPersistMgr");
    CGame& game = *Root().Game();
    CGui* gui = Root().Gui();
    FSaveFileDlg* dialog = gui ? gui->SaveFileDlg() : nullptr;
    if (!dialog)
        return false;

    QString directory = game.Directory();
    if (!CUtility::DirExists(directory))
        directory = StartDirectory();
    const QString name = game.File().isEmpty() ? game.Name() : game.File();
    const QString extension = game.Extension().isEmpty() ? QStringLiteral("krf") : game.Extension();
    if (!dialog->Display(tr(saveFilter), name, extension, directory))
        return false;

    game.SetFile(dialog->SelFile());
    game.SetExtension(dialog->SelExt());
    game.SetDirectory(dialog->SelDir());
    RememberDirectory(dialog->SelDir());
    return true;
}

bool CPersistMgr::GameToStream(QByteArray& image, QStringList& lossyTexts) const
{
    CTraceScope scope("GameToStream", "CPersistMgr");
    const QString storedId = CContextMgr::TranslateInternalId(Root().Context()->Id());
    try {
        image = CGameFile::ToBytes(*Root().Game(), storedId, &lossyTexts);
    } catch (const KorvaneError& failure) {
        scope.Denote(failure.Description());
        return false;
    } catch (const std::bad_alloc&) {
        scope.Denote(QStringLiteral("Out of memory"));
        return false;
    }
    return true;
}

bool CPersistMgr::WriteGameFile(const QByteArray& image)
{
    CTraceScope scope("WriteGameFile", "CPersistMgr");
    const CGame& game = *Root().Game();
    const QString target = game.FilePath();
    scope.Denote(QStringLiteral("Target = ") + target);
    // The new file replaces the old one in a single rename, so any failure
    // before that leaves the old file as it was. QSaveFile gives a new file
    // the usual 0666 less the umask and a replaced one the old file's mode. A
    // read-only target is made writable first (the save is refused
    // otherwise) and stays so; on failure it gets its permissions back.
    const QFileInfo existing(target);
    // The "user" flags describe the caller's access (root may write anything),
    // and setting them would set the owner's bits: keep the mode bits only.
    const QFileDevice::Permissions previous =
        existing.permissions() &
        ~(QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser);
    const bool wasReadOnly = existing.isFile() && !(previous & QFileDevice::WriteOwner);
    if (wasReadOnly && !QFile::setPermissions(target, previous | QFileDevice::WriteOwner |
                                                          QFileDevice::WriteUser)) {
        scope.Denote(QStringLiteral("Cannot clear the read-only permission"));
        return false;
    }
    // Unbuffered, so that a short write (disk full, file size limit) shows in
    // write's result: a buffered QSaveFile would drop the unwritten rest at
    // commit and replace the old file with a truncated one.
    QSaveFile file(target);
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                         file.write(image) == image.size() && file.commit();
    if (!written) {
        scope.Denote(file.errorString());
        if (wasReadOnly)
            QFile::setPermissions(target, previous);
        return false;
    }
    RememberDirectory(game.Directory());
    return true;
}

QString CPersistMgr::ContextIdFromFile(const QString& fileName) const
{
    CTraceScope scope("ContextIdFromFile", "CPersistMgr");
    const QString id = CContextMgr::TranslateExternalId(CGameFile::StoredContextIdOfFile(fileName));
    scope.Denote(QStringLiteral("Context Id = ") + id);
    return id;
}

void CPersistMgr::refuseFile(const QString& fileName, const QString& reason) const
{
    tell(tr("File '%1' cannot be opened.\n\n%2").arg(fileName, sentence(reason)),
         FMessageBox::Icon::Exclamation);
}

std::shared_ptr<CGame> CPersistMgr::FileToGame(const QString& fileName)
{
    CTraceScope scope("FileToGame", "CPersistMgr");
    scope.Denote(fileName);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        refuseFile(fileName, file.errorString());
        return nullptr;
    }
    if (file.size() > maximumFileSize) {
        refuseFile(fileName, tr("it is too large to be a Korvane game file"));
        return nullptr;
    }
    // Only the header now; the body is inflated from the file as it is read.
    const QByteArray head = file.read(CGameFile::MaximumHeaderLength);
    if (file.error() != QFileDevice::NoError) {
        refuseFile(fileName, file.errorString());
        return nullptr;
    }

    CGameFile::Header header;
    QString reason;
    if (!CGameFile::ReadHeader(head, header, &reason)) {
        refuseFile(fileName, reason);
        return nullptr;
    }
    const QString contextId = CContextMgr::TranslateExternalId(header.StoredContextId);
    scope.Denote(QStringLiteral("Context Id = ") + contextId);
    const std::shared_ptr<IGameContext>& active = Root().Context();
    if (!active || QString::compare(contextId, active->Id(), Qt::CaseInsensitive) != 0) {
        // The caller activates the file's context first; a file that gets here
        // names a module that is missing, or one that is not active.
        if (const auto other = installedContext(contextId))
            refuseFile(fileName,
                       tr("it was saved with the game module '%1', which is not the active one")
                           .arg(other->Caption()));
        else
            tell(tr("File '%1' is either invalid or you do not have the corresponding Module "
                    "installed.")
                     .arg(fileName),
                 FMessageBox::Icon::Exclamation);
        return nullptr;
    }

    std::shared_ptr<CGame> game = CGameFile::FromDevice(file, &reason);
    if (file.error() != QFileDevice::NoError) {
        refuseFile(fileName, file.errorString());
        return nullptr;
    }
    if (!game)
        refuseFile(fileName, reason);
    return game;
}

bool CPersistMgr::LoadGameFromFile(const QString& fileName)
{
    CTraceScope scope("LoadGameFromFile", "CPersistMgr");
    std::shared_ptr<CGame> game = FileToGame(fileName);
    if (!game)
        return false;
    // Absolute, so that a game opened by a relative name saves back to the
    // same file whatever the current directory becomes.
    QString directory;
    QString name;
    QString extension;
    CUtility::ParsePath(QFileInfo(fileName).absoluteFilePath(), directory, name, extension);
    game->SetFile(name);
    game->SetDirectory(directory);
    game->SetExtension(extension);
    Root().SetGame(std::move(game));
    return true;
}

QString CPersistMgr::StartDirectory()
{
    const QString directory =
        Root().Config().GetValue(QLatin1String(SettingsSection), QLatin1String(LastDirKey));
    return CUtility::DirExists(directory) ? directory : CUtility::GetCurrentPath();
}

void CPersistMgr::RememberDirectory(const QString& directory)
{
    Root().Config().SetValue(QLatin1String(SettingsSection), QLatin1String(LastDirKey), directory);
}

QString CPersistMgr::SelectFileToOpen()
{
    CTraceScope scope("SelectFileToOpen", "CPersistMgr");
    QStringList entries{tr("Korvane Map Files (*.krf, *.cmf)"), QStringLiteral("*.krf;*.cmf")};
    QStringList legacyPatterns;
    const CContextMgr& manager = Root().ContextMgr();
    for (std::int32_t i = 1; i <= manager.ContextCount(); ++i) {
        const std::shared_ptr<IGameContext> context = manager.Context(i);
        const QString extension = context->FileExtension();
        if (extension == QLatin1String("krf"))
            continue;
        const QString pattern = QStringLiteral("*.") + extension;
        entries << context->FileCaption() + QStringLiteral("  (") + pattern + QLatin1Char(')')
                << pattern;
        if (!legacyPatterns.contains(pattern))
            legacyPatterns << pattern;
    }
    entries << tr("Legacy Korvane Map Files") << legacyPatterns.join(QLatin1Char(';'));

    CGui* gui = Root().Gui();
    FOpenFileDlg* dialog = gui ? gui->OpenFileDlg() : nullptr;
    if (!dialog)
        return QString();
    if (!dialog->Display(entries.join(QLatin1Char('|')), openDefaultPattern, StartDirectory()))
        return QString();
    RememberDirectory(dialog->SelDir());
    const QString path = CUtility::JoinPath(dialog->SelDir(), dialog->SelFile(), dialog->SelExt());
    scope.Denote(path);
    return path;
}
