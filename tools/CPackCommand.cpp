#include "CPackCommand.h"

#include "CTool.h"
#include "CToolFailure.h"
#include "CToolSession.h"

#include "contexts/CResFileWriter.h"
#include "core/KorvaneError.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace {

const QString definitionName = QStringLiteral("module.def");

} // namespace

QString CPackCommand::Summary() const
{
    return QStringLiteral("Builds a module pack from a folder holding module.def and its files.");
}

QList<IToolCommand::Argument> CPackCommand::Arguments() const
{
    return {{QStringLiteral("DIR"), QStringLiteral("The folder to pack.")}};
}

QList<QCommandLineOption> CPackCommand::Options() const
{
    return {QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                               QStringLiteral("The pack to write (.krm or .udm)."),
                               QStringLiteral("FILE"))};
}

void CPackCommand::Run(CToolSession&, const QCommandLineParser& parser,
                       const QStringList& arguments, QTextStream& out)
{
    const QString output = CTool::RequiredOption(parser, QStringLiteral("output"));
    const QString& folder = arguments.constFirst();
    const QDir dir(folder);
    if (!QFileInfo(folder).isDir())
        throw CToolFailure::Input(folder, QStringLiteral("no such folder"));

    const QString outputPath = QFileInfo(output).absoluteFilePath();
    QFileInfoList files;
    QFileInfo definition;
    for (const QFileInfo& file :
         dir.entryInfoList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase)) {
        if (file.absoluteFilePath() == outputPath)
            continue;
        if (file.fileName().compare(definitionName, Qt::CaseInsensitive) == 0)
            definition = file;
        else
            files.append(file);
    }
    if (definition.fileName().isEmpty())
        throw CToolFailure::Input(folder, QStringLiteral("it has no ") + definitionName +
                                              QStringLiteral(", which every module needs"));
    files.prepend(definition);

    CResFileWriter writer;
    for (const QFileInfo& file : files) {
        try {
            writer.AddEntry(file.fileName(), CToolSession::ReadInputFile(file.filePath()));
        } catch (const KorvaneError& error) {
            throw CToolFailure::Input(file.filePath(), error.Description());
        }
    }
    const QByteArray pack = writer.ToBytes();
    CToolSession::WriteOutputFile(output, pack);

    const QStringList skipped =
        dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    out << "Wrote " << output << ": " << files.size() << " files, " << pack.size() << " bytes\n";
    if (!skipped.isEmpty())
        out << "Left out the folders " << skipped.join(QStringLiteral(", ")) << '\n';
}
