#pragma once

#include <QSet>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class CModuleDefinition;
class CResFileMgr;

// Checks a module pack as thoroughly as the program would use it: the pack's
// directory, its "module.def" read the way discovery reads it (header, then
// body), every picture the definition names, each token's click region, and
// the initial game. Each problem names the entry at fault; problems in the
// definition carry its line where the XML has one. Needs the application root
// (the initial game is read by the module's own context).
class CModuleCheck
{
public:
    struct Problem
    {
        // The pack entry at fault ("module.def", "board.png"), or the pack's
        // own file name when the pack as a whole is at fault.
        QString Entry;
        QString Text;
    };

    explicit CModuleCheck(QString path);
    ~CModuleCheck();
    CModuleCheck(const CModuleCheck&) = delete;
    CModuleCheck& operator=(const CModuleCheck&) = delete;

    // Runs every check; true when there was no problem.
    bool Run();

    const std::vector<Problem>& Problems() const { return m_problems; }
    // What the definition declares; empty until its header has loaded.
    const QString& Id() const { return m_id; }
    const QString& Title() const { return m_title; }
    std::int32_t CategoryCount() const { return m_categoryCount; }
    std::int32_t TokenCount() const { return m_tokenCount; }
    std::int32_t EntryCount() const { return m_entryCount; }

private:
    bool checkDefinition();
    // False when the picture cannot be used; each entry is checked once.
    bool checkPicture(const QString& entry, const QString& use);
    void checkTokens();
    void checkInitialGame();
    void problem(const QString& entry, const QString& text);

    QString m_path;
    QString m_fileName;
    bool m_userModule = false;
    std::shared_ptr<CResFileMgr> m_pack;
    std::shared_ptr<CModuleDefinition> m_definition;
    QSet<QString> m_checkedPictures;
    bool m_boardUsable = false;
    std::vector<Problem> m_problems;
    QString m_id;
    QString m_title;
    std::int32_t m_categoryCount = 0;
    std::int32_t m_tokenCount = 0;
    std::int32_t m_entryCount = 0;
};
