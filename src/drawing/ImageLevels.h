// SPDX-License-Identifier: GPL-3.0-or-later
/// An image and its halves, quarters and so on, for drawing it at any size without reading all of it each time.
#pragma once
#include "base/BitmapRep.h"
#include <memory>
#include <vector>

namespace zp
{

/// Level 0 is the image itself, each next one the means of two by two pixels of the one before, down to a single row or
/// column. Never changed once made: any number of threads may read it.
class ImageLevels
{
public:
    /// Reads the whole image once and keeps a third of its bytes more; large ones are shared between the workers.
    /// Without memory there are fewer levels: what is drawn from them is coarser. @param image  not null; kept
    explicit ImageLevels(std::shared_ptr<const BitmapRep> image);

    int count() const { return int(mLevels.size()); }
    ConstBitmapView level(int n) const { return mLevels[std::size_t(n)]->view(); }

private:
    std::vector<std::shared_ptr<const BitmapRep>> mLevels;
};

} // namespace zp
