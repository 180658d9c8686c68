#pragma once

#include "contexts/CGameCtxInfo.h"
#include "core/CVector.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <memory>

class CResFileMgr;
class CStandardGame;
class IGameContext;
class IProgressMonitor;

// Finds every game context at start-up and hands them out by position (from
// 1) or by id. Every "*.krm" in the module directory becomes a context: the
// seven fixed file names are served by their fixed classes, any other module
// by a CStandardGame; every "*.udm" in the user module directory becomes a
// CUserDefinedGame. Modules come first, then user modules, each part sorted
// by name. A pack that cannot be read, or whose definition does not load, is
// skipped without a message; of two packs with one id the first listed wins.
class CContextMgr
{
    Q_DECLARE_TR_FUNCTIONS(CContextMgr)

public:
    CContextMgr() = default;
    ~CContextMgr();
    CContextMgr(const CContextMgr&) = delete;
    CContextMgr& operator=(const CContextMgr&) = delete;

    // Discovers the contexts, reporting to progress (which may be null).
    void Constructor(IProgressMonitor* progress);
    // Disposes every context in list order and forgets them.
    void Dispose();

    // The module id of an old three-letter code ("AAE"); anything else unchanged.
    static QString TranslateExternalId(const QString& id);
    // The three-letter code of a fixed context's id; anything else unchanged.
    static QString TranslateInternalId(const QString& id);

    // 1-based; raises KorvaneError 1 outside 1..ContextCount.
    std::shared_ptr<IGameContext> Context(std::int32_t position) const;
    std::int32_t ContextCount() const { return m_contexts.Count(); }
    // Position of the context with exactly this id, 0 when there is none.
    std::int32_t PosOfContext(const QString& id) const;
    // The records behind the contexts, in the same order.
    const CVector<CGameCtxInfo>& Infos() const { return m_contexts; }

    // A new, uninitialised fixed context for a module file name (compared in
    // lower case); null for any other name.
    static std::shared_ptr<CStandardGame> CreateFixedContext(const QString& fileName);

private:
    enum class Kind
    {
        Module,
        UserModule
    };

    std::shared_ptr<CGameCtxInfo> loadFixed(const std::shared_ptr<CResFileMgr>& resFile) const;
    std::shared_ptr<CGameCtxInfo> loadStandard(const std::shared_ptr<CResFileMgr>& resFile,
                                               Kind kind) const;
    void discover(const QString& directory, const QString& pattern, Kind kind,
                  CVector<CGameCtxInfo>& found, IProgressMonitor* progress) const;

    CVector<CGameCtxInfo> m_contexts;
};
