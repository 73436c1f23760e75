// SPDX-License-Identifier: GPL-3.0-or-later
/// Where the border between two rows of bits turns: exclusive or, 64 pixels to a lane.
#include "selection/OutlineCorners.h"
#include <bit>
#include <cstring>

// Counting bits and moving them together is what this kernel does, and what that target has instructions for.
#define HWY_WANT_AVX3_DL
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "selection/OutlineCorners.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

/// What is known of the 64 points at the left borders of a word's pixels.
template <class D>
struct Points {
    hn::Vec<D> ends;      ///< a level piece of border starts or ends, but not both
    hn::Vec<D> crossings; ///< four pieces meet
    hn::Vec<D> above;     ///< an upright piece comes from above
};

template <class D>
HWY_INLINE Points<D> pointsOf(D d, const std::uint64_t* aboveRow, const std::uint64_t* belowRow)
{
    const auto above = hn::LoadU(d, aboveRow), below = hn::LoadU(d, belowRow);
    const auto aboveBefore = hn::LoadU(d, aboveRow - 1), belowBefore = hn::LoadU(d, belowRow - 1);
    const auto line = hn::Xor(above, below);
    const auto lineLeft = hn::Or(hn::ShiftLeft<1>(line), hn::ShiftRight<63>(hn::Xor(aboveBefore, belowBefore)));
    const auto upright = hn::Xor(above, hn::Or(hn::ShiftLeft<1>(above), hn::ShiftRight<63>(aboveBefore)));
    return {hn::Xor(line, lineLeft), hn::And(hn::And(line, lineLeft), upright), upright};
}

std::size_t countCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words)
{
    const hn::ScalableTag<std::uint64_t> d;
    const hn::CappedTag<std::uint64_t, 1> one;
    const auto counted = [&](auto tag, std::size_t at) ZP_LANES {
        const auto p = pointsOf(tag, above + at, below + at);
        return hn::Add(hn::PopulationCount(p.ends), hn::ShiftLeft<1>(hn::PopulationCount(p.crossings)));
    };
    auto sum = hn::Zero(d);
    std::size_t w = 0;
    for (; w + hn::Lanes(d) <= words; w += hn::Lanes(d)) sum = hn::Add(sum, counted(d, w));
    std::size_t count = std::size_t(hn::GetLane(hn::SumOfLanes(d, sum)));
    for (; w < words; ++w) count += std::size_t(hn::GetLane(counted(one, w)));
    return count;
}

/// The corners of one word that has any, bit by bit.
HWY_INLINE FoundCorner* writeEach(std::uint64_t ends, std::uint64_t crossings, std::uint64_t above,
                                  std::uint32_t firstColumn, FoundCorner* out)
{
    for (std::uint64_t todo = ends | crossings; todo; todo &= todo - 1) {
        const int bit = std::countr_zero(todo);
        const std::uint32_t x = firstColumn + std::uint32_t(bit);
        if (crossings >> bit & 1) {
            *out++ = {x | FoundCorner::kCrossing | FoundCorner::kEndsAbove};
            *out++ = {x | FoundCorner::kCrossing};
        } else {
            *out++ = {x | std::uint32_t(above >> bit & 1) << 31};
        }
    }
    return out;
}

/// The same for a word without crossings: the columns of the bits set, side by side, as many as a vector has lanes.
HWY_INLINE FoundCorner* writeEnds(std::uint64_t ends, std::uint64_t above, std::uint32_t firstColumn, FoundCorner* out)
{
    const hn::CappedTag<std::uint32_t, 16> d;
    constexpr std::size_t kLanes = hn::MaxLanes(decltype(d)());
    constexpr std::uint64_t kLaneBits = (std::uint64_t{1} << kLanes) - 1;
    const auto flag = hn::Set(d, FoundCorner::kEndsAbove);
    for (std::size_t part = 0; part < 64 / kLanes; ++part) {
        const std::uint64_t here = ends >> part * kLanes & kLaneBits, from = above >> part * kLanes & kLaneBits;
        // Four parts are done sooner than it is known which of them could be left out.
        if (kLanes < 16 && !here) continue;
        std::uint8_t which[8], upright[8];
        std::memcpy(which, &here, sizeof which);
        std::memcpy(upright, &from, sizeof upright);
        const auto columns = hn::Iota(d, firstColumn + std::uint32_t(part * kLanes));
        const auto corners = hn::Or(columns, hn::IfThenElseZero(hn::LoadMaskBits(d, upright), flag));
        hn::StoreU(hn::Compress(corners, hn::LoadMaskBits(d, which)), d, &out->x);
        out += std::popcount(here);
    }
    return out;
}

/// The corners of as many words as the vectors have lanes.
template <class D>
FoundCorner* writeWords(D d, const Points<D>& p, std::uint32_t firstColumn, FoundCorner* out)
{
    constexpr std::size_t kLanes = hn::MaxLanes(D());
    std::uint64_t ends[kLanes], crossings[kLanes], uprights[kLanes];
    hn::StoreU(p.ends, d, ends);
    hn::StoreU(p.crossings, d, crossings);
    hn::StoreU(p.above, d, uprights);
    for (std::size_t k = 0; k < hn::Lanes(d); ++k) {
        if (!(ends[k] | crossings[k])) continue;
        const std::uint32_t column = firstColumn + std::uint32_t(k) * 64;
        out = crossings[k] ? writeEach(ends[k], crossings[k], uprights[k], column, out)
                           : writeEnds(ends[k], uprights[k], column, out);
    }
    return out;
}

std::size_t findCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words, FoundCorner* out)
{
    FoundCorner* const first = out;
    forEachVector<std::uint64_t>(words, [&](auto d, std::size_t at) ZP_LANES {
        const auto p = pointsOf(d, above + at, below + at);
        if (hn::AllTrue(d, hn::Eq(hn::Or(p.ends, p.crossings), hn::Zero(d)))) return;
        out = writeWords(d, p, std::uint32_t(at) * 64, out);
    });
    return std::size_t(out - first);
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(countCorners);
HWY_EXPORT(findCorners);

std::size_t countCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words)
{
    return HWY_DYNAMIC_DISPATCH(countCorners)(above, below, words);
}

std::size_t findCorners(const std::uint64_t* above, const std::uint64_t* below, std::size_t words, FoundCorner* out)
{
    return HWY_DYNAMIC_DISPATCH(findCorners)(above, below, words, out);
}

} // namespace zp
#endif
