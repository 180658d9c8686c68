#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

// A module's "module.def": identity, board and label look, picture sizes and
// the token set by palette category. LoadHeader reads the identity (for every
// module at start-up); LoadBody reads the rest when the module is first used.
//
// The document is validated against the program's own grammar (the resource
// ":/korvane/module.dtd") with libxml2. It is read without network access,
// entity substitution or grammar loading, and one that brings a DOCTYPE of its
// own is refused. A failed load returns false, changes nothing else, writes
// nothing to the console, and keeps the reason in LastError / LastErrorLine.
class CModuleDefinition
{
public:
    // Where the definition comes from: decides the Id's prefix.
    enum class Origin
    {
        Module,
        UserModule
    };

    static constexpr int SupportedFormatVersion = 1;
    // Largest "module.def" read; real ones are a few kilobytes.
    static constexpr qint64 MaxDocumentSize = 8 * 1024 * 1024;
    // Limits of the numbers a definition holds.
    static constexpr std::int32_t MaxImageSize = 2048;
    static constexpr std::int32_t MaxRegion = 32767;
    // Label colours when the definition gives none or a malformed one.
    static constexpr std::int32_t DefaultLabelForeColor = 65535;  // yellow
    static constexpr std::int32_t DefaultLabelMovedColor = 65280; // green
    static constexpr std::int32_t DefaultLabelBackColor = 0;      // black

    bool LoadHeader(const QString& path, Origin origin = Origin::Module);
    // Reads the document again: from path when given (a fresh copy of the
    // same document, which then becomes Path()), else from Path().
    bool LoadBody(const QString& path = QString());
    bool HeaderLoaded() const { return m_headerLoaded; }
    bool BodyLoaded() const { return m_bodyLoaded; }

    // The failure of the last load: the message (with "line N: " in front when
    // the document has a line for it) and that line, 0 when there is none.
    const QString& LastError() const { return m_lastError; }
    int LastErrorLine() const { return m_lastErrorLine; }
    const QString& Path() const { return m_path; }

    // --- header ------------------------------------------------------------
    // "krm_" or "udm_" + unique_id + "_v" + version.
    const QString& Id() const { return m_header.Id; }
    const QString& Title() const { return m_header.Title; }
    const QString& Url() const { return m_header.Url; }
    const QString& Author() const { return m_header.Author; }
    const QString& Copyright() const { return m_header.Copyright; }
    const QString& MinKrVersion() const { return m_header.MinKrVersion; }
    // Entry of the module's icon picture; empty when the definition names none.
    const QString& GameIconFile() const { return m_header.GameIconFile; }
    // True for a definition of this program that loaded; the Id's prefix
    // tells modules and user modules apart.
    bool IsKrm() const { return m_headerLoaded; }

    // --- body --------------------------------------------------------------
    const QString& InitialGameFile() const { return m_body.InitialGameFile; }
    const QString& MapFile() const { return m_body.MapFile; }
    const QString& FontName() const { return m_body.FontName; }
    double FontSize() const { return m_body.FontSize; }
    bool HasTransparentLabels() const { return m_body.TransparentLabels; }
    QString MultiplierPrefix() const { return QStringLiteral("x"); }
    // Colours: 24-bit, red in the low byte.
    std::int32_t MaskColor() const { return m_body.MaskColor; }
    std::int32_t LabelForeColor() const { return m_body.LabelForeColor; }
    std::int32_t LabelMovedColor() const { return m_body.LabelMovedColor; }
    std::int32_t LabelBackColor() const { return m_body.LabelBackColor; }
    std::int32_t PalletHeight() const { return m_body.PalletHeight; }
    std::int32_t PalletWidth() const { return m_body.PalletWidth; }
    std::int32_t UnitHeight() const { return m_body.UnitHeight; }
    std::int32_t UnitWidth() const { return m_body.UnitWidth; }

    // Categories and tokens count from 1 in document order; a position
    // outside raises KorvaneError 9.
    std::int32_t CategoryCount() const;
    const QString& Category(std::int32_t index) const;
    std::int32_t TokenCount() const;
    // "CEmptyToken", "CQuantityToken", "CNumericToken", "CTextToken" or "CArrowToken".
    const QString& TokenClass(std::int32_t index) const;
    const QString& TokenId(std::int32_t index) const;
    // Position of the category that holds the token.
    std::int32_t TokenCategoryNum(std::int32_t index) const;
    const QString& TokenCaption(std::int32_t index) const;
    // The line colour text of an arrow token, the default text of a text
    // token, empty otherwise.
    const QString& TokenCustomData(std::int32_t index) const;
    const QString& TokenDragFile(std::int32_t index) const;
    const QString& TokenPalletFile(std::int32_t index) const;
    const QString& TokenUnitFile(std::int32_t index) const;
    std::int32_t TokenRegionHeight(std::int32_t index) const;
    std::int32_t TokenRegionWidth(std::int32_t index) const;
    std::int32_t TokenRegionTop(std::int32_t index) const;
    std::int32_t TokenRegionLeft(std::int32_t index) const;

    // "#RRGGBB" (hex digits in any case) to a colour value; false for any
    // other text.
    static bool ParseColor(const QString& text, std::int32_t& color);

    struct Header
    {
        QString Id;
        QString Title;
        QString Url;
        QString Author;
        QString Copyright;
        QString MinKrVersion;
        QString GameIconFile;
    };

    struct Token
    {
        QString Class;
        QString Id;
        std::int32_t CategoryNum = 0;
        QString Caption;
        QString CustomData;
        QString PalletFile;
        QString DragFile;
        QString UnitFile;
        std::int32_t RegionLeft = -1;
        std::int32_t RegionTop = -1;
        std::int32_t RegionWidth = -1;
        std::int32_t RegionHeight = -1;
    };

    struct Body
    {
        QString MapFile;
        QString FontName;
        double FontSize = 0;
        bool TransparentLabels = false;
        std::int32_t LabelForeColor = DefaultLabelForeColor;
        std::int32_t LabelMovedColor = DefaultLabelMovedColor;
        std::int32_t LabelBackColor = DefaultLabelBackColor;
        std::int32_t MaskColor = 0;
        std::int32_t PalletWidth = 0;
        std::int32_t PalletHeight = 0;
        std::int32_t UnitWidth = 0;
        std::int32_t UnitHeight = 0;
        QStringList Categories;
        std::vector<Token> Tokens;
        QString InitialGameFile;
    };

private:
    const Token& token(std::int32_t index, const char* operation) const;
    void setError(const QString& message, int line);

    QString m_path;
    Origin m_origin = Origin::Module;
    bool m_headerLoaded = false;
    bool m_bodyLoaded = false;
    QString m_lastError;
    int m_lastErrorLine = 0;
    Header m_header;
    Body m_body;
};
