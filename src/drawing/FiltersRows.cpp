// SPDX-License-Identifier: GPL-3.0-or-later
/// Row passes of the filters: plain loops the compiler vectorises, and the blur's passes for each processor.
#include "drawing/FiltersRows.h"
#include "base/Simd.h"
#include <algorithm>
#include <cstring>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zp::filters
{

namespace
{

/// Two samples written as one word.
using SampleWord = std::uint32_t __attribute__((may_alias));

/// Half a level in wide samples, for rounding.
constexpr int kWideHalf = 1 << (kWideBits - 1);

/// Between 0 and alpha; NaN becomes 0.
inline float clampToAlpha(float v, float alpha)
{
    const float low = v > 0 ? v : 0;
    return low < alpha ? low : alpha;
}

/// Blurred samples rescaled from the blurred alpha to the alpha of the pixels at @p middle.
void underAlpha(Wide* blurred, const Wide* middle, int samples)
{
    for (int i = 0; i < samples; i += 4) {
        if (blurred[i] <= 0) continue; // nothing there to have a colour
        // Opaque among opaque needs nothing; decided pixel by pixel, so that its neighbours in a vector do not matter.
        if (middle[i] == kWideOne && blurred[i] >= kWideOne - kWideHalf) continue;
        const float ratio = float(middle[i]) / float(blurred[i]);
        for (int c = 1; c < 4; ++c)
            blurred[i + c] = Wide(std::clamp(float(blurred[i + c]) * ratio, 0.0f, float(kWideOne)) + 0.5f);
    }
}

namespace plain
{
#define ZP_PASS
constexpr int kLanes = 8;
struct Vector {
    Wide lane[kLanes];
};
template <class F>
inline Vector each(F&& f)
{
    Vector r;
    for (int i = 0; i < kLanes; ++i) r.lane[i] = Wide(f(i));
    return r;
}
inline Vector load(const Wide* p)
{
    Vector r;
    std::memcpy(r.lane, p, sizeof r);
    return r;
}
inline void store(Wide* p, const Vector& v) { std::memcpy(p, v.lane, sizeof v); }
inline Vector set(std::int16_t value)
{
    return each([&](int) { return value; });
}
inline Vector zero() { return set(0); }
inline Vector add(const Vector& a, const Vector& b)
{
    return each([&](int i) { return a.lane[i] + b.lane[i]; });
}
inline Vector sub(const Vector& a, const Vector& b)
{
    return each([&](int i) { return a.lane[i] - b.lane[i]; });
}
inline Vector addSaturated(const Vector& a, const Vector& b)
{
    return each([&](int i) { return std::clamp(a.lane[i] + b.lane[i], -32768, 32767); });
}
/// a * b / 32768, rounded: what the processors' own instruction gives.
inline Vector mulRound(const Vector& a, const Vector& b)
{
    return each([&](int i) { return ((a.lane[i] * b.lane[i] >> 14) + 1) >> 1; });
}
inline Vector smaller(const Vector& a, const Vector& b)
{
    return each([&](int i) { return std::min(a.lane[i], b.lane[i]); });
}
inline Vector larger(const Vector& a, const Vector& b)
{
    return each([&](int i) { return std::max(a.lane[i], b.lane[i]); });
}
inline Vector alphas(const Vector& v)
{
    return each([&](int i) { return v.lane[i & ~3]; });
}
inline Vector colours(const Vector& v)
{
    return each([&](int i) { return i % 4 == 0 ? 0 : int(v.lane[i]); });
}
inline bool isOpaque(const Vector& v, const Vector& blurred)
{
    for (int i = 0; i < kLanes; i += 4)
        if (v.lane[i] != kWideOne || blurred.lane[i] < kWideOne - kWideHalf) return false;
    return true;
}
inline void storePixels(std::uint32_t* p, const Vector& v)
{
    std::uint8_t bytes[kLanes];
    for (int i = 0; i < kLanes; ++i) bytes[i] = std::uint8_t(std::clamp((v.lane[i] + kWideHalf) >> kWideBits, 0, 255));
    std::memcpy(p, bytes, sizeof bytes);
}
#include "drawing/FiltersPasses.inc"
#undef ZP_PASS
} // namespace plain

#if defined(__x86_64__)
namespace avx2
{
#define ZP_PASS __attribute__((target("avx2")))
constexpr int kLanes = 16;
using Vector = __m256i;
ZP_PASS inline Vector load(const Wide* p) { return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)); }
ZP_PASS inline void store(Wide* p, Vector v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }
ZP_PASS inline Vector set(std::int16_t value) { return _mm256_set1_epi16(value); }
ZP_PASS inline Vector zero() { return _mm256_setzero_si256(); }
ZP_PASS inline Vector add(Vector a, Vector b) { return _mm256_add_epi16(a, b); }
ZP_PASS inline Vector sub(Vector a, Vector b) { return _mm256_sub_epi16(a, b); }
ZP_PASS inline Vector addSaturated(Vector a, Vector b) { return _mm256_adds_epi16(a, b); }
ZP_PASS inline Vector mulRound(Vector a, Vector b) { return _mm256_mulhrs_epi16(a, b); }
ZP_PASS inline Vector smaller(Vector a, Vector b) { return _mm256_min_epi16(a, b); }
ZP_PASS inline Vector larger(Vector a, Vector b) { return _mm256_max_epi16(a, b); }
ZP_PASS inline Vector alphas(Vector v) { return _mm256_shufflehi_epi16(_mm256_shufflelo_epi16(v, 0), 0); }
ZP_PASS inline Vector colours(Vector v) { return _mm256_andnot_si256(_mm256_set1_epi64x(0xFFFF), v); }
ZP_PASS inline bool isOpaque(Vector v, Vector blurred)
{
    const Vector clear =
        _mm256_or_si256(_mm256_cmpgt_epi16(set(kWideOne), v), _mm256_cmpgt_epi16(set(kWideOne - kWideHalf), blurred));
    return _mm256_testz_si256(clear, _mm256_set1_epi64x(0xFFFF));
}
ZP_PASS inline void storePixels(std::uint32_t* p, Vector v)
{
    const Vector levels = _mm256_srai_epi16(_mm256_add_epi16(v, set(kWideHalf)), kWideBits);
    const __m128i bytes = _mm_packus_epi16(_mm256_castsi256_si128(levels), _mm256_extracti128_si256(levels, 1));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), bytes);
}
#include "drawing/FiltersPasses.inc"
#undef ZP_PASS
} // namespace avx2

