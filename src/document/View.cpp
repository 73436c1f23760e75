// SPDX-License-Identifier: GPL-3.0-or-later
/// Zoom levels from where the zoom is.
#include "document/View.h"
#include <algorithm>
#include <cmath>
#include <utility>

namespace zp
{

namespace
{
/// Zooms closer than this to a level are that level: a fitted picture may come out as 0.99999.
constexpr float kSameZoom = 1.001f;
/// Of a screen point: so much less room is counted on, so that rounding up never brings a scroll bar.
constexpr float kSpare = 0.5f;
} // namespace

float View::wholeZoom(Size picture) const
{
    const float scale = std::min((mRoom.width - kSpare) / picture.width, (mRoom.height - kSpare) / picture.height);
    return m2xRetina ? scale * 2 : scale;
}

void View::begin(Size picture)
{
    if (mRoom.width < 1 || mRoom.height < 1 || picture.width < 1 || picture.height < 1) return;
    mFit = Fit::Shrink;
    refit(picture);
}

bool View::refit(Size picture)
{
    if (mFit == Fit::No || mRoom.width < 1 || mRoom.height < 1 || picture.width < 1 || picture.height < 1) return false;
    const float whole = wholeZoom(picture), wanted = mFit == Fit::Shrink ? std::min(whole, 1.0f) : whole;
    return std::exchange(mZoom, wanted) != wanted;
}

int View::nearestLevel() const
{
    int nearest = 0;
    const auto distance = [this](int i) { return std::abs(std::log(kZoomLevels[std::size_t(i)] / mZoom)); };
    for (int i = 1; i < int(kZoomLevels.size()); ++i)
        if (distance(i) < distance(nearest)) nearest = i;
    return nearest;
}

int View::levelBeyond(int step) const
{
    const int last = int(kZoomLevels.size()) - 1;
    if (step > 0) {
        for (int i = 0; i <= last; ++i)
            if (kZoomLevels[std::size_t(i)] > mZoom * kSameZoom) return i;
        return last;
    }
    for (int i = last; i >= 0; --i)
        if (kZoomLevels[std::size_t(i)] < mZoom / kSameZoom) return i;
    return 0;
}

} // namespace zp
