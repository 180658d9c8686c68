#include "tool/ToolTestSupport.h"

#include "contexts/CContextMgr.h"
#include "persist/CGameFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

QJsonValue ToolRun::Json() const
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(Out.toUtf8(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

std::unique_ptr<QProcess> StartTool(const QStringList& arguments,
                                    const std::function<void()>& prepare)
{
    static QTemporaryDir settings;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
#ifdef Q_OS_UNIX
    if (prepare)
        process->setChildProcessModifier(prepare);
#endif
    process->start(QStringLiteral(KORVANE_TOOL_PATH), arguments);
    return process;
}

ToolRun FinishTool(QProcess& process)
{
    ToolRun run;
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        ADD_FAILURE() << "korvane-tool did not finish: "
                      << process.arguments().join(' ').toStdString();
    }
    run.Out = QString::fromUtf8(process.readAllStandardOutput());
    run.Err = QString::fromUtf8(process.readAllStandardError());
    if (process.exitStatus() == QProcess::NormalExit)
        run.Status = process.exitCode();
    return run;
}

ToolRun RunTool(const QStringList& arguments)
{
    return FinishTool(*StartTool(arguments));
}

TestModule ToolFixture::WarModule()
{
    TestModule module = TestModule::Titled(QStringLiteral("war"), QStringLiteral("War Game"));
    module.UnitSize = UnitSize;
    TestToken move(QStringLiteral("move"), QStringLiteral("Arrow"), QStringLiteral("Markers"));
    move.Extra = QStringLiteral("<line_html_color>#FF0000</line_html_color>");
    module.Tokens = {TestToken(QStringLiteral("inf"), QStringLiteral("Quantity")),
                     TestToken(QStringLiteral("tank")), move};
    return module;
}

void ToolFixture::SetUp()
{
    WarModule().WriteTo(home.File(QStringLiteral("modules/war.krm")));
    CKorvane& root = StartRoot();
    const std::int32_t position = root.ContextMgr().PosOfContext(QStringLiteral("krm_war_v1"));
    ASSERT_NE(position, 0);
    context = root.ContextMgr().Context(position);
    context->Activate(nullptr);
    root.SetContext(context);
}

void ToolFixture::TearDown()
{
    context.reset();
    ReleaseRoot();
}

ToolRun ToolFixture::Tool(QStringList arguments) const
{
    return RunTool(arguments << QStringLiteral("--home") << home.Path());
}

std::shared_ptr<CGame> ToolFixture::NewGame(const QString& name) const
{
    auto game = context->CreateDefaultGame();
    game->SetName(name);
    return game;
}

std::shared_ptr<CMap> ToolFixture::AddMap(CMapGroup& group, const QString& name)
{
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group.Id());
    map->SetName(name);
    group.Maps().AddItem(map);
    group.SwitchTo(map);
    return map;
}

QString ToolFixture::Save(CGame& game, const QString& fileName) const
{
    return home.WriteFile(fileName, CGameFile::ToBytes(game, context->Id()));
}
