#include "support/PackEdit.h"

#include "contexts/CResFileMgr.h"
#include "contexts/CResFileWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

QByteArray EditPack(const QByteArray& pack, const QMap<QString, QByteArray>& replace,
                    const QStringList& drop)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("edit.krm"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(pack) != pack.size()) {
        ADD_FAILURE() << "cannot write " << path.toStdString();
        return QByteArray();
    }
    file.close();

    CResFileMgr reader(dir.path(), QStringLiteral("edit.krm"));
    EXPECT_TRUE(reader.IsOpen()) << reader.LastError().toStdString();
    QMap<QString, QByteArray> pending;
    for (auto it = replace.cbegin(); it != replace.cend(); ++it)
        pending.insert(it.key().toLower(), it.value());
    QStringList dropped;
    for (const QString& name : drop)
        dropped.append(name.toLower());

    CResFileWriter writer;
    for (std::int32_t i = 1; i <= reader.EntryCount(); ++i) {
        const QString name = reader.Entry(i).Name;
        if (dropped.contains(name))
            continue;
        if (pending.contains(name)) {
            writer.AddEntry(name, pending.take(name));
            continue;
        }
        QByteArray data;
        EXPECT_TRUE(reader.ReadEntry(name, data)) << reader.LastError().toStdString();
        writer.AddEntry(name, data);
    }
    for (auto it = pending.cbegin(); it != pending.cend(); ++it)
        writer.AddEntry(it.key(), it.value());
    return writer.ToBytes();
}
