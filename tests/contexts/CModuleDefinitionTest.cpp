#include "contexts/CModuleDefinition.h"
#include "support/ContextTestSupport.h"
#include "support/RootFixture.h"

namespace {

// The 1-based line of the last occurrence of needle.
int lineOf(const QString& document, const QString& needle)
{
    const qsizetype at = document.lastIndexOf(needle);
    return at < 0 ? -1 : static_cast<int>(document.left(at).count(QLatin1Char('\n'))) + 1;
}

// Definitions of a module with a quantity token "inf" (its region's top at 3)
// and an image token "flag", each token on a line of its own.
class ModuleDefinitionTest : public RootFixture
{
protected:
    ModuleDefinitionTest()
    {
        module.Tokens = {TestToken(QStringLiteral("inf"), QStringLiteral("Quantity")),
                         TestToken(QStringLiteral("flag"))};
        module.Tokens[0].Top = 3;
    }

    // The module's definition with one text replaced; the text must be there.
    QString changed(const QString& from, const QString& to) const
    {
        QString document = module.Definition();
        EXPECT_TRUE(document.contains(from)) << from.toStdString();
        return document.replace(from, to);
    }
    QString write(const QString& document) const
    {
        return home.WriteFile(QStringLiteral("cache/module.def"), document.toUtf8());
    }

    TestModule module;
};

} // namespace

TEST_F(ModuleDefinitionTest, BadDocumentsAreRefusedQuietlyNamingTheLine)
{
    const QString prolog =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n");
    const QString valid = module.Definition();
    // Refused by the header (naming the line of the edit, or not), or only by the body.
    enum Stage
    {
        Header,
        HeaderAtLine,
        Body
    };
    // Each case is an edit of the valid document.
    const struct
    {
        const char* what;
        QString from;
        QString to;
        QString reasonPart;
        Stage stage = Header;
    } cases[] = {
        {"unknown token type", "\"Image\"", "\"Cavalry\"", "Cavalry", HeaderAtLine},
        {"wrong root element", valid,
         "<game_info><title>t</title><author/><url/><copyright/>"
         "<min_kr_version>1.0</min_kr_version></game_info>",
         "not <module_def>"},
        {"newer revision needed", ">1.0<", ">1.0.1<", "1.0.1 or later"},
        {"newer minor needed", ">1.0<", ">1.1<", "1.1 or later"},
        {"unreadable version", ">1.0<", ">1.x<", "1.x"},
        {"unknown format version", "format_version=\"1\"", "format_version=\"2\"",
         "format_version"},
        {"own DOCTYPE", prolog, prolog + "<!DOCTYPE module_def [<!ELEMENT module_def ANY>]>\n",
         "DOCTYPE"},
        {"undeclared entity", "Test Module", "&nbsp;", "nbsp"},
        {"malformed XML", "flag</caption>", "flag</captoin>", "captoin", HeaderAtLine},
        {"missing element", "<copyright>none</copyright>", "", "game_info"},
        {"not XML at all", valid, "PK\x03\x04 this is a zip", ""},
        {"boolean", ">false<", ">yes<", "yes", Body},
        {"mask colour", ">#FF00FF<", ">FF00FF<", "FF00FF", Body},
        {"font size", ">8<", ">big<", "big", Body},
        {"picture size", ">32<", ">50000<", "50000", Body},
        {"region below -1", "<click_region_y>3<", "<click_region_y>-2<", "-2", Body},
        {"duplicate token id", "token_id=\"flag\"", "token_id=\"inf\"", "inf", Body},
    };
    for (const auto& c : cases) {
        const QString document = changed(c.from, c.to);
        CModuleDefinition definition;
        testing::internal::CaptureStderr();
        const bool header = definition.LoadHeader(write(document));
        const bool body = header && definition.LoadBody();
        const std::string console = testing::internal::GetCapturedStderr();
        EXPECT_EQ(header, c.stage == Body) << c.what;
        EXPECT_FALSE(body || definition.BodyLoaded()) << c.what;
        EXPECT_EQ(definition.TokenCount(), 0) << c.what;
        EXPECT_EQ(definition.Id().isEmpty(), c.stage != Body) << c.what;
        EXPECT_TRUE(definition.LastError().contains(c.reasonPart))
            << c.what << ": " << definition.LastError().toStdString();
        EXPECT_TRUE(console.empty()) << c.what << ": " << console;
        if (c.stage != Header) {
            EXPECT_EQ(definition.LastErrorLine(), lineOf(document, c.to)) << c.what;
        }
    }

    CModuleDefinition definition;
    EXPECT_FALSE(definition.LoadHeader(home.File(QStringLiteral("cache/none.def"))));
    EXPECT_FALSE(definition.LoadBody());
}

