#include "CKorvane.h"

#include "actions/CActionMgr.h"
#include "contexts/CContextMgr.h"
#include "contexts/CImageListMgr.h"
#include "core/CClock.h"
#include "core/CConfiguration.h"
#include "core/CControlHost.h"
#include "core/CDebug.h"
#include "core/CDragDropMgr.h"
#include "core/CGui.h"
#include "core/CTraceScope.h"
#include "core/CUtility.h"
#include "core/CWinApi.h"
#include "core/IProgressMonitor.h"
#include "model/CGameEventMgr.h"
#include "model/CMap.h"
#include "persist/CPersistMgr.h"
#include "persist/CZlib.h"

#include <QCoreApplication>

#include <cstdlib>

namespace {

std::shared_ptr<CKorvane>& rootSlot()
{
    static std::shared_ptr<CKorvane> root;
    return root;
}

void report(IProgressMonitor* progress, const QString& text)
{
    if (progress)
        progress->UpdateStatus(text, 0.2f);
}

} // namespace

CKorvane& Root()
{
    CKorvane* root = rootSlot().get();
    if (!root)
        throw KorvaneError(91, QStringLiteral("MMain.Root"),
                           QStringLiteral("The application root does not exist"));
    return *root;
}

CKorvane* RootOrNull()
{
    return rootSlot().get();
}

std::shared_ptr<CKorvane> RootShared()
{
    return rootSlot();
}

void InstallRoot(std::shared_ptr<CKorvane> root)
{
    rootSlot() = std::move(root);
}

void ReleaseRoot()
{
    auto root = rootSlot();
    if (!root)
        return;
    // The root stays reachable while its shut-down tasks run, and is released
    // even when one of them fails.
    struct Release
    {
        ~Release() { rootSlot().reset(); }
    } release;
    root->Dispose();
}

CKorvane::CKorvane() = default;

CKorvane::~CKorvane()
{
    if (m_disposed)
        return;
    try {
        Dispose();
    } catch (const std::exception& e) {
        // Nobody is left to report to; the services are released below.
        qWarning("Shut-down task failed: %s", e.what());
    }
    if (!m_disposed)
        Dispose();
}

void CKorvane::Constructor(IProgressMonitor* progress)
{
    report(progress, QCoreApplication::translate("CKorvane", "Initializing..."));

    m_controls = std::make_unique<CControlHost>();
    m_utility = std::make_unique<CUtility>();
    m_trace = std::make_unique<CDebug>(CUtility::GetTraceFile());
    if (qEnvironmentVariable("KORVANE_TRACE") == QLatin1String("1"))
        m_trace->SetEnabled(true);
    m_persistMgr = std::make_unique<CPersistMgr>();
    m_config = std::make_unique<CConfiguration>();
    m_winApi = std::make_unique<CWinApi>();
    m_zlib = std::make_unique<CZlib>();
    m_imageListMgr = std::make_unique<CImageListMgr>();
    m_contextMgr = std::make_unique<CContextMgr>();
    m_clock = std::make_unique<CClock>(*m_controls);
    m_dragDropMgr = std::make_unique<CDragDropMgr>();
    m_actionMgr = std::make_unique<CActionMgr>();
    m_eventMgr = std::make_unique<CGameEventMgr>();

    CTraceScope scope("Constructor", "CKorvane");
    // Discovery runs once every service exists.
    m_contextMgr->Constructor(progress);
    // The windows read context information when they load, so they come last.
    if (m_guiFactory)
        m_gui = m_guiFactory();
    report(progress, QCoreApplication::translate("CKorvane", "Finished..."));
    report(progress, QString());
}

void CKorvane::ExecuteOnShutdown(std::shared_ptr<IShutdownTask> task)
{
    if (!m_shutdownTasks)
        m_shutdownTasks = std::make_unique<CVector<IShutdownTask>>();
    m_shutdownTasks->AddItem(std::move(task));
}

void CKorvane::Dispose()
{
    if (m_disposed)
        return;
    if (m_shutdownTasks) {
        // Taken out first, so a failing task ends this call and no later
        // Dispose runs any task again.
        const std::unique_ptr<CVector<IShutdownTask>> tasks = std::move(m_shutdownTasks);
        CTraceScope scope("Dispose", "CKorvane");
        scope.Denote(QString::number(tasks->Count()) + QStringLiteral(" tasks to execute"));
        // Tasks run while every service is still there.
        for (std::int32_t i = 1; i <= tasks->Count(); ++i)
            tasks->Item(i)->Execute();
    }

    if (m_contextMgr)
        m_contextMgr->Dispose();

    // The context is released without Deactivate.
    m_context.reset();
    m_game.reset();

    // Released in the reverse of their creation order, the GUI first.
    m_gui.reset();
    m_eventMgr.reset();
    m_actionMgr.reset();
    m_dragDropMgr.reset();
    // Events still queued are dropped unrun, with whatever they hold.
    m_clock.reset();
    m_contextMgr.reset();
    m_imageListMgr.reset();
    m_zlib.reset();
    m_winApi.reset();
    m_config.reset();
    m_persistMgr.reset();
    m_trace.reset();
    m_utility.reset();
    m_controls.reset();
    // Maps delete their swap files when they go; this catches those still
    // held elsewhere when the program ends.
    CMap::RemoveLeftoverSwapFiles();
    m_disposed = true;
}
