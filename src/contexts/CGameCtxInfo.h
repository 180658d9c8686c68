#pragma once

#include "core/IHasName.h"
#include "core/IHasUniqueId.h"

#include <QString>

#include <memory>

class CModuleDefinition;
class CResFileMgr;
class IGameContext;

// The context manager's record of one context: where its module file lies,
// what was unpacked from it, and the context object itself.
class CGameCtxInfo : public IHasName, public IHasUniqueId
{
public:
    const std::shared_ptr<CResFileMgr>& ResFile() const { return m_resFile; }
    void SetResFile(std::shared_ptr<CResFileMgr> resFile) { m_resFile = std::move(resFile); }
    // The module file's name without directory, and the directory ("/" at the end).
    const QString& FileName() const { return m_fileName; }
    void SetFileName(const QString& fileName) { m_fileName = fileName; }
    const QString& Directory() const { return m_directory; }
    void SetDirectory(const QString& directory) { m_directory = directory; }
    // Name of the unpacked "module.def" in CacheDirectory; empty for the fixed contexts.
    const QString& DefinitionFile() const { return m_definitionFile; }
    void SetDefinitionFile(const QString& definitionFile) { m_definitionFile = definitionFile; }
    const QString& CacheDirectory() const { return m_cacheDirectory; }
    void SetCacheDirectory(const QString& cacheDirectory) { m_cacheDirectory = cacheDirectory; }
    // Null for the fixed contexts.
    const std::shared_ptr<CModuleDefinition>& Definition() const { return m_definition; }
    void SetDefinition(std::shared_ptr<CModuleDefinition> definition)
    {
        m_definition = std::move(definition);
    }
    const QString& Id() const { return m_id; }
    void SetId(const QString& id) { m_id = id; }
    // The context's caption (fixed contexts) or the definition's title.
    QString Name() const override { return m_name; }
    void SetName(const QString& name) { m_name = name; }
    // The three-letter code of a fixed context; empty otherwise.
    const QString& ShortCode() const { return m_shortCode; }
    void SetShortCode(const QString& shortCode) { m_shortCode = shortCode; }
    const std::shared_ptr<IGameContext>& Context() const { return m_context; }
    void SetContext(std::shared_ptr<IGameContext> context) { m_context = std::move(context); }

    QString UniqueId() const override { return m_id; }

private:
    std::shared_ptr<CResFileMgr> m_resFile;
    QString m_fileName;
    QString m_directory;
    QString m_definitionFile;
    QString m_cacheDirectory;
    std::shared_ptr<CModuleDefinition> m_definition;
    QString m_id;
    QString m_name;
    QString m_shortCode;
    std::shared_ptr<IGameContext> m_context;
};
