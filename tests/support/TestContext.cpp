#include "support/TestContext.h"

#include "tokens/CTokenFactory.h"
#include "tokens/IToken.h"

TestContext::TestContext(QString prefix) : m_prefix(std::move(prefix)) {}

std::shared_ptr<IToken> TestContext::AddToken(const QString& className, const QString& id)
{
    const auto index = static_cast<std::int16_t>(m_tokens.Count() + 1);
    auto token =
        CTokenFactory::Create(className, id, index, QStringLiteral("Units"), id, id, 40, 30);
    m_tokens.AddItem(token);
    return token;
}
