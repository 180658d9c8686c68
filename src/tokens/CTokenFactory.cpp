#include "CTokenFactory.h"

#include "tokens/CArrowToken.h"
#include "tokens/CEmptyToken.h"
#include "tokens/CNumericToken.h"
#include "tokens/CQuantityToken.h"
#include "tokens/CTextToken.h"

namespace {

template <typename Token, typename... Args> std::shared_ptr<IToken> make(Args&&... args)
{
    return std::make_shared<Token>(std::forward<Args>(args)...);
}

} // namespace

std::shared_ptr<IToken> CTokenFactory::Create(const QString& className, QString id,
                                              std::int16_t index, QString category, QString caption,
                                              QString image, std::int32_t imageWidth,
                                              std::int32_t imageHeight, std::int32_t regionLeft,
                                              std::int32_t regionTop, std::int32_t regionWidth,
                                              std::int32_t regionHeight)
{
    const QString kind = className.toLower();
    if (kind == QLatin1String("cquantitytoken"))
        return make<CQuantityToken>(std::move(id), index, std::move(category), std::move(caption),
                                    std::move(image), imageWidth, imageHeight, regionLeft,
                                    regionTop, regionWidth, regionHeight);
    if (kind == QLatin1String("cnumerictoken"))
        return make<CNumericToken>(std::move(id), index, std::move(category), std::move(caption),
                                   std::move(image), imageWidth, imageHeight, regionLeft, regionTop,
                                   regionWidth, regionHeight);
    if (kind == QLatin1String("ctexttoken"))
        return make<CTextToken>(std::move(id), index, std::move(category), std::move(caption),
                                std::move(image), imageWidth, imageHeight, regionLeft, regionTop,
                                regionWidth, regionHeight);
    if (kind == QLatin1String("carrowtoken"))
        return make<CArrowToken>(std::move(id), index, std::move(category), std::move(caption),
                                 std::move(image), imageWidth, imageHeight, regionLeft, regionTop,
                                 regionWidth, regionHeight);
    return make<CEmptyToken>(std::move(id), index, std::move(category), std::move(caption),
                             std::move(image), imageWidth, imageHeight, regionLeft, regionTop,
                             regionWidth, regionHeight);
}
