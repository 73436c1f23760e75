// SPDX-License-Identifier: GPL-3.0-or-later
/// Packing mask bytes to bits.
#include "selection/BitRows.h"
#include <cstring>
#include <new>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zp
{

BitRows::BitRows(int width, int height, bool zeroed)
    : mWidth(width > 0 && height > 0 ? width : 0),
      mHeight(width > 0 && height > 0 ? height : 0),
      mWordsPerRow(std::size_t(mWidth) / 64 + 1)
{
    if (mHeight == 0) return;
    const std::size_t bytes = (mWordsPerRow * std::size_t(mHeight) + 1) * sizeof(std::uint64_t);
    mBytes = zeroed ? allocatePixels(bytes) : allocatePixelsUninitialized(bytes);
    if (!mBytes) throw std::bad_alloc();
    std::memset(mBytes.get(), 0, sizeof(std::uint64_t));
}

void packSelectedBitsPlain(const std::uint8_t* bytes, int width, std::uint64_t* words)
{
    int x = 0;
    for (; x + 64 <= width; x += 64) {
        std::uint64_t bits = 0;
        for (int group = 0; group < 8; ++group) {
            std::uint64_t eight;
            std::memcpy(&eight, bytes + x + group * 8, 8);
            eight = ~eight; // 0 where not selected
            // The top bit of every byte says whether any bit of it is set; the product gathers the eight top bits.
            constexpr std::uint64_t kLow = 0x7f7f7f7f7f7f7f7f;
            const std::uint64_t any = (((eight & kLow) + kLow) | eight) & ~kLow;
            bits |= (((any >> 7) * 0x0102040810204080) >> 56) << (group * 8);
        }
        *words++ = bits;
    }
    std::uint64_t rest = 0;
    for (int bit = 0; x < width; ++x, ++bit) rest |= std::uint64_t(bytes[x] != 255) << bit;
    *words = rest;
}

#if defined(__x86_64__)
namespace
{

__attribute__((target("avx512f,avx512bw"))) void packSelectedBits512(const std::uint8_t* bytes, int width,
                                                                     std::uint64_t* words)
{
    const __m512i none = _mm512_set1_epi8(char(255));
    int x = 0;
    for (; x + 64 <= width; x += 64) *words++ = _mm512_cmpneq_epi8_mask(_mm512_loadu_si512(bytes + x), none);
    const __mmask64 inside = (std::uint64_t{1} << (width - x)) - 1;
    *words = inside ? _mm512_mask_cmpneq_epi8_mask(inside, _mm512_maskz_loadu_epi8(inside, bytes + x), none) : 0;
}

__attribute__((target("avx2"))) void packSelectedBits256(const std::uint8_t* bytes, int width, std::uint64_t* words)
{
    const __m256i none = _mm256_set1_epi8(char(255));
    const auto unselected = [&](const std::uint8_t* at) __attribute__((target("avx2")))
    {
        const __m256i value = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at));
        return std::uint64_t(std::uint32_t(_mm256_movemask_epi8(_mm256_cmpeq_epi8(value, none))));
    };
    int x = 0;
    for (; x + 64 <= width; x += 64) *words++ = ~(unselected(bytes + x) | unselected(bytes + x + 32) << 32);
    packSelectedBitsPlain(bytes + x, width - x, words);
}

} // namespace
#endif

void packSelectedBits(const std::uint8_t* bytes, int width, std::uint64_t* words)
{
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx512bw")) return packSelectedBits512(bytes, width, words);
    if (__builtin_cpu_supports("avx2")) return packSelectedBits256(bytes, width, words);
#endif
    packSelectedBitsPlain(bytes, width, words);
}

BitRows BitRows::ofSelected(ConstMaskView mask)
{
    BitRows bits(mask.isEmpty() ? 0 : mask.width, mask.isEmpty() ? 0 : mask.height, false);
    for (int y = 0; y < bits.height(); ++y) packSelectedBits(mask.row(y), bits.width(), bits.row(y));
    return bits;
}

} // namespace zp
