#pragma once

#include "core/CString.h"
#include "core/CVector.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

class QLockFile;

// Paths under the home directory, identifiers and list look-ups, names and
// small conversions. Directory results always end in "/".
class CUtility
{
public:
    // --- identities ---------------------------------------------------------
    // 32 upper-case hex digits of a new GUID, in its usual text order.
    static QString GenerateId();

    // First position whose UniqueId equals id exactly, 0 if none.
    template <typename T> static std::int32_t SearchById(const CVector<T>& list, const QString& id)
    {
        for (std::int32_t i = 1; i <= list.Count(); ++i) {
            if (list.Item(i)->UniqueId() == id)
                return i;
        }
        return 0;
    }

    // First position whose Name equals name exactly, 0 if none.
    template <typename T>
    static std::int32_t SearchByName(const CVector<T>& list, const QString& name)
    {
        for (std::int32_t i = 1; i <= list.Count(); ++i) {
            if (list.Item(i)->Name() == name)
                return i;
        }
        return 0;
    }

    // The item under key, or nothing; a missing key is not an error.
    template <typename T>
    static std::shared_ptr<T> LookupItem(const QString& key,
                                         const QHash<QString, std::shared_ptr<T>>& collection)
    {
        return collection.value(key);
    }

    // In-place selection sort by name, case-insensitive, ascending; not stable.
    template <typename T> static void SortByName(CVector<T>& list)
    {
        for (std::int32_t i = 1; i <= list.Count(); ++i) {
            QString current = list.Item(i)->Name();
            for (std::int32_t j = i; j <= list.Count(); ++j) {
                if (QString::compare(current, list.Item(j)->Name(), Qt::CaseInsensitive) > 0) {
                    list.Swap(j, i);
                    current = list.Item(i)->Name();
                }
            }
        }
    }

    // --- paths and files ----------------------------------------------------
    // Two layouts. Portable, when $KORVANE_HOME is set or the executable's
    // directory holds a "modules" folder (a build folder, an unpacked zip):
    // modules/, usermods/, cache/ and debug.txt all live in that home.
    // Installed otherwise, the freedesktop way: shipped modules in
    // <exe>/../share/korvane/modules/ (read only), the user's modules and user
    // modules under $XDG_DATA_HOME/korvane/, the cache in
    // $XDG_CACHE_HOME/korvane/, the trace in $XDG_STATE_HOME/korvane/.
    static bool IsPortable();
    // The home: $KORVANE_HOME when set, else the executable's directory.
    static QString GetAppPath();
    static QString GetCurrentPath();
    // directory + name, then "." + extension unless the extension is empty.
    static QString JoinPath(const QString& directory, const QString& name,
                            const QString& extension);
    // Where modules are installed to: the home's modules/, or the user's.
    static QString GetModuleDir();
    // Where modules are found, in discovery order: the user's folder first,
    // so that a user's copy of a module wins over the shipped one.
    static QStringList GetModuleDirs();
    // The shipped modules of an installed tree, located from the executable.
    static QString GetInstalledModuleDir();
    static QString GetCacheDir();
    static QString GetUserModuleDir();
    // The trace file's full path.
    static QString GetTraceFile();
    // Recovery copies of games with unsaved changes, inside the cache.
    static QString GetRecoveryDir();

    // A new, empty, uniquely named file in the temporary directory (prefix "KR").
    static QString CreateTempFile();
    // Copies a program resource (a Qt resource path such as ":/korvane/x") to a file.
    static bool ResDataToFile(const QString& resourcePath, const QString& fileName);
    // The lock file base + ".lock", which only a dead owner loses: never stale
    // merely by its age.
    static std::unique_ptr<QLockFile> OwnerLock(const QString& base);

    // Never fail: any problem reads as "absent".
    static bool FileExists(const QString& path) noexcept;
    static bool DirExists(const QString& path) noexcept;
    static bool BuildDirectory(const QString& path);

    // Names of the files matching a pattern such as ".../modules/*.krm". The
    // pattern ignores case; names come sorted case-insensitively.
    static CVector<CString> GetDirListing(const QString& pathSpec);

    // --- names and conversions ----------------------------------------------
    static bool ValidName(const QString& name);
    static QString EscapeCaption(const QString& text);
    // Splits at the last "/" or "\" and the last dot of the file part:
    // directory (with its separator), name, extension (without the dot).
    static void ParsePath(const QString& path, QString& directory, QString& name,
                          QString& extension);
    static float HimetricToTwips(float value);
    // A pseudo-random number in [lower, upper].
    static std::int32_t RandomNumber(std::int32_t lower, std::int32_t upper);
    // Seconds from a monotonic clock; only differences mean anything.
    static double GetTimestamp();
};
