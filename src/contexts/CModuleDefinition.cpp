#include "CModuleDefinition.h"

#include "core/CTraceScope.h"
#include "core/KorvaneError.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/valid.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlversion.h>

#include <array>
#include <cmath>
#include <memory>

namespace {

// A reason the document cannot be used, with its line (0 when none).
struct DefinitionError
{
    QString Message;
    int Line = 0;
};

[[noreturn]] void reject(const QString& message, int line = 0)
{
    throw DefinitionError{message, line};
}

// Catches everything libxml2 reports while it lives, so nothing reaches the
// console; keeps the first error with its line. Restores the handlers it found.
class XmlErrorCapture
{
public:
    XmlErrorCapture()
        : m_previousStructured(xmlStructuredError),
          m_previousStructuredContext(xmlStructuredErrorContext),
          m_previousGeneric(xmlGenericError), m_previousGenericContext(xmlGenericErrorContext)
    {
        xmlSetStructuredErrorFunc(this, &XmlErrorCapture::onStructured);
        xmlSetGenericErrorFunc(this, &XmlErrorCapture::onGeneric);
    }
    ~XmlErrorCapture()
    {
        xmlSetStructuredErrorFunc(m_previousStructuredContext, m_previousStructured);
        xmlSetGenericErrorFunc(m_previousGenericContext, m_previousGeneric);
    }
    XmlErrorCapture(const XmlErrorCapture&) = delete;
    XmlErrorCapture& operator=(const XmlErrorCapture&) = delete;

    bool HasError() const { return m_hasError; }
    // Raises the first error seen, or fallback when libxml2 named none.
    [[noreturn]] void Raise(const QString& fallback) const
    {
        if (m_hasError)
            reject(m_message, m_line);
        reject(fallback);
    }

private:
#if LIBXML_VERSION >= 21200
    static void onStructured(void* context, const xmlError* error)
#else
    static void onStructured(void* context, xmlErrorPtr error)
#endif
    {
        auto* self = static_cast<XmlErrorCapture*>(context);
        if (!error || error->level < XML_ERR_ERROR || self->m_hasError)
            return;
        self->m_hasError = true;
        self->m_message = error->message
                              ? QString::fromUtf8(error->message).trimmed()
                              : QStringLiteral("XML error ") + QString::number(error->code);
        self->m_line = error->line;
    }
    // printf-style reports only come from paths without a structured error;
    // they are dropped rather than formatted.
    static void onGeneric(void*, const char*, ...) {}

    xmlStructuredErrorFunc m_previousStructured;
    void* m_previousStructuredContext;
    xmlGenericErrorFunc m_previousGeneric;
    void* m_previousGenericContext;
    bool m_hasError = false;
    QString m_message;
    int m_line = 0;
};

struct DocFree
{
    void operator()(xmlDoc* doc) const { xmlFreeDoc(doc); }
};
struct DtdFree
{
    void operator()(xmlDtd* dtd) const { xmlFreeDtd(dtd); }
};
struct ValidFree
{
    void operator()(xmlValidCtxt* context) const { xmlFreeValidCtxt(context); }
};
using DocPtr = std::unique_ptr<xmlDoc, DocFree>;

int lineOf(const xmlNode* node)
{
    return node ? static_cast<int>(xmlGetLineNo(node)) : 0;
}

QString nameOf(const xmlNode* node)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(node->name));
}

QString tagOf(const char* name)
{
    return QLatin1Char('<') + QLatin1String(name) + QLatin1Char('>');
}

bool isElement(const xmlNode* node, const char* name)
{
    return node->type == XML_ELEMENT_NODE &&
           xmlStrcmp(node->name, reinterpret_cast<const xmlChar*>(name)) == 0;
}

xmlNode* child(xmlNode* parent, const char* name)
{
    for (xmlNode* node = parent->children; node; node = node->next) {
        if (isElement(node, name))
            return node;
    }
    return nullptr;
}

