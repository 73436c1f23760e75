// SPDX-License-Identifier: GPL-3.0-or-later
/// Blending of premultiplied words: two 16-bit lanes to a word, so that plain loops vectorise.
#include "drawing/ImageDrawingBlend.h"
#include "base/Simd.h"
#include <algorithm>
#include <cstring>

namespace zp
{

namespace
{
constexpr std::uint32_t kLanes = 0x00FF00FF;
/// Opaque and empty stretches are looked for in pieces of this many pixels.
constexpr int kPiece = 128;

/// Both 16-bit lanes divided by 255, rounded; exact for lanes up to 65,407.
inline std::uint32_t div255Lanes(std::uint32_t v)
{
    v += 0x00800080;
    return ((v + ((v >> 8) & kLanes)) >> 8) & kLanes;
}
inline std::uint32_t div255(std::uint32_t v)
{
    v += 128;
    return (v + (v >> 8)) >> 8;
}
inline std::uint32_t scaled(std::uint32_t pixel, std::uint32_t by)
{
    return div255Lanes((pixel & kLanes) * by) | div255Lanes(((pixel >> 8) & kLanes) * by) << 8;
}
/// a * wa + b * wb, over 255; the weighted lanes must not exceed 255 * 255 in sum.
inline std::uint32_t mixed(std::uint32_t a, std::uint32_t wa, std::uint32_t b, std::uint32_t wb)
{
    return div255Lanes((a & kLanes) * wa + (b & kLanes) * wb) |
           div255Lanes(((a >> 8) & kLanes) * wa + ((b >> 8) & kLanes) * wb) << 8;
}
inline std::uint32_t over(std::uint32_t s, std::uint32_t d, std::uint32_t weight)
{
    return mixed(s, weight, d, 255 - div255((s & 255) * weight));
}

ZP_MULTIVERSION void overImage(std::uint32_t* d, const std::uint32_t* s, int n)
{
    for (int i = 0; i < n; ++i) d[i] = mixed(s[i], 255, d[i], 255 - (s[i] & 255));
}
ZP_MULTIVERSION void overImageFaded(std::uint32_t* d, const std::uint32_t* s, int n, unsigned opacity)
{
    for (int i = 0; i < n; ++i) d[i] = over(s[i], d[i], opacity);
}
ZP_MULTIVERSION void overImageCovered(std::uint32_t* d, const std::uint32_t* s, const std::uint8_t* c, int n)
{
    for (int i = 0; i < n; ++i) d[i] = over(s[i], d[i], c[i]);
}
ZP_MULTIVERSION void overImageCoveredFaded(std::uint32_t* d, const std::uint32_t* s, const std::uint8_t* c, int n,
                                           unsigned opacity)
{
    for (int i = 0; i < n; ++i) d[i] = over(s[i], d[i], div255(c[i] * opacity));
}
ZP_MULTIVERSION void overWord(std::uint32_t* d, std::uint32_t word, int n)
{
    const std::uint32_t rest = 255 - (word & 255);
    for (int i = 0; i < n; ++i) d[i] = mixed(word, 255, d[i], rest);
}
ZP_MULTIVERSION void overWordCovered(std::uint32_t* d, std::uint32_t word, const std::uint8_t* c, int n)
{
    for (int i = 0; i < n; ++i) d[i] = over(word, d[i], c[i]);
}
ZP_MULTIVERSION void copyImageFaded(std::uint32_t* d, const std::uint32_t* s, int n, unsigned opacity)
{
    for (int i = 0; i < n; ++i) d[i] = scaled(s[i], opacity);
}
ZP_MULTIVERSION void copyImageCovered(std::uint32_t* d, const std::uint32_t* s, const std::uint8_t* c, int n,
                                      unsigned opacity)
{
    for (int i = 0; i < n; ++i) d[i] = mixed(scaled(s[i], opacity), c[i], d[i], 255u - c[i]);
}
ZP_MULTIVERSION void copyWordCovered(std::uint32_t* d, std::uint32_t word, const std::uint8_t* c, int n)
{
    for (int i = 0; i < n; ++i) d[i] = mixed(word, c[i], d[i], 255u - c[i]);
}
ZP_MULTIVERSION void inImage(std::uint32_t* d, const std::uint32_t* s, int n, unsigned opacity)
{
    for (int i = 0; i < n; ++i) d[i] = scaled(s[i], div255((d[i] & 255) * opacity));
}
ZP_MULTIVERSION void inImageCovered(std::uint32_t* d, const std::uint32_t* s, const std::uint8_t* c, int n,
                                    unsigned opacity)
{
    for (int i = 0; i < n; ++i) d[i] = mixed(scaled(s[i], div255((d[i] & 255) * opacity)), c[i], d[i], 255u - c[i]);
}
ZP_MULTIVERSION void inWordCovered(std::uint32_t* d, std::uint32_t word, const std::uint8_t* c, int n)
{
    for (int i = 0; i < n; ++i) {
        const std::uint32_t weight = c ? c[i] : 255u;
        d[i] = mixed(scaled(word, d[i] & 255), weight, d[i], 255u - weight);
    }
}
ZP_MULTIVERSION void clearCovered(std::uint32_t* d, const std::uint8_t* c, int n)
{
    for (int i = 0; i < n; ++i) d[i] = scaled(d[i], 255u - c[i]);
}

ZP_MULTIVERSION std::uint32_t andOf(const std::uint32_t* s, int n)
{
    std::uint32_t v = ~0u;
    for (int i = 0; i < n; ++i) v &= s[i];
    return v;
}
ZP_MULTIVERSION std::uint32_t orOf(const std::uint32_t* s, int n)
{
    std::uint32_t v = 0;
    for (int i = 0; i < n; ++i) v |= s[i];
    return v;
}

/// Source-over at full cover: opaque stretches are copied and empty ones left, without reading the destination.
void overImageInPieces(std::uint32_t* d, const std::uint32_t* s, int n)
{
    for (int at = 0; at < n; at += kPiece) {
        const int count = std::min(kPiece, n - at);
        if ((andOf(s + at, count) & 255) == 255)
            std::memmove(d + at, s + at, std::size_t(count) * 4);
        else if (orOf(s + at, count) != 0)
            overImage(d + at, s + at, count);
    }
}

void sourceOver(const BlendRun& r, unsigned opacity)
{
    if (!r.source) {
        const std::uint32_t word = opacity == 255 ? r.word : scaled(r.word, opacity);
        if ((word & 255) == 0) return;
        if (r.cover)
            overWordCovered(r.destination, word, r.cover, r.count);
        else if ((word & 255) == 255)
            std::fill_n(r.destination, r.count, word);
        else
            overWord(r.destination, word, r.count);
        return;
    }
    if (r.cover)
        opacity == 255 ? overImageCovered(r.destination, r.source, r.cover, r.count)
                       : overImageCoveredFaded(r.destination, r.source, r.cover, r.count, opacity);
    else
        opacity == 255 ? overImageInPieces(r.destination, r.source, r.count)
                       : overImageFaded(r.destination, r.source, r.count, opacity);
}

void copy(const BlendRun& r, unsigned opacity)
{
    if (!r.source) {
        const std::uint32_t word = opacity == 255 ? r.word : scaled(r.word, opacity);
        if (r.cover)
            copyWordCovered(r.destination, word, r.cover, r.count);
        else
            std::fill_n(r.destination, r.count, word);
        return;
    }
    if (r.cover)
        copyImageCovered(r.destination, r.source, r.cover, r.count, opacity);
    else if (opacity == 255)
        std::memmove(r.destination, r.source, std::size_t(r.count) * 4);
    else
        copyImageFaded(r.destination, r.source, r.count, opacity);
}
} // namespace

void blendRun(const BlendRun& r, CompositingOperation operation, unsigned opacity)
{
    if (r.count <= 0) return;
    switch (operation) {
    case CompositingOperation::Clear:
        if (r.cover)
            clearCovered(r.destination, r.cover, r.count);
        else
            std::fill_n(r.destination, r.count, 0u);
        break;
    case CompositingOperation::Copy:
        copy(r, opacity);
        break;
    case CompositingOperation::SourceOver:
        if (opacity != 0) sourceOver(r, opacity);
        break;
    case CompositingOperation::SourceIn:
        if (!r.source)
            inWordCovered(r.destination, opacity == 255 ? r.word : scaled(r.word, opacity), r.cover, r.count);
        else if (r.cover)
            inImageCovered(r.destination, r.source, r.cover, r.count, opacity);
        else
            inImage(r.destination, r.source, r.count, opacity);
        break;
    }
}

ZP_MULTIVERSION void multiplyCover(std::uint8_t* cover, const std::uint8_t* other, int count)
{
    for (int i = 0; i < count; ++i) cover[i] = std::uint8_t(div255(std::uint32_t(cover[i]) * other[i]));
}

ZP_MULTIVERSION void multiplyCoverByMask(std::uint8_t* cover, const std::uint8_t* mask, int count)
{
    for (int i = 0; i < count; ++i) cover[i] = std::uint8_t(div255(std::uint32_t(cover[i]) * (255u - mask[i])));
}

} // namespace zp
