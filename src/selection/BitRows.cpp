// SPDX-License-Identifier: GPL-3.0-or-later
/// The memory of one-bit pictures.
#include "selection/BitRows.h"
#include "selection/SelectionRows.h"
#include <cstring>
#include <new>

namespace zp
{

BitRows::BitRows(int width, int height, bool zeroed)
    : mWidth(width > 0 && height > 0 ? width : 0),
      mHeight(width > 0 && height > 0 ? height : 0),
      mWordsPerRow(std::size_t(mWidth) / 64 + 1)
{
    if (mHeight == 0) return;
    const std::size_t bytes = (mWordsPerRow * std::size_t(mHeight) + 1) * sizeof(std::uint64_t);
    mBytes = zeroed ? allocatePixels(bytes) : allocatePixelsUninitialized(bytes);
    if (!mBytes) throw std::bad_alloc();
    std::memset(mBytes.get(), 0, sizeof(std::uint64_t));
}

BitRows BitRows::ofSelected(ConstMaskView mask)
{
    BitRows bits(mask.isEmpty() ? 0 : mask.width, mask.isEmpty() ? 0 : mask.height, false);
    for (int y = 0; y < bits.height(); ++y) packSelectedBits(mask.row(y), bits.width(), bits.row(y));
    return bits;
}

} // namespace zp