// The grammar guarantees required elements; checking again costs nothing and
// keeps a gap in the grammar from becoming a crash.
xmlNode* required(xmlNode* parent, const char* name)
{
    xmlNode* node = child(parent, name);
    if (!node)
        reject(QCoreApplication::translate("CModuleDefinition", "%1 has no %2")
                   .arg(tagOf(reinterpret_cast<const char*>(parent->name)), tagOf(name)),
               lineOf(parent));
    return node;
}

QString text(const xmlNode* node)
{
    xmlChar* content = xmlNodeGetContent(node);
    const QString result = QString::fromUtf8(reinterpret_cast<const char*>(content)).trimmed();
    xmlFree(content);
    return result;
}

QString attribute(const xmlNode* node, const char* name)
{
    xmlChar* value = xmlGetProp(node, reinterpret_cast<const xmlChar*>(name));
    const QString result = QString::fromUtf8(reinterpret_cast<const char*>(value));
    xmlFree(value);
    return result;
}

std::int32_t integerIn(xmlNode* parent, const char* name, std::int32_t lowest, std::int32_t highest)
{
    xmlNode* node = required(parent, name);
    const QString value = text(node);
    bool ok = false;
    const int number = value.toInt(&ok);
    if (!ok || number < lowest || number > highest)
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "%1 must be a whole number from %2 to %3, not '%4'")
                   .arg(tagOf(name), QString::number(lowest), QString::number(highest), value),
               lineOf(node));
    return number;
}

bool booleanOf(xmlNode* parent, const char* name)
{
    xmlNode* node = required(parent, name);
    const QString value = text(node).toLower();
    if (value == QLatin1String("true") || value == QLatin1String("1"))
        return true;
    if (value == QLatin1String("false") || value == QLatin1String("0"))
        return false;
    reject(
        QCoreApplication::translate("CModuleDefinition", "%1 must be true, false, 1 or 0, not '%2'")
            .arg(tagOf(name), text(node)),
        lineOf(node));
}

std::int32_t optionalColor(xmlNode* parent, const char* name, std::int32_t fallback)
{
    xmlNode* node = child(parent, name);
    std::int32_t color = 0;
    return node && CModuleDefinition::ParseColor(text(node), color) ? color : fallback;
}

// Up to three whole numbers separated by points; missing ones count as 0.
bool parseVersion(const QString& value, std::array<int, 3>& parts)
{
    parts = {0, 0, 0};
    const QStringList pieces = value.split(QLatin1Char('.'));
    if (pieces.size() > 3)
        return false;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        bool ok = false;
        parts[static_cast<std::size_t>(i)] = pieces[i].trimmed().toInt(&ok);
        if (!ok || parts[static_cast<std::size_t>(i)] < 0)
            return false;
    }
    return true;
}

const std::array<int, 3>& programVersion()
{
    static const std::array<int, 3> version = [] {
        std::array<int, 3> parts{};
        parseVersion(QStringLiteral(KORVANE_VERSION_STRING), parts);
        return parts;
    }();
    return version;
}

QString tokenClassOf(const QString& type)
{
    if (type == QLatin1String("Image"))
        return QStringLiteral("CEmptyToken");
    if (type == QLatin1String("Quantity"))
        return QStringLiteral("CQuantityToken");
    if (type == QLatin1String("Numeric"))
        return QStringLiteral("CNumericToken");
    if (type == QLatin1String("Text"))
        return QStringLiteral("CTextToken");
    if (type == QLatin1String("Arrow"))
        return QStringLiteral("CArrowToken");
    return QString();
}

