#pragma once

#include <QString>

#include <cstdint>
#include <memory>

class IToken;

// Makes a token of the kind a module names ("CQuantityToken"). Class names
// match without regard to case; an unknown name gives a plain CEmptyToken.
class CTokenFactory
{
public:
    static std::shared_ptr<IToken> Create(const QString& className, QString id, std::int16_t index,
                                          QString category, QString caption, QString image,
                                          std::int32_t imageWidth, std::int32_t imageHeight,
                                          std::int32_t regionLeft = -1, std::int32_t regionTop = -1,
                                          std::int32_t regionWidth = -1,
                                          std::int32_t regionHeight = -1);
};
