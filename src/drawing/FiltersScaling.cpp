// SPDX-License-Identifier: GPL-3.0-or-later
/// Wide rows at half and double the size: plain loops, and the two that rearrange pixels by hand.
#include "drawing/FiltersScaling.h"
#include "base/Simd.h"
#include <algorithm>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zp::filters
{

namespace
{

// Four samples add up within 16 bits without a sign: 4 * 255 * 64 and some rounding.
using Sum = std::uint16_t;

#if defined(__x86_64__)
#define ZP_AVX2 __attribute__((target("avx2")))

ZP_AVX2 inline __m256i load(const Wide* p) { return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)); }
ZP_AVX2 inline void store(Wide* p, __m256i v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }

/// @return pixels done
ZP_AVX2 int halveRowsAvx2(const Wide* a, const Wide* b, Wide* out, int count)
{
    const __m256i two = _mm256_set1_epi16(2);
    int x = 0;
    for (; x + 4 <= count; x += 4) {
        const __m256i first = _mm256_add_epi16(load(a + 8 * x), load(b + 8 * x));
        const __m256i second = _mm256_add_epi16(load(a + 8 * x + 16), load(b + 8 * x + 16));
        const __m256i sum =
            _mm256_add_epi16(_mm256_unpacklo_epi64(first, second), _mm256_unpackhi_epi64(first, second));
        const __m256i mean = _mm256_srli_epi16(_mm256_add_epi16(sum, two), 2);
        store(out + 4 * x, _mm256_permute4x64_epi64(mean, 0xD8));
    }
    return x;
}

ZP_AVX2 int doubleRowAvx2(const Wide* row, Wide* out, int count)
{
    const __m256i two = _mm256_set1_epi16(2);
    int x = 0;
    for (; x + 4 <= count; x += 4) {
        const __m256i own = load(row + 4 * x);
        const __m256i three = _mm256_add_epi16(_mm256_add_epi16(own, own), _mm256_add_epi16(own, two));
        const __m256i even = _mm256_srli_epi16(_mm256_add_epi16(three, load(row + 4 * x - 4)), 2);
        const __m256i odd = _mm256_srli_epi16(_mm256_add_epi16(three, load(row + 4 * x + 4)), 2);
        const __m256i low = _mm256_unpacklo_epi64(even, odd), high = _mm256_unpackhi_epi64(even, odd);
        store(out + 8 * x, _mm256_permute2x128_si256(low, high, 0x20));
        store(out + 8 * x + 16, _mm256_permute2x128_si256(low, high, 0x31));
    }
    return x;
}

bool haveAvx2()
{
    static const bool have = __builtin_cpu_supports("avx2");
    return have;
}
#endif

} // namespace

void halveRows(const Wide* a, const Wide* b, Wide* out, int count)
{
    int done = 0;
#if defined(__x86_64__)
    if (haveAvx2()) done = halveRowsAvx2(a, b, out, count);
#endif
    for (int x = done; x < count; ++x)
        for (int c = 0; c < 4; ++c) {
            const int i = 8 * x + c;
            out[4 * x + c] = Wide(Sum(a[i] + a[i + 4] + b[i] + b[i + 4] + 2) >> 2);
        }
}

ZP_MULTIVERSION void mixRows(const Wide* __restrict near, const Wide* __restrict far, Wide* __restrict out, int count)
{
    for (int i = 0; i < 4 * count; ++i) out[i] = Wide(Sum(Sum(near[i]) * 3 + Sum(far[i]) + 2) >> 2);
}

void doubleRow(const Wide* row, Wide* out, int count)
{
    int done = 0;
#if defined(__x86_64__)
    if (haveAvx2()) done = doubleRowAvx2(row, out, count);
#endif
    for (int x = done; x < count; ++x)
        for (int c = 0; c < 4; ++c) {
            const Wide* p = row + 4 * x + c;
            out[8 * x + c] = Wide(Sum(3 * p[0] + p[-4] + 2) >> 2);
            out[8 * x + 4 + c] = Wide(Sum(3 * p[0] + p[4] + 2) >> 2);
        }
}

ZP_MULTIVERSION void narrowRow(const Wide* __restrict row, std::uint32_t* __restrict pixels, int count)
{
    auto* bytes = reinterpret_cast<std::uint8_t*>(pixels);
    for (int i = 0; i < 4 * count; ++i) {
        const Wide level = Wide(Wide(row[i] + (1 << (kWideBits - 1))) >> kWideBits);
        bytes[i] = std::uint8_t(level < 255 ? level : 255);
    }
}

} // namespace zp::filters
