// SPDX-License-Identifier: GPL-3.0-or-later
/// Catmull-Rom interpolation in 16-bit fixed point: four rows of four pixels make one.
#include "drawing/ImageDrawingSampler.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zp
{

namespace
{
constexpr int kPhases = 256;
/// Samples carry six bits below the point: with the curve's overshoot they just fit 16 bits.
constexpr int kSampleBits = 6;

/// Weights of four neighbours in 2^-15 for each of 256 positions between the middle two; they add up to one, but for
/// the one that cannot be held in 16 bits, which rounding makes good.
struct Weights {
    alignas(64) std::int16_t each[kPhases][4];
    alignas(64) std::int16_t spread[kPhases][16]; ///< each weight four times, once a channel

    Weights()
    {
        for (int phase = 0; phase < kPhases; ++phase) {
            const double t = double(phase) / kPhases;
            const double w[4] = {((-0.5 * t + 1) * t - 0.5) * t, (1.5 * t - 2.5) * t * t + 1,
                                 ((-1.5 * t + 2) * t + 0.5) * t, (0.5 * t - 0.5) * t * t};
            int rest = 32768;
            for (int k = 0; k < 4; ++k)
                rest -= each[phase][k] = std::int16_t(std::min(32767L, std::lround(w[k] * 32768)));
            std::int16_t& largest = each[phase][phase < kPhases / 2 ? 1 : 2];
            largest = std::int16_t(std::min(32767, largest + rest));
            for (int k = 0; k < 16; ++k) spread[phase][k] = each[phase][k / 4];
        }
    }
};

const Weights& weights()
{
    static const Weights table;
    return table;
}

/// What one vector instruction does: the high half of the product, rounded.
inline int rounded15(int a, int b) { return (a * b + 0x4000) >> 15; }

/// @param rows the first of four pixels in each of four rows
inline std::uint32_t interpolatePixel(const std::uint8_t* const (&rows)[4], int phaseX, int phaseY, const Weights& w)
{
    int result[4];
    for (int channel = 0; channel < 4; ++channel) {
        int sum = 0;
        for (int column = 0; column < 4; ++column) {
            int v = 0;
            for (int row = 0; row < 4; ++row)
                v += rounded15(rows[row][column * 4 + channel] << kSampleBits, w.each[phaseY][row]);
            sum += rounded15(v, w.each[phaseX][column]);
        }
        result[channel] = std::clamp((sum + (1 << (kSampleBits - 1))) >> kSampleBits, 0, 255);
    }
    std::uint32_t word = std::uint32_t(result[0]);
    for (int channel = 1; channel < 4; ++channel)
        word |= std::uint32_t(std::min(result[channel], result[0])) << (8 * channel);
    return word;
}

struct Position {
    int column, row, phaseX, phaseY;
};
inline Position positionAt(const SampleLine& line, std::int64_t k)
{
    // To the nearest of the 256 phases.
    const std::int64_t half = std::int64_t{1} << 23;
    const std::int64_t x = line.x + k * line.dx + half, y = line.y + k * line.dy + half;
    return {int(x >> 32), int(y >> 32), int((x >> 24) & 255), int((y >> 24) & 255)};
}

/// Near and beyond the border: the four by four pixels are gathered first, each from the nearest that exists.
std::uint32_t interpolateAtBorder(ConstBitmapView image, PixelBox part, Position p, const Weights& w)
{
    std::uint32_t gathered[4][4];
    for (int row = 0; row < 4; ++row) {
        const std::uint32_t* const in = image.row(std::clamp(p.row - 1 + row, part.y0, part.y1 - 1));
        for (int column = 0; column < 4; ++column)
            gathered[row][column] = in[std::clamp(p.column - 1 + column, part.x0, part.x1 - 1)];
    }
    const std::uint8_t* rows[4];
    for (int row = 0; row < 4; ++row) rows[row] = reinterpret_cast<const std::uint8_t*>(gathered[row]);
    return interpolatePixel({rows[0], rows[1], rows[2], rows[3]}, p.phaseX, p.phaseY, w);
}

/// Narrows [first, last) to the k for which low <= start + k * step < high.
void narrow(std::int64_t start, std::int64_t step, std::int64_t low, std::int64_t high, std::int64_t& first,
            std::int64_t& last)
{
    if (step == 0) {
        if (start < low || start >= high) last = first;
        return;
    }
    if (step < 0) {
        // -high < -start + k * -step <= -low
        narrow(-start, -step, 1 - high, 1 - low, first, last);
        return;
    }
    const auto ceilDiv = [](std::int64_t a, std::int64_t b) { return a >= 0 ? (a + b - 1) / b : -((-a) / b); };
    first = std::max(first, ceilDiv(low - start, step));
    last = std::min(last, ceilDiv(high - start, step));
    if (last < first) last = first;
}

void interpolateInside(ConstBitmapView image, const SampleLine& line, std::uint32_t* out, std::int64_t first,
                       std::int64_t last)
{
    const Weights& w = weights();
    for (std::int64_t k = first; k < last; ++k) {
        const Position p = positionAt(line, k);
        const std::uint8_t* const at = image.pixel(p.column - 1, p.row - 1);
        const std::uint8_t* const rows[4] = {at, at + image.rowBytes, at + 2 * image.rowBytes, at + 3 * image.rowBytes};
        out[k] = interpolatePixel(rows, p.phaseX, p.phaseY, w);
    }
}

#if defined(__x86_64__)
__attribute__((target("avx2"))) inline __m128i interpolateOne(ConstBitmapView image, const SampleLine& line,
                                                              std::int64_t k, const Weights& w)
{
    const Position p = positionAt(line, k);
    const std::uint8_t* at = image.pixel(p.column - 1, p.row - 1);
    const auto row = [&](int r) __attribute__((target("avx2")))
    {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + r * image.rowBytes));
        return _mm256_mulhrs_epi16(_mm256_slli_epi16(_mm256_cvtepu8_epi16(bytes), kSampleBits),
                                   _mm256_set1_epi16(w.each[p.phaseY][r]));
    };
    const __m256i columns = _mm256_add_epi16(_mm256_add_epi16(row(0), row(1)), _mm256_add_epi16(row(2), row(3)));
    const __m256i weighted =
        _mm256_mulhrs_epi16(columns, _mm256_load_si256(reinterpret_cast<const __m256i*>(w.spread[p.phaseX])));
    const __m128i halves = _mm_add_epi16(_mm256_castsi256_si128(weighted), _mm256_extracti128_si256(weighted, 1));
    return _mm_add_epi16(halves, _mm_unpackhi_epi64(halves, halves));
}

