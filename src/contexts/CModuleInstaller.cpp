#include "CModuleInstaller.h"

#include "contexts/CInstallModTask.h"
#include "core/CKorvane.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/FMessageBox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// Directories compare without regard to case, as the program always has.
bool sameDirectory(const QString& a, const QString& b)
{
    const QString left = QFileInfo(a).absoluteFilePath();
    const QString right = QFileInfo(b).absoluteFilePath();
    return QString::compare(left, right, Qt::CaseInsensitive) == 0;
}

} // namespace

CModuleInstaller::Result CModuleInstaller::Install(const QString& path, FMessageBox& messages)
{
    CTraceScope scope("Install", "CModuleInstaller");
    if (path.isEmpty())
        return Result::NothingChosen;
    scope.Denote(QStringLiteral("Module = ") + path);

    QString sourceDirectory;
    QString name;
    QString extension;
    CUtility::ParsePath(path, sourceDirectory, name, extension);
    QString directory;
    if (extension.toLower() == QLatin1String("krm")) {
        directory = CUtility::GetModuleDir();
    } else if (extension.toLower() == QLatin1String("udm")) {
        directory = CUtility::GetUserModuleDir();
    } else {
        scope.Denote(QStringLiteral("Directory is not valid"));
        return Result::InvalidExtension;
    }
    const QString fileName = name + QLatin1Char('.') + extension;
    const QString destination = directory + fileName;
    if (!QFileInfo(directory).isDir()) {
        scope.Denote(QStringLiteral("Directory is not valid"));
        messages.Information(CKorvane::Name(),
                             tr("%1 cannot be installed: the folder %2 does not exist. Nothing "
                                "has been installed.")
                                 .arg(fileName, QDir::toNativeSeparators(directory)),
                             FMessageBox::Icon::Exclamation);
        return Result::MissingDirectory;
    }
    if (!QFileInfo(path).isFile()) {
        scope.Denote(QStringLiteral("Module not found"));
        return Result::NotFound;
    }

    // A module chosen from where it would go is installed already.
    if (!sourceDirectory.isEmpty() && sameDirectory(sourceDirectory, directory)) {
        scope.Denote(QStringLiteral("Module is already in place"));
        messages.Information(CKorvane::Name(), tr("%1 is already installed.").arg(fileName),
                             FMessageBox::Icon::Information);
        return Result::AlreadyInPlace;
    }

    if (CUtility::FileExists(destination)) {
        const FMessageBox::Answer answer = messages.Question(
            tr("Module already exists"),
            tr("%1 already exits.\nDo you want to replace it?").arg(fileName),
            FMessageBox::Buttons::YesNo, FMessageBox::Icon::Exclamation, FMessageBox::Answer::No);
        if (answer != FMessageBox::Answer::Yes)
            return Result::Declined;
        scope.Denote(QStringLiteral("Overwriting Module"));
    }

    const QString cacheDirectory = CUtility::GetCacheDir();
    const QString cached = cacheDirectory + CUtility::GenerateId() + QStringLiteral(".tmp");
    scope.Denote(QStringLiteral("Cache at ") + cached);
    if (!CUtility::BuildDirectory(cacheDirectory) || !QFile::copy(path, cached)) {
        scope.Denote(QStringLiteral("Error while caching Module"));
        return Result::CacheFailed;
    }

    // The copy keeps the original's permissions; the move at shut-down needs
    // to be able to replace it later.
    if (!(QFileInfo(cached).permissions() & QFileDevice::WriteOwner)) {
        scope.Denote(QStringLiteral("Module is ReadOnly"));
        if (!QFile::setPermissions(cached, QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
            scope.Denote(QStringLiteral("Failed to unset ReadOnly"));
            QFile::remove(cached);
            return Result::ReadOnlyFailed;
        }
    }

    Root().ExecuteOnShutdown(std::make_shared<CInstallModTask>(cached, destination));
    messages.Information(CKorvane::Name(),
                         tr("You must restart Korvane for these settings to take effect."),
                         FMessageBox::Icon::Exclamation);
    return Result::Installed;
}
