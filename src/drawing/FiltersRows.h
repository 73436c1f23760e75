// SPDX-License-Identifier: GPL-3.0-or-later
/// Row passes of the filters: colour, widening, and the two directions of a symmetric blur in 16-bit fixed point.
///
/// A wide row holds 16-bit samples A, R, G, B of each pixel with six bits after the point: a byte's 255 is 255 * 64, so
/// that two samples still add up within a signed word. The passes give the same result on every processor.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zp::filters
{

/// One sample of a wide row, in 1/64 of a level.
using Wide = std::int16_t;
inline constexpr int kWideBits = 6;
inline constexpr Wide kWideOne = 255 << kWideBits;
/// The blur passes take this many pixels at once: what they write may reach up to a multiple of it, what they read too.
inline constexpr int kBlock = 32;
inline constexpr int blocks(int pixels) { return (pixels + kBlock - 1) / kBlock * kBlock; }

/// Rows r, g, b of a matrix over (r, g, b, alpha) of premultiplied colour: a bias is multiplied by alpha like the rest.
struct ColourMatrix {
    float m[12] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};
};

/// Shares of a symmetric kernel, in 1/32768: side[k - 1] for the samples k before and k behind. The middle keeps what
/// the sides leave, so that the shares are one together and a flat row stays flat.
struct BlurWeights {
    std::vector<std::int16_t> side;
    std::int16_t taken = 0; ///< what the sides take from the middle
    int radius() const { return int(side.size()); }
};

/// How the last pass of an unsharp mask mixes: sharpened = middle + intensity * (middle - blurred).
struct SharpenAmount {
    std::int16_t factor = 0; ///< intensity / 2^doublings, in 1/16384
    int doublings = 0;
};

/// Pixels through the matrix, clamped to 0 and alpha, rounded.
void colourRow(const std::uint32_t* pixels, std::uint32_t* out, int count, const ColourMatrix& matrix);
/// Same into a wide row.
void colourRowWide(const std::uint32_t* pixels, Wide* out, int count, const ColourMatrix& matrix);
void widenRow(const std::uint32_t* pixels, Wide* out, int count);

/// The blur along a row. @param middle the first output pixel's own samples; radius pixels before and behind the blocks
/// must be readable
void blurAlong(const Wide* middle, Wide* out, int count, const BlurWeights& weights);
/// Down the columns. @param rows 2 * radius + 1 row starts, the middle one in the middle
void blurAcross(const Wide* const* rows, Wide* out, int count, const BlurWeights& weights);
/// The same of rows of pixels; exactly count are read and written.
void blurPixelsAcross(const std::uint32_t* const* rows, Wide* out, int count, const BlurWeights& weights);

// The passes below make pixels; @p pixels is written up to count only. @param stream stores go past the cache: @p
// pixels is aligned to 64 bytes, and the thread calls finishStreaming() when it is done

/// Rounded.
void narrowRow(const Wide* row, std::uint32_t* pixels, int count, bool stream);
/// The same of a blur along the row.
void blurAlongToPixels(const Wide* middle, std::uint32_t* pixels, int count, const BlurWeights& weights, bool stream);
/// Colour moved away from the blurred colour, both taken without alpha; alpha stays. @param middle the pixels' own
/// samples
void sharpenRow(const Wide* blurred, const Wide* middle, std::uint32_t* pixels, int count, SharpenAmount amount,
                bool stream);

} // namespace zp::filters