// The program's grammar, parsed at its first use and kept: validation only
// reads it, and every module at start-up is checked against it.
xmlDtd* programGrammar()
{
    static std::unique_ptr<xmlDtd, DtdFree> grammar;
    if (grammar)
        return grammar.get();
    QFile file(QStringLiteral(":/korvane/module.dtd"));
    if (!file.open(QIODevice::ReadOnly))
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "The program's module grammar is missing"));
    const QByteArray text = file.readAll();
    // xmlIOParseDTD takes the input buffer over, also when it fails.
    xmlParserInputBufferPtr input = xmlParserInputBufferCreateMem(
        text.constData(), static_cast<int>(text.size()), XML_CHAR_ENCODING_NONE);
    grammar.reset(input ? xmlIOParseDTD(nullptr, input, XML_CHAR_ENCODING_NONE) : nullptr);
    if (!grammar)
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "The program's module grammar cannot be read"));
    return grammar.get();
}

// Reads and validates the document; its root is a <module_def>.
DocPtr readDocument(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        reject(QCoreApplication::translate("CModuleDefinition", "Cannot read %1: %2")
                   .arg(path, file.errorString()));
    if (file.size() > CModuleDefinition::MaxDocumentSize)
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "%1 is too large for a module definition")
                   .arg(path));
    const QByteArray bytes = file.readAll();
    if (bytes.isEmpty())
        reject(QCoreApplication::translate("CModuleDefinition", "%1 is empty").arg(path));

    xmlInitParser();
    XmlErrorCapture capture;
    DocPtr doc(xmlReadMemory(bytes.constData(), static_cast<int>(bytes.size()), "module.def",
                             nullptr, XML_PARSE_NONET));
    if (!doc || capture.HasError())
        capture.Raise(QCoreApplication::translate("CModuleDefinition",
                                                  "The document is not well-formed XML"));
    if (doc->intSubset || doc->extSubset)
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "The document brings a DOCTYPE of its own; module "
                                           "definitions follow the program's grammar only"));

    xmlDtd* dtd = programGrammar();
    const std::unique_ptr<xmlValidCtxt, ValidFree> validator(xmlNewValidCtxt());
    if (!validator)
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "Out of memory while checking the module definition"));
    // The grammar stands in for an internal one: a standalone="yes" document
    // must not be held to the rules for external declarations (no white space
    // between elements).
    if (doc->standalone == 1)
        doc->standalone = 0;
    if (xmlValidateDtd(validator.get(), doc.get(), dtd) != 1 || capture.HasError())
        capture.Raise(QCoreApplication::translate(
            "CModuleDefinition", "The document does not follow the module grammar"));

    // Validation against a separate grammar does not check the root's name.
    xmlNode* root = xmlDocGetRootElement(doc.get());
    if (!root || !isElement(root, "module_def"))
        reject(root ? QCoreApplication::translate("CModuleDefinition",
                                                  "The root element is <%1>, not <module_def>")
                          .arg(nameOf(root))
                    : QCoreApplication::translate("CModuleDefinition",
                                                  "The root element is missing, not <module_def>"),
               lineOf(root));
    return doc;
}

