#pragma once

#include "core/CVector.h"
#include "core/IShutdownTask.h"

#include <QString>

#include <functional>
#include <memory>

class CActionMgr;
class CClock;
class CConfiguration;
class CContextMgr;
class CControlHost;
class CDebug;
class CDragDropMgr;
class CGame;
class CImageListMgr;
class CGameEventMgr;
class CGui;
class CPersistMgr;
class IGameContext;
class CUtility;
class CWinApi;
class CZlib;
class IProgressMonitor;

// The application root: owns every long-lived service, created in a fixed
// order by Constructor and released in a fixed order by Dispose.
class CKorvane
{
public:
    using GuiFactory = std::function<std::unique_ptr<CGui>()>;

    CKorvane();
    ~CKorvane();
    CKorvane(const CKorvane&) = delete;
    CKorvane& operator=(const CKorvane&) = delete;

    // Builds the GUI, last of all, when a factory is installed before Constructor.
    void SetGuiFactory(GuiFactory factory) { m_guiFactory = std::move(factory); }
    void Constructor(IProgressMonitor* progress);
    // Runs the shut-down tasks and releases everything; a second call does nothing.
    void Dispose();

    static QString Name() { return QStringLiteral("Korvane"); }

    // The open game and the active context; nothing when none.
    const std::shared_ptr<CGame>& Game() const { return m_game; }
    void SetGame(std::shared_ptr<CGame> game) { m_game = std::move(game); }
    const std::shared_ptr<IGameContext>& Context() const { return m_context; }
    void SetContext(std::shared_ptr<IGameContext> context) { m_context = std::move(context); }

    CControlHost& Controls() const { return *m_controls; }
    CUtility& Utility() const { return *m_utility; }
    CDebug& Trace() const { return *m_trace; }
    CPersistMgr& PersistMgr() const { return *m_persistMgr; }
    CConfiguration& Config() const { return *m_config; }
    CWinApi& WinApi() const { return *m_winApi; }
    CZlib& Zlib() const { return *m_zlib; }
    CImageListMgr& ImageListMgr() const { return *m_imageListMgr; }
    CContextMgr& ContextMgr() const { return *m_contextMgr; }
    CClock& Clock() const { return *m_clock; }
    CDragDropMgr& DragDropMgr() const { return *m_dragDropMgr; }
    CActionMgr& ActionMgr() const { return *m_actionMgr; }
    CGameEventMgr& EventMgr() const { return *m_eventMgr; }
    // Null when the program runs without windows.
    CGui* Gui() const { return m_gui.get(); }

    // Null before Constructor and after Dispose.
    CDebug* TracePtr() const { return m_trace.get(); }
    bool IsConstructed() const { return m_utility != nullptr; }
    bool IsDisposed() const { return m_disposed; }

    void ExecuteOnShutdown(std::shared_ptr<IShutdownTask> task);
    std::int32_t ShutdownTaskCount() const
    {
        return m_shutdownTasks ? m_shutdownTasks->Count() : 0;
    }

private:
    std::unique_ptr<CControlHost> m_controls;
    std::unique_ptr<CUtility> m_utility;
    std::unique_ptr<CDebug> m_trace;
    std::unique_ptr<CPersistMgr> m_persistMgr;
    std::unique_ptr<CConfiguration> m_config;
    std::unique_ptr<CWinApi> m_winApi;
    std::unique_ptr<CZlib> m_zlib;
    std::unique_ptr<CImageListMgr> m_imageListMgr;
    std::unique_ptr<CContextMgr> m_contextMgr;
    std::unique_ptr<CClock> m_clock;
    std::unique_ptr<CDragDropMgr> m_dragDropMgr;
    std::unique_ptr<CActionMgr> m_actionMgr;
    std::unique_ptr<CGameEventMgr> m_eventMgr;
    GuiFactory m_guiFactory;
    std::unique_ptr<CGui> m_gui;
    std::unique_ptr<CVector<IShutdownTask>> m_shutdownTasks;
    std::shared_ptr<CGame> m_game;
    std::shared_ptr<IGameContext> m_context;
    bool m_disposed = false;
};

// The one root of the process. Root() must only be called while a root is
// installed; RootOrNull() is for code that may run without one.
CKorvane& Root();
CKorvane* RootOrNull();
std::shared_ptr<CKorvane> RootShared();
void InstallRoot(std::shared_ptr<CKorvane> root);
// Disposes the root and releases it; Root() has nothing from then on.
void ReleaseRoot();