TEST_F(ModuleDefinitionTest, HeaderGivesIdentityAndBodyTheBoardAndPictureSettings)
{
    // Blue lands in the high byte; a colour without "#" falls back to the default green.
    const QString document =
        changed(QStringLiteral("<label_text_html_color>#0000FF</label_text_html_color>"),
                QStringLiteral("<label_text_html_color>#0000ff</label_text_html_color>"
                               "<label_moved_html_color>FF0000</label_moved_html_color>"
                               "<label_back_html_color>#102030</label_back_html_color>"))
            .replace(QStringLiteral(">false<"), QStringLiteral(">TRUE<"))
            .replace(QStringLiteral(">8<"), QStringLiteral(">8.5<"));
    CModuleDefinition definition;
    ASSERT_TRUE(definition.LoadHeader(write(document))) << definition.LastError().toStdString();
    EXPECT_EQ(definition.Id() + '|' + definition.Title() + '|' + definition.Url() + '|' +
                  definition.GameIconFile(),
              "krm_test_module_v1|Test Module|https://example.org/test_module|icon.png");
    EXPECT_EQ(definition.TokenCount(), 0) << "the header leaves the body unread";
    ASSERT_TRUE(definition.LoadBody()) << definition.LastError().toStdString();
    EXPECT_EQ(
        QStringList(
            {definition.MapFile(), definition.FontName(), QString::number(definition.FontSize()),
             definition.HasTransparentLabels() ? "transparent" : "opaque",
             QString::number(definition.LabelForeColor(), 16),
             QString::number(definition.LabelMovedColor(), 16),
             QString::number(definition.LabelBackColor(), 16),
             QString::number(definition.MaskColor(), 16),
             QStringLiteral("%1x%2").arg(definition.PalletWidth()).arg(definition.PalletHeight()),
             QStringLiteral("%1x%2").arg(definition.UnitWidth()).arg(definition.UnitHeight()),
             definition.Category(definition.TokenCategoryNum(2))})
            .join('|'),
        "board.png|Sans|8.5|transparent|ff0000|ff00|302010|ff00ff|24x24|32x32|Units");

    ASSERT_TRUE(definition.LoadHeader(definition.Path(), CModuleDefinition::Origin::UserModule));
    EXPECT_EQ(definition.Id(), QStringLiteral("udm_test_module_v1"));
    ASSERT_TRUE(definition.LoadHeader(write(changed(
        QStringLiteral("<game_info_ex><new_game_image>icon.png</new_game_image></game_info_ex>"),
        QString()))));
    EXPECT_TRUE(definition.GameIconFile().isEmpty());
    for (const char* version : {"1", "0.9.9", " 1 . 0 . 0 "}) {
        EXPECT_TRUE(definition.LoadHeader(
            write(changed(QStringLiteral(">1.0<"),
                          QLatin1Char('>') + QLatin1String(version) + QLatin1Char('<')))))
            << version << ": " << definition.LastError().toStdString();
    }

    // Colours in either case, and without "#", are read through the
    // definition above; these are refused too.
    std::int32_t color = 0;
    for (const char* bad : {"#00FF0", "#00FF000", "#00GG00", " #00FF00"})
        EXPECT_FALSE(CModuleDefinition::ParseColor(QLatin1String(bad), color)) << bad;
}
