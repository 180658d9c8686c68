#include "contexts/CModuleDefinition.h"
#include "core/KorvaneError.h"
#include "support/RootFixture.h"

#include <QElapsedTimer>

namespace {

const char* const validDefinition = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<module_def format_version="1">
  <game_info><title>Test Skirmish</title><author>A. Tester</author>
    <url>https://example.org/skirmish</url><copyright>2024</copyright>
    <min_kr_version>1.0.0</min_kr_version></game_info>
  <game_info_ex><new_game_image>icon.png</new_game_image></game_info_ex>
  <game_id><unique_id>skirmish_by_tests</unique_id><version>3</version></game_id>
  <board_settings><board_image>Board.PNG</board_image><label_font_name>Arial</label_font_name>
    <label_font_size>8.5</label_font_size><label_is_transparent>TRUE</label_is_transparent>
    <label_moved_html_color>FF0000</label_moved_html_color></board_settings>
  <image_settings><mask_html_color>#FF00FF</mask_html_color>
    <pallet_img_width>32</pallet_img_width><pallet_img_height>30</pallet_img_height>
    <map_image_width>48</map_image_width><map_image_height>40</map_image_height></image_settings>
  <tabs>
    <category name="Land &amp; Sea">
      <token token_id="inf" token_type="Quantity"><pallet_image>inf_p.png</pallet_image>
        <drag_image>inf_d.png</drag_image><map_image>inf_u.png</map_image><caption>Infantry</caption>
        <click_region_x>2</click_region_x><click_region_y>3</click_region_y>
        <click_region_w>40</click_region_w><click_region_h>-1</click_region_h></token>
      <token token_id="hq" token_type="Text"><pallet_image>hq.png</pallet_image>
        <drag_image>hq.png</drag_image><map_image>hq.png</map_image><caption>Headquarters</caption>
        <click_region_x>-1</click_region_x><click_region_y>-1</click_region_y><click_region_w>-1
        </click_region_w><click_region_h>-1</click_region_h><default_text>Hold the line</default_text>
      </token>
    </category>
    <category name="Markers">
      <token token_id="move" token_type="Arrow"><pallet_image>arrow.png</pallet_image>
        <drag_image>arrow.png</drag_image><map_image>arrow.png</map_image><caption>Move</caption>
        <click_region_x>0</click_region_x><click_region_y>0</click_region_y><click_region_w>8
        </click_region_w><click_region_h>9</click_region_h><line_html_color>#FF8000</line_html_color>
      </token>
      <token token_id="turn" token_type="Numeric"><pallet_image>turn.png</pallet_image>
        <drag_image>turn.png</drag_image><map_image>turn.png</map_image><caption>Turn</caption>
        <click_region_x>1</click_region_x><click_region_y>1</click_region_y>
        <click_region_w>1</click_region_w><click_region_h>1</click_region_h></token>
      <token token_id="flag" token_type="Image"><pallet_image>flag.png</pallet_image>
        <drag_image>flag.png</drag_image><map_image>flag.png</map_image><caption>Flag</caption>
        <click_region_x>5</click_region_x><click_region_y>6</click_region_y>
        <click_region_w>7</click_region_w><click_region_h>8</click_region_h>
        <default_text>ignored: not a text token</default_text></token>
    </category>
  </tabs>
  <initial_setup_cmf>start.krf</initial_setup_cmf>
</module_def>
)";

// The 1-based line of the last occurrence of needle.
int lineOf(const QString& document, const QString& needle)
{
    const qsizetype at = document.lastIndexOf(needle);
    return at < 0 ? -1 : static_cast<int>(document.left(at).count(QLatin1Char('\n'))) + 1;
}

class ModuleDefinitionTest : public RootFixture
{
protected:
    // The valid document with one text replaced; the text must be there.
    QString changed(const QString& from, const QString& to) const
    {
        QString document = QString::fromUtf8(validDefinition);
        EXPECT_TRUE(document.contains(from)) << from.toStdString();
        return document.replace(from, to);
    }

    QString write(const QString& document) const
    {
        return home.WriteFile(QStringLiteral("cache/module.def"), document.toUtf8());
    }
};

} // namespace