__attribute__((target("avx2"))) void interpolateInsideAvx2(ConstBitmapView image, const SampleLine& line,
                                                           std::uint32_t* out, std::int64_t first, std::int64_t last)
{
    const Weights& w = weights();
    const __m128i half = _mm_set1_epi16(1 << (kSampleBits - 1));
    const __m128i alphaOfEach = _mm_setr_epi8(0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12);
    std::int64_t k = first;
    for (; k + 4 <= last; k += 4) {
        const __m128i a = _mm_unpacklo_epi64(interpolateOne(image, line, k, w), interpolateOne(image, line, k + 1, w));
        const __m128i b =
            _mm_unpacklo_epi64(interpolateOne(image, line, k + 2, w), interpolateOne(image, line, k + 3, w));
        const __m128i bytes = _mm_packus_epi16(_mm_srai_epi16(_mm_add_epi16(a, half), kSampleBits),
                                               _mm_srai_epi16(_mm_add_epi16(b, half), kSampleBits));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + k),
                         _mm_min_epu8(bytes, _mm_shuffle_epi8(bytes, alphaOfEach)));
    }
    interpolateInside(image, line, out, k, last);
}
#endif

using InsideFunction = void (*)(ConstBitmapView, const SampleLine&, std::uint32_t*, std::int64_t, std::int64_t);

void interpolateWith(InsideFunction inside, ConstBitmapView image, PixelBox part, SampleLine line, std::uint32_t* out,
                     int count)
{
    // Where all four by four pixels exist, they are read straight from the rows.
    std::int64_t first = 0, last = count;
    const std::int64_t half = std::int64_t{1} << 23;
    const auto position = [](int v) { return std::int64_t{v} * (std::int64_t{1} << 32); };
    narrow(line.x + half, line.dx, position(part.x0 + 1), position(part.x1 - 2), first, last);
    narrow(line.y + half, line.dy, position(part.y0 + 1), position(part.y1 - 2), first, last);
    first = std::min<std::int64_t>(first, count);
    last = std::clamp<std::int64_t>(last, first, count);
    const Weights& w = weights();
    for (std::int64_t k = 0; k < first; ++k) out[k] = interpolateAtBorder(image, part, positionAt(line, k), w);
    inside(image, line, out, first, last);
    for (std::int64_t k = last; k < count; ++k) out[k] = interpolateAtBorder(image, part, positionAt(line, k), w);
}
} // namespace

void interpolateLinePlain(ConstBitmapView image, PixelBox part, SampleLine line, std::uint32_t* out, int count)
{
    interpolateWith(interpolateInside, image, part, line, out, count);
}

void interpolateLine(ConstBitmapView image, PixelBox part, SampleLine line, std::uint32_t* out, int count)
{
#if defined(__x86_64__)
    static const bool avx2 = __builtin_cpu_supports("avx2");
    if (avx2) return interpolateWith(interpolateInsideAvx2, image, part, line, out, count);
#endif
    interpolateWith(interpolateInside, image, part, line, out, count);
}

} // namespace zp