namespace avx512
{
#define ZP_PASS __attribute__((target("avx512f,avx512bw")))
constexpr int kLanes = 32;
using Vector = __m512i;
ZP_PASS inline Vector load(const Wide* p) { return _mm512_loadu_si512(p); }
ZP_PASS inline void store(Wide* p, Vector v) { _mm512_storeu_si512(p, v); }
ZP_PASS inline Vector set(std::int16_t value) { return _mm512_set1_epi16(value); }
ZP_PASS inline Vector zero() { return _mm512_setzero_si512(); }
ZP_PASS inline Vector add(Vector a, Vector b) { return _mm512_add_epi16(a, b); }
ZP_PASS inline Vector sub(Vector a, Vector b) { return _mm512_sub_epi16(a, b); }
ZP_PASS inline Vector addSaturated(Vector a, Vector b) { return _mm512_adds_epi16(a, b); }
ZP_PASS inline Vector mulRound(Vector a, Vector b) { return _mm512_mulhrs_epi16(a, b); }
ZP_PASS inline Vector smaller(Vector a, Vector b) { return _mm512_min_epi16(a, b); }
ZP_PASS inline Vector larger(Vector a, Vector b) { return _mm512_max_epi16(a, b); }
ZP_PASS inline Vector alphas(Vector v) { return _mm512_shufflehi_epi16(_mm512_shufflelo_epi16(v, 0), 0); }
ZP_PASS inline Vector colours(Vector v) { return _mm512_maskz_mov_epi16(0xEEEEEEEE, v); }
ZP_PASS inline bool isOpaque(Vector v, Vector blurred)
{
    return (_mm512_mask_cmplt_epi16_mask(0x11111111, v, set(kWideOne)) |
            _mm512_mask_cmplt_epi16_mask(0x11111111, blurred, set(kWideOne - kWideHalf))) == 0;
}
ZP_PASS inline void storePixels(std::uint32_t* p, Vector v)
{
    const Vector levels = _mm512_srai_epi16(_mm512_add_epi16(v, set(kWideHalf)), kWideBits);
    const __m256i bytes = _mm512_maskz_cvtusepi16_epi8(0xFFFFFFFF, larger(levels, zero()));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), bytes);
}
#include "drawing/FiltersPasses.inc"
#undef ZP_PASS
} // namespace avx512
#endif

} // namespace

