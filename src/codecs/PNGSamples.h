// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of PNG samples of any kind into A, R, G, B pixels.
#pragma once
#include "codecs/PNGParts.h"
#include <array>

namespace zp::codec
{

/// Every kind and depth, with palettes and with a colour that stands for transparency. 16 bits are reduced to 8,
/// rounded.
class PNGSamples
{
public:
    explicit PNGSamples(const PNGParts& parts);
    /// Whether pixels may be other than opaque.
    bool hasAlpha() const { return mHasAlpha; }
    /// Rows of 8-bit samples of three or four, nothing else to be done: the usual case, which takes a short way.
    bool isPlain() const { return mPlain; }
    /// @param samples an unfiltered row. Pixels come premultiplied.
    void convertRow(const std::uint8_t* samples, std::uint8_t* argb, std::size_t count) const;

private:
    void fillTable(const PNGParts& parts);
    template <unsigned Samples>
    void convertWhole(const std::uint8_t* samples, std::uint8_t* argb, std::size_t count) const;

    PNGHeader mHeader;
    bool mHasAlpha = false, mPlain = false;
    bool mHasKey = false;                    ///< one colour is transparent
    std::array<std::uint16_t, 3> mKey{};     ///< in the file's depth
    std::array<std::uint32_t, 256> mTable{}; ///< pixels by the sample, for a single sample of 8 bits at most
};

} // namespace zp::codec
