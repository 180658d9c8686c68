#include "FuzzEnvironment.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/MMain.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>

FuzzEnvironment& FuzzEnvironment::Get()
{
    static FuzzEnvironment* const environment = new FuzzEnvironment();
    return *environment;
}

FuzzEnvironment::FuzzEnvironment()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "korvane-fuzz";
    static char* argv[] = {name, nullptr};
    // Lives as long as the process; Qt keeps its pointer.
    new QGuiApplication(argc, argv);

    // A static: exit() runs its destructor, which removes the folder.
    static const QTemporaryDir base(QDir::tempPath() + QStringLiteral("/korvane-fuzz-XXXXXX"));
    if (!base.isValid())
        qFatal("cannot create a temporary folder");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, base.filePath("settings"));
    const QString modules = base.filePath(QStringLiteral("home/modules/"));
    m_scratch = base.filePath(QStringLiteral("scratch/"));
    QDir().mkpath(modules);
    QDir().mkpath(m_scratch);
    const QDir shipped(QStringLiteral(KORVANE_SHIPPED_MODULES_DIR));
    for (const QString& pack : shipped.entryList({QStringLiteral("*.krm")}, QDir::Files))
        QFile::copy(shipped.filePath(pack), modules + pack);
    qputenv("KORVANE_HOME", QFile::encodeName(base.filePath(QStringLiteral("home"))));

    m_root = std::make_shared<CKorvane>();
    InstallRoot(m_root);
    m_root->Constructor(nullptr);
}

std::shared_ptr<IGameContext> FuzzEnvironment::AnyUsableContext()
{
    const CContextMgr& contexts = m_root->ContextMgr();
    for (std::int32_t i = 1; i <= contexts.ContextCount(); ++i) {
        const std::shared_ptr<IGameContext> context = contexts.Context(i);
        if (MMain::SwitchContext(context) && context->Tokens().Count() > 0)
            return context;
    }
    return nullptr;
}

QString FuzzEnvironment::WriteScratch(const QString& name, const QByteArray& bytes) const
{
    QFile file(m_scratch + name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("cannot write the scratch file %s", qPrintable(file.fileName()));
    return m_scratch;
}