CModuleDefinition::Header readHeader(xmlNode* root, CModuleDefinition::Origin origin)
{
    CModuleDefinition::Header header;

    const QString format = attribute(root, "format_version").trimmed();
    bool ok = false;
    const double formatNumber = format.toDouble(&ok);
    if (!ok || formatNumber != CModuleDefinition::SupportedFormatVersion)
        reject(QCoreApplication::translate(
                   "CModuleDefinition",
                   "format_version '%1' is not supported; this program reads version %2")
                   .arg(format, QString::number(CModuleDefinition::SupportedFormatVersion)),
               lineOf(root));

    xmlNode* info = required(root, "game_info");
    xmlNode* minimum = required(info, "min_kr_version");
    header.MinKrVersion = text(minimum);
    std::array<int, 3> needed{};
    if (!header.MinKrVersion.isEmpty()) {
        if (!parseVersion(header.MinKrVersion, needed))
            reject(QCoreApplication::translate("CModuleDefinition",
                                               "<min_kr_version> '%1' is not a version such as "
                                               "1.0.0")
                       .arg(header.MinKrVersion),
                   lineOf(minimum));
        if (needed > programVersion())
            reject(QCoreApplication::translate("CModuleDefinition",
                                               "The module needs Korvane %1 or later; this is %2")
                       .arg(header.MinKrVersion, QStringLiteral(KORVANE_VERSION_STRING)),
                   lineOf(minimum));
    }
    header.Title = text(required(info, "title"));
    header.Url = text(required(info, "url"));
    header.Author = text(required(info, "author"));
    header.Copyright = text(required(info, "copyright"));

    if (xmlNode* extension = child(root, "game_info_ex"))
        header.GameIconFile = text(required(extension, "new_game_image"));

    xmlNode* identity = required(root, "game_id");
    xmlNode* uniqueId = required(identity, "unique_id");
    const QString unique = text(uniqueId);
    const QString version = text(required(identity, "version"));
    if (unique.isEmpty() || version.isEmpty())
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "<game_id> needs a unique_id and a version"),
               lineOf(identity));
    const QString prefix = origin == CModuleDefinition::Origin::UserModule ? QStringLiteral("udm_")
                                                                           : QStringLiteral("krm_");
    header.Id = prefix + unique + QStringLiteral("_v") + version;
    return header;
}

CModuleDefinition::Token readToken(xmlNode* node, std::int32_t categoryNum)
{
    CModuleDefinition::Token token;
    token.CategoryNum = categoryNum;
    token.Id = attribute(node, "token_id").trimmed();
    if (token.Id.isEmpty())
        reject(QCoreApplication::translate("CModuleDefinition", "A token has an empty token_id"),
               lineOf(node));
    const QString type = attribute(node, "token_type");
    token.Class = tokenClassOf(type);
    if (token.Class.isEmpty())
        reject(
            QCoreApplication::translate("CModuleDefinition", "Token '%1' has the unknown type '%2'")
                .arg(token.Id, type),
            lineOf(node));
    token.PalletFile = text(required(node, "pallet_image"));
    token.DragFile = text(required(node, "drag_image"));
    token.UnitFile = text(required(node, "map_image"));
    token.Caption = text(required(node, "caption"));
    constexpr std::int32_t highest = CModuleDefinition::MaxRegion;
    token.RegionLeft = integerIn(node, "click_region_x", -1, highest);
    token.RegionTop = integerIn(node, "click_region_y", -1, highest);
    token.RegionWidth = integerIn(node, "click_region_w", -1, highest);
    token.RegionHeight = integerIn(node, "click_region_h", -1, highest);
    const char* customElement = token.Class == QLatin1String("CArrowToken")  ? "line_html_color"
                                : token.Class == QLatin1String("CTextToken") ? "default_text"
                                                                             : nullptr;
    if (customElement) {
        if (xmlNode* custom = child(node, customElement))
            token.CustomData = text(custom);
    }
    return token;
}

