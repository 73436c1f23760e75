// SPDX-License-Identifier: GPL-3.0-or-later
/// The compressed parts of a PNG file.
#pragma once
#include "codecs/PNGParts.h"
#include <optional>

namespace zp::codec
{

enum class PixelState {
    Whole,
    Damaged, ///< the stream breaks off, is longer than it should be, or its checksum is wrong
    Corrupt, ///< a chunk's checksum is wrong: nothing from that chunk on is believed
    NoMemory
};

/// Unpacks the pixels' stream into @p to, @p size bytes that the header calls for; never more.
/// @param unpacked  how many bytes there are; what lies behind them is undefined
PixelState inflatePixels(const PNGParts& parts, std::uint8_t* to, std::size_t size, std::size_t& unpacked);

/// Unpacks a stream of unknown length. Nothing when it is damaged or longer than @p most.
std::optional<std::vector<std::uint8_t>> inflateBounded(Bytes stream, std::size_t most);

} // namespace zp::codec
