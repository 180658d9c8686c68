#include "core/CKorvane.h"
#include "support/RootFixture.h"
#include "support/TestContext.h"
#include "tokens/CTextToken.h"
#include "tokens/CTokenFactory.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<IToken> make(const QString& kind, std::int32_t width = 40, std::int32_t height = 30,
                             std::int32_t left = -1, std::int32_t top = -1,
                             std::int32_t regionWidth = -1, std::int32_t regionHeight = -1)
{
    return CTokenFactory::Create(kind, QStringLiteral("T1"), 7, QStringLiteral("Cat"),
                                 QStringLiteral("Cap"), QStringLiteral("img"), width, height, left,
                                 top, regionWidth, regionHeight);
}

TEST(TokenKinds, onlyMinusOneMeansTheDefaultRegionAndArrowsHaveACentredSquare)
{
    const std::pair<std::shared_ptr<IToken>, const char*> cases[] = {
        {make("CNumericToken", 40, 30, 0, -2, 0, -1), "0,-2,0,30"},
        {make("CTextToken", 40, 30, -1, 3, -1, 4), "0,3,40,4"},
        // An arrow's eight pixel square sits in the middle of its image, whatever its region.
        {make("CArrowToken", 41, 31, 1, 2, 3, 4), "16,11,8,8"},
        {make("CArrowToken", 4, 5), "-2,-1,8,8"}};
    for (const auto& [token, expected] : cases) {
        EXPECT_EQ(QStringLiteral("%1,%2,%3,%4")
                      .arg(token->RegionLeft())
                      .arg(token->RegionTop())
                      .arg(token->RegionWidth())
                      .arg(token->RegionHeight()),
                  QLatin1String(expected))
            << token->Class().toStdString();
    }
}

class TokenCaptions : public RootFixture
{};

TEST_F(TokenCaptions, countedCaptionsUseTheActiveContextsPrefixAndTextsTheirCustomText)
{
    const auto quantity = make(QStringLiteral("CQuantityToken"));
    const auto numeric = make(QStringLiteral("CNumericToken"));
    EXPECT_EQ(quantity->DefaultCaption(), QStringLiteral("x1")) << "root without a context";
    Root().SetContext(std::make_shared<TestContext>(QStringLiteral("# ")));
    EXPECT_EQ(quantity->DefaultCaption(), QStringLiteral("# 1"));
    EXPECT_EQ(numeric->DefaultCaption(), QStringLiteral("# 0"));
    Root().SetContext(std::make_shared<TestContext>(QString()));
    EXPECT_EQ(quantity->DefaultCaption(), QStringLiteral("1"));

    // A text token captions new units with its custom text when it has one.
    CTextToken token(QStringLiteral("N"), 1, QString(), QStringLiteral("Note"), QString(), 10, 10);
    token.SetCustom(QStringLiteral("Supply"));
    EXPECT_EQ(token.DefaultCaption(), QStringLiteral("Supply"));
    token.SetCustom(QString());
    EXPECT_EQ(token.DefaultCaption(), QStringLiteral("Note"));
}

} // namespace