CModuleDefinition::Body readBody(xmlNode* root)
{
    CModuleDefinition::Body body;

    xmlNode* board = required(root, "board_settings");
    body.MapFile = text(required(board, "board_image"));
    body.FontName = text(required(board, "label_font_name"));
    xmlNode* fontSize = required(board, "label_font_size");
    bool ok = false;
    body.FontSize = text(fontSize).toDouble(&ok);
    if (!ok || !(body.FontSize > 0 && body.FontSize <= 1000))
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "<label_font_size> must be a size from 1 to 1000, "
                                           "not '%1'")
                   .arg(text(fontSize)),
               lineOf(fontSize));
    body.TransparentLabels = booleanOf(board, "label_is_transparent");
    body.LabelForeColor =
        optionalColor(board, "label_text_html_color", CModuleDefinition::DefaultLabelForeColor);
    body.LabelMovedColor =
        optionalColor(board, "label_moved_html_color", CModuleDefinition::DefaultLabelMovedColor);
    body.LabelBackColor =
        optionalColor(board, "label_back_html_color", CModuleDefinition::DefaultLabelBackColor);

    xmlNode* images = required(root, "image_settings");
    xmlNode* mask = required(images, "mask_html_color");
    if (!CModuleDefinition::ParseColor(text(mask), body.MaskColor))
        reject(QCoreApplication::translate("CModuleDefinition",
                                           "<mask_html_color> must be a colour such as #FF00FF, "
                                           "not '%1'")
                   .arg(text(mask)),
               lineOf(mask));

    constexpr std::int32_t largest = CModuleDefinition::MaxImageSize;
    body.PalletWidth = integerIn(images, "pallet_img_width", 1, largest);
    body.PalletHeight = integerIn(images, "pallet_img_height", 1, largest);
    body.UnitWidth = integerIn(images, "map_image_width", 1, largest);
    body.UnitHeight = integerIn(images, "map_image_height", 1, largest);

    xmlNode* tabs = required(root, "tabs");
    for (xmlNode* category = tabs->children; category; category = category->next) {
        if (!isElement(category, "category"))
            continue;
        body.Categories.append(attribute(category, "name"));
        const auto categoryNum = static_cast<std::int32_t>(body.Categories.size());
        for (xmlNode* node = category->children; node; node = node->next) {
            if (!isElement(node, "token"))
                continue;
            CModuleDefinition::Token token = readToken(node, categoryNum);
            // Image lists are keyed by token id, so ids must be unique.
            for (const CModuleDefinition::Token& earlier : body.Tokens) {
                if (earlier.Id == token.Id)
                    reject(QCoreApplication::translate("CModuleDefinition",
                                                       "Token id '%1' is used twice")
                               .arg(token.Id),
                           lineOf(node));
            }
            body.Tokens.push_back(std::move(token));
        }
    }
    body.InitialGameFile = text(required(root, "initial_setup_cmf"));
    return body;
}

} // namespace