const BlurPasses* blurPassesFor(Processor processor)
{
    switch (processor) {
    case Processor::Plain:
        return &plain::kPasses;
#if defined(__x86_64__)
    case Processor::Avx2:
        return __builtin_cpu_supports("avx2") ? &avx2::kPasses : nullptr;
    case Processor::Avx512:
        return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") ? &avx512::kPasses : nullptr;
#endif
    default:
        return nullptr;
    }
}

const BlurPasses& blurPasses()
{
    static const BlurPasses& best = []() -> const BlurPasses& {
        for (const Processor processor : {Processor::Avx512, Processor::Avx2})
            if (const BlurPasses* passes = blurPassesFor(processor)) return *passes;
        return *blurPassesFor(Processor::Plain);
    }();
    return best;
}

ZP_MULTIVERSION void colourRow(const std::uint32_t* __restrict pixels, std::uint32_t* __restrict out, int count,
                               const ColourMatrix& matrix)
{
    const ColourMatrix own = matrix;
    const float* m = own.m;
    for (int i = 0; i < count; ++i) {
        const std::uint32_t w = pixels[i];
        const float a = float(int(w & 255)), r = float(int(w >> 8 & 255)), g = float(int(w >> 16 & 255)),
                    b = float(int(w >> 24));
        const float red = clampToAlpha(m[0] * r + m[1] * g + m[2] * b + m[3] * a, a) + 0.5f;
        const float green = clampToAlpha(m[4] * r + m[5] * g + m[6] * b + m[7] * a, a) + 0.5f;
        const float blue = clampToAlpha(m[8] * r + m[9] * g + m[10] * b + m[11] * a, a) + 0.5f;
        out[i] =
            (w & 255) | std::uint32_t(int(red)) << 8 | std::uint32_t(int(green)) << 16 | std::uint32_t(int(blue)) << 24;
    }
}

ZP_MULTIVERSION void colourRowWide(const std::uint32_t* __restrict pixels, Wide* __restrict out, int count,
                                   const ColourMatrix& matrix)
{
    constexpr float kScale = 1 << kWideBits;
    ColourMatrix own = matrix;
    for (float& v : own.m) v *= kScale;
    const float* m = own.m;
    auto* words = reinterpret_cast<SampleWord*>(out);
    for (int i = 0; i < count; ++i) {
        const std::uint32_t w = pixels[i];
        const float a = float(int(w & 255)), r = float(int(w >> 8 & 255)), g = float(int(w >> 16 & 255)),
                    b = float(int(w >> 24));
        const float top = a * kScale;
        const float red = clampToAlpha(m[0] * r + m[1] * g + m[2] * b + m[3] * a, top) + 0.5f;
        const float green = clampToAlpha(m[4] * r + m[5] * g + m[6] * b + m[7] * a, top) + 0.5f;
        const float blue = clampToAlpha(m[8] * r + m[9] * g + m[10] * b + m[11] * a, top) + 0.5f;
        words[2 * i] = (w & 255) << kWideBits | std::uint32_t(int(red)) << 16;
        words[2 * i + 1] = std::uint32_t(int(green)) | std::uint32_t(int(blue)) << 16;
    }
}

ZP_MULTIVERSION void widenRow(const std::uint32_t* __restrict pixels, Wide* __restrict out, int count)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(pixels);
    for (int i = 0; i < 4 * count; ++i) out[i] = Wide(bytes[i] << kWideBits);
}

} // namespace zp::filters
