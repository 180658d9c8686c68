#pragma once

#include <cstdint>
#include <memory>
#include <vector>

class CImageList;

// Hands out the image lists that contexts fill with their token pictures and
// takes them back. Every call gives a fresh list: two contexts never share
// one, since their keys (token identifiers) may coincide.
class CImageListMgr
{
public:
    // The largest width or height a list accepts, so a module cannot make
    // every picture allocate a huge image.
    static constexpr std::int32_t MaxImageSize = 2048;

    // Raises KorvaneError 5 when height or width lies outside 1..MaxImageSize.
    std::shared_ptr<CImageList> GetImageList(std::int32_t maskColor, std::int32_t height,
                                             std::int32_t width);
    // Empties the list and forgets it; a list this manager did not hand out
    // (or already took back) is left alone.
    void ReleaseImageList(const std::shared_ptr<CImageList>& list);

    // Lists handed out and not yet released.
    std::int32_t ListCount() const { return static_cast<std::int32_t>(m_lists.size()); }

private:
    std::vector<std::shared_ptr<CImageList>> m_lists;
};
