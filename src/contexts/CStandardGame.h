#pragma once

#include "contexts/CModuleDefinition.h"
#include "contexts/IGameContext.h"

#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QString>

#include <cstdint>
#include <memory>

// The context of a module driven by its "module.def": title, board picture,
// token set, label look and picture sizes all come from the definition and
// the module's resource pack. The definition's body, the pictures and the
// tokens are loaded on activation; the body is read once and kept.
//
// Built without a definition (the fixed contexts), the context reads the
// "module.def" of its own pack when first needed; a pack without a usable one
// fails activation with a KorvaneError that says why.
class CStandardGame : public IGameContext, public std::enable_shared_from_this<CStandardGame>
{
    Q_DECLARE_TR_FUNCTIONS(CStandardGame)

public:
    // Number of the KorvaneError raised when a module cannot be used.
    static constexpr int ModuleErrorNumber = 5;

    CStandardGame();
    ~CStandardGame() override;
    CStandardGame(const CStandardGame&) = delete;
    CStandardGame& operator=(const CStandardGame&) = delete;

    QString Id() const override;
    QString Caption() const override;
    // The module's icon (its definition's new-game picture); null when it names none.
    QImage Picture() const override;
    QString FontName() const override;
    double FontSize() const override;
    bool HasTransparentLabel() const override;
    QString MultiplierPrefix() const override;
    std::int32_t LabelForeColor() const override;
    std::int32_t LabelBackColor() const override;
    std::int32_t LabelMovedColor() const override;
    QString FileExtension() const override { return QStringLiteral("krf"); }
    QString FileCaption() const override { return QStringLiteral("Korvane Game Files"); }

    void Initialize(std::shared_ptr<CModuleDefinition> definition,
                    std::shared_ptr<CResFileMgr> resFile) override;
    // Loads the body (first time only), takes three image lists, unpacks the
    // board picture and builds the tokens. Raises a KorvaneError when the
    // module cannot be used, having released whatever it took.
    void Activate(IProgressMonitor* progress) override;
    // Gives the image lists back and drops the board picture and the tokens.
    void Deactivate() override;
    // Final release: also deletes the cache files unpacked from the pack.
    void Dispose() override;
    // A new game with a fresh id: the module's initial game when its
    // definition names one, else one group holding one empty map "Start".
    // The context must be active; it is made the root's context while the
    // initial game is read.
    std::shared_ptr<CGame> CreateDefaultGame() override;

    QImage MapPicture() const override { return m_mapPicture; }
    std::int32_t MapWidth() const override { return m_mapPicture.width(); }
    std::int32_t MapHeight() const override { return m_mapPicture.height(); }
    std::shared_ptr<CImageList> PalletImgLst() const override { return m_palletList; }
    std::shared_ptr<CImageList> DragImgLst() const override { return m_dragList; }
    bool IsUserDefined() const override { return false; }
    std::shared_ptr<CImageList> UnitImgLst() const override { return m_unitList; }
    const CVector<IToken>& Tokens() const override { return m_tokens; }
    const CVector<IActionTool>& CustomTools() const override { return m_customTools; }
    const CVector<IAction>& CustomActions() const override { return m_customActions; }
    QString Url() const override;

    // One token of a definition's record: index and category as the context
    // numbers them, the image key being the token's id. The class name is
    // matched without regard to case; an unknown one gives a CEmptyToken.
    static std::shared_ptr<IToken> CreateToken(const CModuleDefinition::Token& record,
                                               std::int16_t index, const QString& category,
                                               std::int32_t unitWidth, std::int32_t unitHeight);

    bool IsActive() const { return m_active; }
    const std::shared_ptr<CModuleDefinition>& Definition() const { return m_definition; }
    const std::shared_ptr<CResFileMgr>& ResFile() const { return m_resFile; }

private:
    // Reads the pack's own "module.def" when none was given. Raises when
    // raiseOnFailure, else leaves the definition null.
    bool ensureDefinition(bool raiseOnFailure) const;
    [[noreturn]] void fail(const char* operation, const QString& description) const;
    void buildTokens(IProgressMonitor* progress);
    void addCustomTools();
    QImage picture(const QString& entryName);
    std::shared_ptr<CGame> createStartGame() const;
    std::shared_ptr<CGame> createInitialGame(const QString& entryName);
    void releaseActivation();

    // Identity kept from the definition's header, so it outlives Dispose.
    QString m_id;
    QString m_title;
    mutable std::shared_ptr<CModuleDefinition> m_definition;
    std::shared_ptr<CResFileMgr> m_resFile;
    mutable bool m_definitionTried = false;
    mutable QString m_definitionError;
    mutable QImage m_icon;
    mutable bool m_iconLoaded = false;
    bool m_active = false;
    std::shared_ptr<CImageList> m_palletList;
    std::shared_ptr<CImageList> m_dragList;
    std::shared_ptr<CImageList> m_unitList;
    QImage m_mapPicture;
    // Pictures unpacked during one activation, by lower-case entry name.
    QHash<QString, QImage> m_pictures;
    CVector<IToken> m_tokens;
    CVector<IActionTool> m_customTools;
    CVector<IAction> m_customActions;
};
