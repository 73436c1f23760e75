// SPDX-License-Identifier: GPL-3.0-or-later
/// The pictures of 24 megapixels that the codecs' benchmarks work on.
#pragma once
#include "base/BitmapRep.h"
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace zp::bench
{

inline constexpr int kWidth = 6000, kHeight = 4000;

enum Look {
    Drawing, ///< flat colours and a curve
    Photo,   ///< a photograph enlarged, with the noise of a sensor
    Camera   ///< the same as it comes out of a camera's JPEG file
};
/// Made once. Opaque.
std::shared_ptr<BitmapRep> picture(Look look);

/// A JPEG file of the picture in one piece, by libjpeg-turbo.
std::vector<std::uint8_t> turboEncode(const BitmapRep& rep, int quality);

/// What the libraries take: rows of three bytes a pixel, one after the other.
template <class Take>
void eachRowInRGB(const BitmapRep& rep, Take take)
{
    std::vector<std::uint8_t> row(3 * kWidth);
    for (int y = 0; y < kHeight; ++y) {
        const std::uint8_t* p = rep.view().rowData(y);
        for (std::size_t x = 0; x < kWidth; ++x) std::memcpy(&row[3 * x], p + 4 * x + 1, 3);
        take(row.data(), y);
    }
}

} // namespace zp::bench
