#pragma once

#include "core/CString.h"
#include "core/CVector.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <memory>

// Paths under the home directory, identifiers and list look-ups, names and
// small conversions. Directory results always end in "/".
class CUtility
{
public:
    // --- identities ---------------------------------------------------------
    // 32 upper-case hex digits of a new GUID, in its usual text order.
    static QString GenerateId();

    // First position whose UniqueId equals id exactly, 0 if none.
    template <typename T>
    static std::int32_t SearchById(const CVector<T>& list, const QString& id)
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
    template <typename T>
    static void SortByName(CVector<T>& list)
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
    // The home: $KORVANE_HOME when set, else the executable's directory.
    static QString GetAppPath();
    static QString GetCurrentPath();
    static QString GetModuleDir();
    static QString GetCacheDir();
    static QString GetUserModuleDir();

    // A new, empty, uniquely named file in the temporary directory (prefix "KR").
    static QString CreateTempFile();
    // Copies a program resource (a Qt resource path such as ":/korvane/x") to a file.
    static bool ResDataToFile(const QString& resourcePath, const QString& fileName);

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
