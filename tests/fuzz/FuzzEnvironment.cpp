#include "FuzzEnvironment.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "core/MMain.h"
#include "model/CArrow.h"
#include "model/CMap.h"
#include "model/CUnit.h"
#include "tokens/IToken.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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

void FuzzEnvironment::FillAndSwapOut(CMap& map)
{
    // The first module that can be used and has tokens, made the root's.
    static const std::shared_ptr<IGameContext> context = [this] {
        const CContextMgr& contexts = m_root->ContextMgr();
        for (std::int32_t i = 1; i <= contexts.ContextCount(); ++i) {
            if (MMain::SwitchContext(contexts.Context(i)) &&
                contexts.Context(i)->Tokens().Count() > 0)
                return contexts.Context(i);
        }
        qFatal("no shipped module can be used");
    }();
    map.AquireLock();
    const CVector<IToken>& tokens = context->Tokens();
    for (std::int32_t i = 1; i <= tokens.Count(); ++i) {
        auto unit = std::make_shared<CUnit>(CUtility::GenerateId(), tokens.Item(i));
        unit->SetX(10 * i);
        unit->SetY(20 * i);
        unit->SetCaption(QStringLiteral("x%1").arg(i));
        map.Units()->AddItem(unit);
    }
    auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
    arrow->SetHeadX(40);
    arrow->SetHeadY(50);
    map.Arrows()->AddItem(arrow);
    map.ReleaseLock();
}

QString FuzzEnvironment::WriteScratch(const QString& name, const QByteArray& bytes) const
{
    WriteFile(m_scratch + name, bytes);
    return m_scratch;
}

void FuzzEnvironment::WriteFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}
