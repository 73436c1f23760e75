// SPDX-License-Identifier: GPL-3.0-or-later
/// Row passes of the resampler: plain loops that vectorise, and the pass along a row by hand.
#include "drawing/ResampleRows.h"
#include "base/Simd.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zp::resampling
{

namespace
{

/// a * b / 32768, rounded; the form the compiler knows as one instruction.
inline Wide mulRound(Wide a, Wide b) { return Wide(((std::int32_t(a) * b >> 14) + 1) >> 1); }

/// Rows times their shares, from sample @p from on.
void sumRowsPlain(const std::uint8_t* const* rows, const std::int16_t* shares, int count, Wide* out, int from,
                  int samples)
{
    for (int i = from; i < samples; ++i) {
        int sum = 0;
        for (int k = 0; k < count; ++k) sum += mulRound(Wide(rows[k][i] << kSourceBits), shares[k]);
        out[i] = Wide(sum);
    }
}

ZP_MULTIVERSION void addLong(const std::uint8_t* __restrict bytes, std::uint32_t share, std::uint32_t* __restrict sums,
                             int samples)
{
    for (int i = 0; i < samples; ++i) sums[i] += bytes[i] * share;
}

ZP_MULTIVERSION void shortenLong(const std::uint32_t* __restrict sums, Wide* __restrict out, int samples)
{
    // From shares of 16384 to kFirstBits.
    constexpr int kShift = 14 - kFirstBits;
    for (int i = 0; i < samples; ++i) out[i] = Wide((sums[i] + (1u << (kShift - 1))) >> kShift);
}

/// Places with too many shares for rounded products. Only those that count are read: the last place may have few.
ZP_MULTIVERSION void sumAlongExact(const Wide* __restrict row, const int* __restrict first, const int* __restrict count,
                                   const std::int16_t* __restrict shares, int perPlace, Wide* __restrict out,
                                   int places)
{
    for (int x = 0; x < places; ++x) {
        const Wide* p = row + std::ptrdiff_t{4} * first[x];
        std::int32_t sum[4] = {1 << 14, 1 << 14, 1 << 14, 1 << 14};
        for (int k = 0; k < count[x]; ++k)
            for (int c = 0; c < 4; ++c) sum[c] += p[4 * k + c] * shares[k];
        for (int c = 0; c < 4; ++c) out[4 * x + c] = Wide(sum[c] >> 15);
        shares += perPlace;
    }
}

void sumAlongPlain(const Wide* row, const int* first, const std::int16_t* shares, int perPlace, Wide* out, int places)
{
    for (int x = 0; x < places; ++x) {
        const Wide* p = row + std::ptrdiff_t{4} * first[x];
        int sum[4] = {0, 0, 0, 0};
        for (int k = 0; k < perPlace; ++k)
            for (int c = 0; c < 4; ++c) sum[c] += mulRound(p[4 * k + c], shares[k]);
        for (int c = 0; c < 4; ++c) out[4 * x + c] = Wide(sum[c]);
        shares += perPlace;
    }
}

#if defined(__x86_64__)
#define ZP_AVX2 __attribute__((target("avx2")))

/// Four pixels times their four shares; the products of a place lie in the four quarters.
ZP_AVX2 inline __m256i products(const Wide* pixels, const std::int16_t* shares)
{
    // Each share four times: the 8 bytes of four shares to both halves, then each word spread over its quarter.
    const __m256i four = _mm256_set1_epi64x([&] {
        long long v;
        std::memcpy(&v, shares, sizeof v);
        return v;
    }());
    const __m256i spread = _mm256_setr_epi8(0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 2, 3, 2, 3, 2, 3, //
                                            4, 5, 4, 5, 4, 5, 4, 5, 6, 7, 6, 7, 6, 7, 6, 7);
    return _mm256_mulhrs_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(pixels)),
                               _mm256_shuffle_epi8(four, spread));
}

ZP_AVX2 inline __m256i placeProducts(const Wide* row, int first, const std::int16_t* shares, int perPlace)
{
    const Wide* p = row + std::ptrdiff_t{4} * first;
    __m256i sum = products(p, shares);
    for (int k = kTapGroup; k < perPlace; k += kTapGroup) sum = _mm256_add_epi16(sum, products(p + 4 * k, shares + k));
    return sum;
}

