#include "CUnpackCommand.h"

#include "CTool.h"
#include "CToolFailure.h"
#include "CToolSession.h"

#include "contexts/CResFileMgr.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include <utility>
#include <vector>

QString CUnpackCommand::Summary() const
{
    return QStringLiteral("Writes every file of a module pack into a folder.");
}

QList<IToolCommand::Argument> CUnpackCommand::Arguments() const
{
    return {{QStringLiteral("FILE"), QStringLiteral("The pack (.krm or .udm).")}};
}

QList<QCommandLineOption> CUnpackCommand::Options() const
{
    return {QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                               QStringLiteral("The folder to write into."), QStringLiteral("DIR"))};
}

void CUnpackCommand::Run(CToolSession&, const QCommandLineParser& parser,
                         const QStringList& arguments, QTextStream& out)
{
    const QString output = CTool::RequiredOption(parser, QStringLiteral("output"));
    const QString& path = arguments.constFirst();
    const QFileInfo info(path);
    if (!info.isFile())
        throw CToolFailure::Input(path, QStringLiteral("no such file"));

    CResFileMgr pack(info.absolutePath(), info.fileName());
    if (!pack.IsOpen())
        throw CToolFailure::Input(path, pack.LastError());
    std::vector<std::pair<QString, QByteArray>> entries;
    for (std::int32_t i = 1; i <= pack.EntryCount(); ++i) {
        const QString name = pack.Entry(i).Name;
        QByteArray data;
        if (!pack.ReadEntry(name, data))
            throw CToolFailure::Input(path, pack.LastError());
        entries.emplace_back(name, std::move(data));
    }

    if (!QDir().mkpath(output))
        throw CToolFailure::Input(output, QStringLiteral("the folder cannot be made"));
    const QDir dir(output);
    for (const auto& [name, data] : entries)
        CToolSession::WriteOutputFile(dir.filePath(name), data);
    out << "Wrote " << entries.size() << " files into " << output << '\n';
}
