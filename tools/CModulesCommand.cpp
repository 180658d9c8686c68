#include "CModulesCommand.h"

#include "CToolSession.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

const QString jsonName = QStringLiteral("json");

QString kindOf(const CGameCtxInfo& info)
{
    if (!info.ShortCode().isEmpty())
        return QStringLiteral("builtin");
    if (info.Context()->IsUserDefined())
        return QStringLiteral("user");
    return QStringLiteral("standard");
}

// One field of a tab-separated line: tabs and line breaks would split it.
QString field(QString text)
{
    for (QChar& c : text) {
        if (c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r'))
            c = QLatin1Char(' ');
    }
    return text;
}

} // namespace

QString CModulesCommand::Summary() const
{
    return QStringLiteral("Lists the installed modules in the order the program offers them.");
}

QList<QCommandLineOption> CModulesCommand::Options() const
{
    return {QCommandLineOption(jsonName, QStringLiteral("Writes a JSON array instead of lines."))};
}

void CModulesCommand::Run(CToolSession& session, const QCommandLineParser& parser,
                          const QStringList&, QTextStream& out)
{
    const CVector<CGameCtxInfo>& infos = session.Root().ContextMgr().Infos();
    QJsonArray modules;
    for (std::int32_t position = 1; position <= infos.Count(); ++position) {
        const CGameCtxInfo& info = *infos.Item(position);
        const IGameContext& context = *info.Context();
        const QString file = info.Directory() + info.FileName();
        if (parser.isSet(jsonName)) {
            modules.append(QJsonObject{
                {QStringLiteral("position"), position},
                {QStringLiteral("id"), context.Id()},
                {QStringLiteral("caption"), context.Caption()},
                {QStringLiteral("kind"), kindOf(info)},
                {QStringLiteral("file"), file},
                {QStringLiteral("extension"), context.FileExtension()},
            });
        } else {
            out << position << '\t' << field(context.Id()) << '\t' << field(context.Caption())
                << '\t' << kindOf(info) << '\t' << field(file) << '\n';
        }
    }
    if (parser.isSet(jsonName))
        out << QJsonDocument(modules).toJson(QJsonDocument::Indented);
}
