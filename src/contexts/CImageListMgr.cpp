#include "CImageListMgr.h"

#include "contexts/CImageList.h"
#include "core/CTraceScope.h"
#include "core/KorvaneError.h"

#include <algorithm>

std::shared_ptr<CImageList> CImageListMgr::GetImageList(std::int32_t maskColor, std::int32_t height,
                                                        std::int32_t width)
{
    CTraceScope scope("GetImageList", "CImageListMgr");
    scope.Denote(QStringLiteral("Size = ") + QString::number(width) + QLatin1Char('x') +
                 QString::number(height));
    if (height < 1 || width < 1 || height > MaxImageSize || width > MaxImageSize)
        throw KorvaneError(5, QStringLiteral("CImageListMgr.GetImageList"),
                           QStringLiteral("Invalid picture size ") + QString::number(width) +
                               QLatin1Char('x') + QString::number(height));
    auto list = std::make_shared<CImageList>(maskColor, height, width);
    m_lists.push_back(list);
    return list;
}

void CImageListMgr::ReleaseImageList(const std::shared_ptr<CImageList>& list)
{
    CTraceScope scope("ReleaseImageList", "CImageListMgr");
    const auto found = std::find(m_lists.begin(), m_lists.end(), list);
    if (!list || found == m_lists.end()) {
        scope.Denote(QStringLiteral("Image List Not Found"));
        return;
    }
    list->Clear();
    m_lists.erase(found);
}
