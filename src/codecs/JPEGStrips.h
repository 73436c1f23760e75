// SPDX-License-Identifier: GPL-3.0-or-later
/// JPEG files in strips: each is coded by itself, on any thread, and joined with others into one baseline file that
/// every reader takes.
///
/// A restart marker stands behind every strip but the last. Colour is at half resolution both ways (4:2:0), so a strip
/// is made of block rows of 16 rows of pixels.
#pragma once
#include "base/BitmapView.h"
#include "codecs/JPEGSegments.h"
#include "codecs/LibJPEG.h"
#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace zp::jpeg
{

inline constexpr int kBlockRow = 16; ///< rows of pixels

/// Divisors and codes of one kind of component, as the coder wants them.
struct StripTables {
    /// In the order of the block's rows: (|value| + half) * multiplier / 2^16 * scale / 2^16 is the rounded quotient.
    alignas(64) std::array<std::uint16_t, 64> half{}, multiplier{}, scale{};
    std::array<std::uint32_t, 16> dcCode{};    ///< code << 6 | length, by the difference's size
    std::array<std::uint32_t, 256> acCode{};   ///< by run << 4 | size
    std::array<std::uint32_t, 1024> acSmall{}; ///< code and value bits together, by run << 6 | (value + 32)
};

struct StripFormat {
    int width = 0, height = 0; ///< of the picture, 1 to 65500
    int quality = 0;           ///< 1 to 100
    int stripRows = 0;         ///< block rows of a strip; as many as the picture has for a file without restart markers
    double xDpi = 0, yDpi = 0; ///< resolution, stated when both are from 1 to 65534

    int strips() const;
    /// The rows of pixels of a strip.
    PixelBox rowsOf(int strip) const;
};

/// What the coding of strips depends on beside their pixels.
class StripEncoder
{
public:
    /// Writes the file's head: everything that stands before the first strip.
    /// @param segments  application segments, put behind the JFIF segment in this order: marker number and bytes, each
    /// at most 65533. @return false when memory fails or the format is impossible
    bool prepare(const StripFormat& format,
                 std::span<const std::pair<int, std::span<const std::uint8_t>>> segments = {});
    std::span<const std::uint8_t> head() const { return mHead; }
    const StripFormat& format() const { return mFormat; }

    /// Codes one strip, byte for byte as the JPEG library would; several may be coded at the same time. Throws
    /// bad_alloc.
    /// @param pixels  the strip's rows; alpha is not looked at
    /// @param out     replaced by the strip's bytes, ended on a whole byte, without a marker
    void encode(ConstBitmapView pixels, std::vector<std::uint8_t>& out) const;

private:
    void readTables(const jpeg_compress_struct& info);

    StripFormat mFormat;
    std::vector<std::uint8_t> mHead;
    StripTables mLuma, mChroma;
};

} // namespace zp::jpeg
