// SPDX-License-Identifier: GPL-3.0-or-later
/// For kernels: products of 16-bit numbers summed in pairs. Included once for every vector target.
#if defined(ZP_CODECS_PAIR_PRODUCTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef ZP_CODECS_PAIR_PRODUCTS_INL_H
#undef ZP_CODECS_PAIR_PRODUCTS_INL_H
#else
#define ZP_CODECS_PAIR_PRODUCTS_INL_H
#endif
#include <cstdint>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zp::codec::HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// Products of the 16-bit lanes, each added to its neighbour's: half as many lanes of 32 bits.
template <class V16, class D32 = hn::RepartitionToWide<hn::DFromV<V16>>>
HWY_INLINE hn::Vec<D32> multiplyPairs(V16 a, V16 b)
{
    const D32 d;
    auto second = hn::Zero(d);
    const auto first = hn::ReorderWidenMulAccumulate(d, a, b, hn::Zero(d), second);
    return hn::RearrangeToOddPlusEven(first, second);
}

/// Two signed 16-bit factors, over and over.
template <class D16>
HWY_INLINE hn::Vec<D16> pairOfFactors(D16 d, int low, int high)
{
    const hn::RepartitionToWide<D16> d32;
    return hn::BitCast(d, hn::Set(d32, std::int32_t((std::uint32_t(low) & 0xFFFFu) | std::uint32_t(high) << 16)));
}

/// Pairs of 32-bit numbers, shifted right with rounding and packed, in the order of what InterleaveLower and
/// InterleaveUpper took apart: both work inside blocks of 128 bits.
template <int Shift, class D16, class V32>
HWY_INLINE hn::Vec<D16> packRounded(D16 d, V32 low, V32 high)
{
    const auto half = hn::Set(hn::DFromV<V32>(), 1 << (Shift - 1));
    return hn::ReorderDemote2To(d, hn::ShiftRight<Shift>(hn::Add(low, half)),
                                hn::ShiftRight<Shift>(hn::Add(high, half)));
}

} // namespace zp::codec::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();
#endif