ZP_AVX2 void sumAlongAvx2(const Wide* row, const int* first, const std::int16_t* shares, int perPlace, Wide* out,
                          int places)
{
    int x = 0;
    for (; x + 4 <= places; x += 4) {
        __m256i p[4];
        for (int i = 0; i < 4; ++i) p[i] = placeProducts(row, first[x + i], shares + i * perPlace, perPlace);
        // Quarters added up across the four places, so that they come out in order.
        const __m256i even =
            _mm256_add_epi16(_mm256_permute2x128_si256(p[0], p[2], 0x20), _mm256_permute2x128_si256(p[0], p[2], 0x31));
        const __m256i odd =
            _mm256_add_epi16(_mm256_permute2x128_si256(p[1], p[3], 0x20), _mm256_permute2x128_si256(p[1], p[3], 0x31));
        const __m256i sum = _mm256_add_epi16(_mm256_unpacklo_epi64(even, odd), _mm256_unpackhi_epi64(even, odd));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + 4 * x), sum);
        shares += 4 * perPlace;
    }
    sumAlongPlain(row, first + x, shares, perPlace, out + 4 * x, places - x);
}

/// All rows of a block are summed before the next block: the sums stay in registers. @return samples done
ZP_AVX2 int sumRowsAvx2(const std::uint8_t* const* rows, const std::int16_t* shares, int count, Wide* out, int samples)
{
    int i = 0;
    for (; i + 64 <= samples; i += 64) {
        __m256i sum[4] = {};
        for (int k = 0; k < count; ++k) {
            const __m256i share = _mm256_set1_epi16(shares[k]);
            for (int v = 0; v < 4; ++v) {
                const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows[k] + i + 16 * v));
                const __m256i wide = _mm256_slli_epi16(_mm256_cvtepu8_epi16(bytes), kSourceBits);
                sum[v] = _mm256_add_epi16(sum[v], _mm256_mulhrs_epi16(wide, share));
            }
        }
        for (int v = 0; v < 4; ++v) _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + i + 16 * v), sum[v]);
    }
    return i;
}

__attribute__((target("avx512f,avx512bw"))) int
sumRowsAvx512(const std::uint8_t* const* rows, const std::int16_t* shares, int count, Wide* out, int samples)
{
    int i = 0;
    for (; i + 128 <= samples; i += 128) {
        __m512i sum[4] = {};
        for (int k = 0; k < count; ++k) {
            const __m512i share = _mm512_set1_epi16(shares[k]);
            for (int v = 0; v < 4; ++v) {
                const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(rows[k] + i + 32 * v));
                const __m512i wide = _mm512_slli_epi16(_mm512_cvtepu8_epi16(bytes), kSourceBits);
                sum[v] = _mm512_add_epi16(sum[v], _mm512_mulhrs_epi16(wide, share));
            }
        }
        for (int v = 0; v < 4; ++v) _mm512_storeu_si512(out + i + 32 * v, sum[v]);
    }
    return i;
}

ZP_AVX2 int finishAvx2(const Wide* row, std::uint32_t* pixels, int count, int bits)
{
    const __m256i half = _mm256_set1_epi16(std::int16_t(1 << (bits - 1)));
    const __m256i zero = _mm256_setzero_si256(), most = _mm256_set1_epi16(255);
    const __m128i shift = _mm_cvtsi32_si128(bits);
    int i = 0;
    for (; i + 8 <= count; i += 8) {
        __m256i v[2];
        for (int h = 0; h < 2; ++h) {
            const __m256i wide = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(row + 4 * i + 16 * h));
            const __m256i levels =
                _mm256_min_epi16(most, _mm256_max_epi16(zero, _mm256_sra_epi16(_mm256_add_epi16(wide, half), shift)));
            const __m256i alpha = _mm256_shufflehi_epi16(_mm256_shufflelo_epi16(levels, 0), 0);
            v[h] = _mm256_min_epi16(levels, alpha);
        }
        const __m256i bytes = _mm256_permute4x64_epi64(_mm256_packus_epi16(v[0], v[1]), 0xD8);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(pixels + i), bytes);
    }
    return i;
}
#endif

bool haveAvx512()
{
#if defined(__x86_64__)
    static const bool have = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw");
    return have;
#else
    return false;
#endif
}

bool haveAvx2()
{
#if defined(__x86_64__)
    static const bool have = __builtin_cpu_supports("avx2");
    return have;
#else
    return false;
#endif
}

} // namespace

