#pragma once

#include <QCoreApplication>
#include <QString>

class FMessageBox;

// Installs a module file chosen by the user. The file is copied into the
// cache at once and moved into the module directory (".krm") or the user
// module directory (".udm") when the program ends, by a CInstallModTask; the
// module is found at the next start. That directory must exist: without it
// the user is told and nothing is copied. Replacing an installed module of
// the same file name needs the user's consent.
class CModuleInstaller
{
    Q_DECLARE_TR_FUNCTIONS(CModuleInstaller)

public:
    enum class Result
    {
        Installed,
        NothingChosen,
        InvalidExtension,
        MissingDirectory,
        NotFound,
        AlreadyInPlace,
        Declined,
        CacheFailed,
        ReadOnlyFailed
    };

    // What the open-file dialog offers.
    static QString FileFilter()
    {
        return QStringLiteral("Game Modules (*.krm, *.udm)|*.krm;*.udm");
    }
    static QString DefaultPattern() { return QStringLiteral("*.krm;*.udm"); }

    // Prepares the installation of the module file at path, asking and
    // telling the user through messages. Nothing is installed unless the
    // result is Installed.
    static Result Install(const QString& path, FMessageBox& messages);
};
