// SPDX-License-Identifier: GPL-3.0-or-later
/// Zoom levels from where the zoom is.
#include "document/View.h"
#include <cmath>

namespace zp
{

namespace
{
/// Zooms closer than this to a level are that level: a fitted picture may come out as 0.99999.
constexpr float kSameZoom = 1.001f;
} // namespace

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
