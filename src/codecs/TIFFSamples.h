// SPDX-License-Identifier: GPL-3.0-or-later
/// Rows of TIFF samples of any depth into A, R, G, B pixels.
#pragma once
#include "codecs/TIFFSource.h"
#include <array>
#include <cstdint>
#include <vector>

namespace zp::codec
{

/// Grey, palette, RGB and CMYK, 1 to 32 bits whole or 16, 24, 32 and 64 bits floating, with and without alpha, samples
/// side by side or in planes. Holds work space for one row: one thread at a time.
class SampleConverter
{
public:
    static bool handles(const TIFFLayout& layout);
    explicit SampleConverter(const TIFFLayout& layout);
    /// @param samples one row as libtiff decodes it; of planes, the first, the others @p planeBytes apart
    void convertRow(const std::uint8_t* samples, std::size_t planeBytes, std::uint8_t* argb, int count);
    /// Whether rows are bytes of red, green and blue, or those and alpha, and nothing else.
    bool isPlain() const;
    /// A plain row whose samples are differences from the pixel before. Writes up to three pixels more.
    void convertDifferences(const std::uint8_t* samples, std::uint8_t* argb, int count) const;

private:
    void unpack(const std::uint8_t* samples, unsigned first, unsigned step, std::uint16_t* out, int count) const;
    void finish(std::uint8_t* argb, int count) const;

    TIFFLayout mLayout;
    bool mPaletteOfBytes = false;
    std::array<std::vector<std::uint16_t>, 5> mRow;
};

} // namespace zp::codec