TEST_F(ModuleDefinitionTest, BadDocumentsAreRefusedQuietlyNamingTheLine)
{
    const QString prolog =
        QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n");
    const QString valid = QString::fromUtf8(validDefinition);
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
        {"unknown token type", "\"Numeric\"", "\"Cavalry\"", "Cavalry", HeaderAtLine},
        {"wrong root element", valid,
         "<game_info><title>t</title><author/><url/><copyright/>"
         "<min_kr_version>1.0</min_kr_version></game_info>",
         "not <module_def>"},
        {"newer revision needed", ">1.0.0<", ">1.0.1<", "1.0.1 or later"},
        {"newer minor needed", ">1.0.0<", ">1.1<", "1.1 or later"},
        {"newer major needed", ">1.0.0<", ">2<", "2 or later"},
        {"unreadable version", ">1.0.0<", ">1.x<", "1.x"},
        {"unknown format version", "format_version=\"1\"", "format_version=\"2\"",
         "format_version"},
        {"own DOCTYPE", prolog, prolog + "<!DOCTYPE module_def [<!ELEMENT module_def ANY>]>\n",
         "DOCTYPE"},
        {"external entity",
         prolog + "<module_def format_version=\"1\">\n  <game_info><title>Test Skirmish",
         prolog + "<!DOCTYPE module_def [<!ENTITY secret SYSTEM \"file:///etc/passwd\">]>\n"
                  "<module_def format_version=\"1\">\n  <game_info><title>&secret;",
         "DOCTYPE"},
        {"undeclared entity", "Test Skirmish", "&nbsp;", "nbsp"},
        {"malformed XML", "Flag</caption>", "Flag</captoin>", "captoin", HeaderAtLine},
        {"missing element", "<copyright>2024</copyright>", "", "game_info"},
        {"not XML at all", valid, "PK\x03\x04 this is a zip", ""},
        {"boolean", ">TRUE<", ">yes<", "yes", Body},
        {"mask colour", ">#FF00FF<", ">FF00FF<", "FF00FF", Body},
        {"font size", ">8.5<", ">big<", "big", Body},
        {"picture size", ">48<", ">50000<", "50000", Body},
        {"region", "<click_region_x>2<", "<click_region_x>two<", "two", Body},
        {"region below -1", "<click_region_y>3<", "<click_region_y>-2<", "-2", Body},
        {"duplicate token id", "token_id=\"turn\" token_type", "token_id=\"inf\" token_type", "inf",
         Body},
    };
    for (const auto& c : cases) {
        const QString document = changed(c.from, c.to);
        CModuleDefinition definition;
        testing::internal::CaptureStderr();
        const bool header = definition.LoadHeader(write(document));
        const bool body = header && definition.LoadBody();
        const std::string console = testing::internal::GetCapturedStderr();
        EXPECT_EQ(header, c.stage == Body) << c.what;
        EXPECT_FALSE(body) << c.what;
        EXPECT_FALSE(definition.BodyLoaded()) << c.what;
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

    // Nested entities are refused before they can grow.
    QString laughs = prolog + QStringLiteral("<!DOCTYPE module_def [<!ENTITY a \"aaaaaaaaaa\">");
    for (char c = 'b'; c <= 'k'; ++c)
        laughs += QStringLiteral("<!ENTITY %1 \"%2\">")
                      .arg(QLatin1Char(c))
                      .arg(QStringLiteral("&%1;").arg(QLatin1Char(c - 1)).repeated(10));
    laughs += QStringLiteral("]>\n<module_def format_version=\"1\">&k;</module_def>");
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(definition.LoadHeader(write(laughs)));
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST_F(ModuleDefinitionTest, HeaderGivesIdentityAndBodyEveryMember)
{
    CModuleDefinition definition;
    ASSERT_TRUE(definition.LoadHeader(write(QString::fromUtf8(validDefinition))))
        << definition.LastError().toStdString();
    EXPECT_FALSE(definition.BodyLoaded());
    EXPECT_TRUE(definition.IsKrm());
    EXPECT_EQ(definition.Id() + '|' + definition.Title() + '|' + definition.Url() + '|' +
                  definition.GameIconFile(),
              "krm_skirmish_by_tests_v3|Test Skirmish|https://example.org/skirmish|icon.png");
    EXPECT_EQ(definition.TokenCount(), 0);
    ASSERT_TRUE(definition.LoadBody()) << definition.LastError().toStdString();
    EXPECT_TRUE(definition.BodyLoaded());

    EXPECT_EQ(definition.MapFile(), QStringLiteral("Board.PNG"));
    EXPECT_EQ(definition.FontName(), QStringLiteral("Arial"));
    EXPECT_DOUBLE_EQ(definition.FontSize(), 8.5);
    EXPECT_TRUE(definition.HasTransparentLabels());
    EXPECT_EQ(definition.MultiplierPrefix(), QStringLiteral("x"));
    EXPECT_EQ(definition.LabelForeColor(), 65535);  // absent: the default yellow
    EXPECT_EQ(definition.LabelMovedColor(), 65280); // no "#": the default green
    EXPECT_EQ(definition.LabelBackColor(), 0);      // absent: the default black
    EXPECT_EQ(definition.MaskColor(), 0xFF00FF);
    EXPECT_EQ(definition.PalletWidth(), 32);
    EXPECT_EQ(definition.PalletHeight(), 30);
    EXPECT_EQ(definition.UnitWidth(), 48);
    EXPECT_EQ(definition.UnitHeight(), 40);
    EXPECT_EQ(definition.InitialGameFile(), QStringLiteral("start.krf"));

    ASSERT_EQ(definition.CategoryCount(), 2);
    EXPECT_EQ(definition.Category(1), QStringLiteral("Land & Sea"));
    EXPECT_EQ(definition.Category(2), QStringLiteral("Markers"));
    ASSERT_EQ(definition.TokenCount(), 5);

    // id, class, category, caption, custom data, three pictures, region.
    QStringList tokens;
    for (int i = 1; i <= definition.TokenCount(); ++i) {
        tokens << QStringList{definition.TokenId(i),
                              definition.TokenClass(i),
                              QString::number(definition.TokenCategoryNum(i)),
                              definition.TokenCaption(i),
                              definition.TokenCustomData(i),
                              definition.TokenPalletFile(i),
                              definition.TokenDragFile(i),
                              definition.TokenUnitFile(i),
                              QStringLiteral("%1,%2,%3,%4")
                                  .arg(definition.TokenRegionLeft(i))
                                  .arg(definition.TokenRegionTop(i))
                                  .arg(definition.TokenRegionWidth(i))
                                  .arg(definition.TokenRegionHeight(i))}
                      .join(QLatin1Char('|'));
    }
    EXPECT_EQ(tokens,
              QStringList({
                  "inf|CQuantityToken|1|Infantry||inf_p.png|inf_d.png|inf_u.png|2,3,40,-1",
                  "hq|CTextToken|1|Headquarters|Hold the line|hq.png|hq.png|hq.png|-1,-1,-1,-1",
                  "move|CArrowToken|2|Move|#FF8000|arrow.png|arrow.png|arrow.png|0,0,8,9",
                  "turn|CNumericToken|2|Turn||turn.png|turn.png|turn.png|1,1,1,1",
                  "flag|CEmptyToken|2|Flag||flag.png|flag.png|flag.png|5,6,7,8",
              }));
    EXPECT_THROW(definition.TokenId(6), KorvaneError);
    EXPECT_THROW(definition.Category(0), KorvaneError);

    // Every colour given; blue lands in the high byte.
    ASSERT_TRUE(definition.LoadHeader(
        write(changed(QStringLiteral("<label_moved_html_color>FF0000</label_moved_html_color>"),
                      QStringLiteral("<label_text_html_color>#0000ff</label_text_html_color>"
                                     "<label_moved_html_color>#00FF00</label_moved_html_color>"
                                     "<label_back_html_color>#102030</label_back_html_color>")))));
    ASSERT_TRUE(definition.LoadBody());
    EXPECT_EQ(definition.LabelForeColor(), 0xFF0000);
    EXPECT_EQ(definition.LabelMovedColor(), 0x00FF00);
    EXPECT_EQ(definition.LabelBackColor(), 0x302010);

    ASSERT_TRUE(definition.LoadHeader(definition.Path(), CModuleDefinition::Origin::UserModule));
    EXPECT_EQ(definition.Id(), QStringLiteral("udm_skirmish_by_tests_v3"));

    ASSERT_TRUE(definition.LoadHeader(write(changed(
        QStringLiteral("<game_info_ex><new_game_image>icon.png</new_game_image></game_info_ex>"),
        QString()))));
    EXPECT_TRUE(definition.GameIconFile().isEmpty());

    for (const char* version : {"1", "0.9.9", "1.0", " 1 . 0 . 0 "}) {
        EXPECT_TRUE(definition.LoadHeader(write(changed(
            QStringLiteral("<min_kr_version>1.0.0<"),
            QStringLiteral("<min_kr_version>") + QLatin1String(version) + QLatin1Char('<')))))
            << version << ": " << definition.LastError().toStdString();
    }
}

TEST(ModuleDefinitionColor, ParsesOnlyHashAndSixHexDigits)
{
    std::int32_t color = 42;
    EXPECT_TRUE(CModuleDefinition::ParseColor(QStringLiteral("#a1B2c3"), color));
    EXPECT_EQ(color, 0xC3B2A1);
    for (const char* bad : {"00FF00", "#00FF0", "#00FF000", "#00GG00", " #00FF00"})
        EXPECT_FALSE(CModuleDefinition::ParseColor(QLatin1String(bad), color)) << bad;
    EXPECT_EQ(color, 0xC3B2A1);
}
