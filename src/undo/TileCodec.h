// SPDX-License-Identifier: GPL-3.0-or-later
/// One tile of pixels as few bytes, and back, to the bit.
#pragma once
#include "base/BitmapView.h"
#include <cstdint>
#include <span>
#include <vector>

namespace zp
{

/// Packs tiles at memory speed: samples as differences (red and blue from green, each row from the one above), then
/// LZ4. A plane of one value costs a byte; what does not shrink is kept as differences, so that an opaque tile never
/// takes more than 3 bytes a pixel and a few. Holds work space: one for each thread.
class TileCodec
{
public:
    /// @return the packed tile, valid until the next call. @throws std::bad_alloc
    std::span<const std::uint8_t> pack(ConstBitmapView tile);
    /// Into @p tile, which must have the size of what was packed. @return false when @p packed is damaged: the pixels
    /// may have been written then
    bool unpack(std::span<const std::uint8_t> packed, BitmapView tile);

private:
    std::vector<std::uint8_t> mPlanes, mPacked;
};

} // namespace zp