bool CModuleDefinition::ParseColor(const QString& text, std::int32_t& color)
{
    static const QRegularExpression pattern(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
    if (!pattern.match(text).hasMatch())
        return false;
    const int red = text.mid(1, 2).toInt(nullptr, 16);
    const int green = text.mid(3, 2).toInt(nullptr, 16);
    const int blue = text.mid(5, 2).toInt(nullptr, 16);
    color = red | (green << 8) | (blue << 16);
    return true;
}

void CModuleDefinition::setError(const QString& message, int line)
{
    m_lastErrorLine = line > 0 ? line : 0;
    m_lastError = m_lastErrorLine > 0
                      ? QCoreApplication::translate("CModuleDefinition", "line %1: %2")
                            .arg(QString::number(m_lastErrorLine), message)
                      : message;
}

bool CModuleDefinition::LoadHeader(const QString& path, Origin origin)
{
    CTraceScope scope("LoadHeader", "CModuleDefinition");
    scope.Denote(QStringLiteral("Path = ") + path);
    m_headerLoaded = false;
    m_bodyLoaded = false;
    m_path = path;
    m_origin = origin;
    m_lastError.clear();
    m_lastErrorLine = 0;
    try {
        const DocPtr doc = readDocument(path);
        m_header = readHeader(xmlDocGetRootElement(doc.get()), origin);
        m_body = Body();
        m_headerLoaded = true;
        scope.Denote(QStringLiteral("Id = ") + m_header.Id);
    } catch (const DefinitionError& error) {
        setError(error.Message, error.Line);
    } catch (const std::exception& error) {
        setError(QCoreApplication::translate("CModuleDefinition", "Unexpected failure: %1")
                     .arg(QString::fromLocal8Bit(error.what())),
                 0);
    }
    if (!m_headerLoaded) {
        m_header = Header();
        scope.Denote(m_lastError);
    }
    return m_headerLoaded;
}

bool CModuleDefinition::LoadBody(const QString& path)
{
    CTraceScope scope("LoadBody", "CModuleDefinition");
    m_lastError.clear();
    m_lastErrorLine = 0;
    if (!m_headerLoaded) {
        setError(QCoreApplication::translate("CModuleDefinition",
                                             "The header must be loaded before the body"),
                 0);
        scope.Denote(m_lastError);
        return false;
    }
    if (!path.isEmpty())
        m_path = path;
    try {
        const DocPtr doc = readDocument(m_path);
        m_body = readBody(xmlDocGetRootElement(doc.get()));
        m_bodyLoaded = true;
        scope.Denote(QString::number(m_body.Tokens.size()) + QStringLiteral(" tokens"));
        return true;
    } catch (const DefinitionError& error) {
        setError(error.Message, error.Line);
    } catch (const std::exception& error) {
        setError(QCoreApplication::translate("CModuleDefinition", "Unexpected failure: %1")
                     .arg(QString::fromLocal8Bit(error.what())),
                 0);
    }
    scope.Denote(m_lastError);

    return false;
}

const CModuleDefinition::Token& CModuleDefinition::token(std::int32_t index,
                                                         const char* operation) const
{
    if (index < 1 || index > TokenCount())
        throw KorvaneError(9, QStringLiteral("CModuleDefinition.") + QLatin1String(operation),
                           QStringLiteral("Subscript out of range"));
    return m_body.Tokens[static_cast<std::size_t>(index - 1)];
}

std::int32_t CModuleDefinition::CategoryCount() const
{
    return static_cast<std::int32_t>(m_body.Categories.size());
}

const QString& CModuleDefinition::Category(std::int32_t index) const
{
    if (index < 1 || index > CategoryCount())
        throw KorvaneError(9, QStringLiteral("CModuleDefinition.Category"),
                           QStringLiteral("Subscript out of range"));
    return m_body.Categories[index - 1];
}

std::int32_t CModuleDefinition::TokenCount() const
{
    return static_cast<std::int32_t>(m_body.Tokens.size());
}

const QString& CModuleDefinition::TokenClass(std::int32_t index) const
{
    return token(index, "TokenClass").Class;
}

const QString& CModuleDefinition::TokenId(std::int32_t index) const
{
    return token(index, "TokenId").Id;
}

std::int32_t CModuleDefinition::TokenCategoryNum(std::int32_t index) const
{
    return token(index, "TokenCategoryNum").CategoryNum;
}

const QString& CModuleDefinition::TokenCaption(std::int32_t index) const
{
    return token(index, "TokenCaption").Caption;
}

const QString& CModuleDefinition::TokenCustomData(std::int32_t index) const
{
    return token(index, "TokenCustomData").CustomData;
}

const QString& CModuleDefinition::TokenDragFile(std::int32_t index) const
{
    return token(index, "TokenDragFile").DragFile;
}

const QString& CModuleDefinition::TokenPalletFile(std::int32_t index) const
{
    return token(index, "TokenPalletFile").PalletFile;
}

const QString& CModuleDefinition::TokenUnitFile(std::int32_t index) const
{
    return token(index, "TokenUnitFile").UnitFile;
}

std::int32_t CModuleDefinition::TokenRegionHeight(std::int32_t index) const
{
    return token(index, "TokenRegionHeight").RegionHeight;
}

std::int32_t CModuleDefinition::TokenRegionWidth(std::int32_t index) const
{
    return token(index, "TokenRegionWidth").RegionWidth;
}

std::int32_t CModuleDefinition::TokenRegionTop(std::int32_t index) const
{
    return token(index, "TokenRegionTop").RegionTop;
}

std::int32_t CModuleDefinition::TokenRegionLeft(std::int32_t index) const
{
    return token(index, "TokenRegionLeft").RegionLeft;
}
