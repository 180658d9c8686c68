#include "core/CKorvane.h"
#include "support/RootFixture.h"
#include "support/TestContext.h"
#include "tokens/CTextToken.h"
#include "tokens/CTokenFactory.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<IToken> make(const QString& kind)
{
    return CTokenFactory::Create(kind, QStringLiteral("T1"), 7, QStringLiteral("Cat"),
                                 QStringLiteral("Cap"), QStringLiteral("img"), 40, 30);
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

    // A text token captions new units with its custom text when it has one
    // (without one, its caption: checked with the token handlers).
    CTextToken token(QStringLiteral("N"), 1, QString(), QStringLiteral("Note"), QString(), 10, 10);
    token.SetCustom(QStringLiteral("Supply"));
    EXPECT_EQ(token.DefaultCaption(), QStringLiteral("Supply"));
}

} // namespace
