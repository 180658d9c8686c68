#include "CTokenBase.h"

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"

CTokenBase::CTokenBase(QString id, std::int16_t index, QString category, QString caption,
                       QString image, std::int32_t imageWidth, std::int32_t imageHeight,
                       std::int32_t regionLeft, std::int32_t regionTop, std::int32_t regionWidth,
                       std::int32_t regionHeight)
    : m_id(std::move(id)), m_index(index), m_category(std::move(category)),
      m_caption(std::move(caption)), m_image(std::move(image)), m_imageWidth(imageWidth),
      m_imageHeight(imageHeight), m_regionLeft(regionLeft == -1 ? 0 : regionLeft),
      m_regionTop(regionTop == -1 ? 0 : regionTop),
      m_regionWidth(regionWidth == -1 ? imageWidth : regionWidth),
      m_regionHeight(regionHeight == -1 ? imageHeight : regionHeight)
{}

QString CTokenBase::MultiplierPrefix()
{
    CKorvane* root = RootOrNull();
    if (root && root->Context())
        return root->Context()->MultiplierPrefix();
    return QStringLiteral("x");
}

void CTokenBase::HandleRightClick(const std::shared_ptr<CUnit>&) {}

void CTokenBase::HandleMove(std::int32_t, std::int32_t, const std::shared_ptr<CUnit>&) {}

// A plain counter accepts nothing dropped onto it.
void CTokenBase::HandleMoveOnto(const std::shared_ptr<CUnit>&, const std::shared_ptr<CUnit>&) {}

void CTokenBase::HandleDrop(std::int32_t, std::int32_t) {}