Taps TapsBuilder::build() const
{
    std::size_t most = 1;
    for (const Place& place : mPlaces) most = std::max(most, place.shares.size());
    Taps taps;
    taps.perPlace = int(most + kTapGroup - 1) / kTapGroup * kTapGroup;
    taps.first.reserve(mPlaces.size());
    taps.count.reserve(mPlaces.size());
    taps.shares.reserve(mPlaces.size() * std::size_t(taps.perPlace));
    for (const Place& place : mPlaces) {
        taps.first.push_back(place.first);
        taps.count.push_back(int(place.shares.size()));
        double reached = 0;
        int before = 0;
        for (const double share : place.shares) {
            reached += share;
            const int now = int(std::lround(reached * kShareOne));
            taps.shares.push_back(std::int16_t(now - before));
            before = now;
        }
        taps.shares.resize(taps.first.size() * std::size_t(taps.perPlace), 0);
    }
    return taps;
}

void PaddedRow::repeatEnds()
{
    Wide* begin = samples();
    Wide* end = begin + std::ptrdiff_t{4} * mPixels;
    for (int i = 0; i < kPadding; ++i) {
        std::memcpy(begin - 4 * (i + 1), begin, 4 * sizeof(Wide));
        std::memcpy(end + 4 * i, end - 4, 4 * sizeof(Wide));
    }
}

ZP_MULTIVERSION void widenRow(const std::uint32_t* __restrict pixels, Wide* __restrict out, int count)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(pixels);
    for (int i = 0; i < 4 * count; ++i) out[i] = Wide(bytes[i] << kSourceBits);
}

void sumRows(ConstBitmapView source, const Taps& rows, std::size_t place, Wide* out,
             std::vector<std::uint32_t>& longSums)
{
    const int samples = 4 * source.width, first = rows.first[place], count = rows.count[place];
    const std::int16_t* shares = &rows.shares[place * std::size_t(rows.perPlace)];
    if (count > kMostRounded) {
        longSums.assign(std::size_t(samples), 0);
        for (int k = 0; k < count; ++k)
            addLong(source.rowData(first + k), std::uint32_t(shares[k]), longSums.data(), samples);
        return shortenLong(longSums.data(), out, samples);
    }
    const std::uint8_t* lines[kMostRounded];
    for (int k = 0; k < count; ++k) lines[k] = source.rowData(first + k);
    int done = 0;
#if defined(__x86_64__)
    if (haveAvx512())
        done = sumRowsAvx512(lines, shares, count, out, samples);
    else if (haveAvx2())
        done = sumRowsAvx2(lines, shares, count, out, samples);
#endif
    sumRowsPlain(lines, shares, count, out, done, samples);
}

void sumAlong(const Wide* row, const Taps& columns, Wide* out)
{
    const int places = int(columns.first.size());
    if (columns.perPlace > kMostRounded)
        sumAlongExact(row, columns.first.data(), columns.count.data(), columns.shares.data(), columns.perPlace, out,
                      places);
#if defined(__x86_64__)
    else if (haveAvx2())
        sumAlongAvx2(row, columns.first.data(), columns.shares.data(), columns.perPlace, out, places);
#endif
    else
        sumAlongPlain(row, columns.first.data(), columns.shares.data(), columns.perPlace, out, places);
}

ZP_MULTIVERSION void sumFourRows(const Wide* const* rows, const std::int16_t* shares, Wide* __restrict out, int count)
{
    const Wide *a = rows[0], *b = rows[1], *c = rows[2], *d = rows[3];
    const std::int16_t wa = shares[0], wb = shares[1], wc = shares[2], wd = shares[3];
    for (int i = 0; i < 4 * count; ++i)
        out[i] = Wide(mulRound(a[i], wa) + mulRound(b[i], wb) + mulRound(c[i], wc) + mulRound(d[i], wd));
}

void finishRow(const Wide* row, std::uint32_t* pixels, int count, int bits)
{
    int done = 0;
#if defined(__x86_64__)
    if (haveAvx2()) done = finishAvx2(row, pixels, count, bits);
#endif
    for (int i = done; i < count; ++i) {
        std::uint32_t word = 0;
        int alpha = 255;
        for (int c = 0; c < 4; ++c) {
            const int level = std::clamp((row[4 * i + c] + (1 << (bits - 1))) >> bits, 0, alpha);
            if (c == 0) alpha = level;
            word |= std::uint32_t(level) << (8 * c);
        }
        pixels[i] = word;
    }
}

} // namespace zp::resampling
