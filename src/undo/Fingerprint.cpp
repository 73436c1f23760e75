// SPDX-License-Identifier: GPL-3.0-or-later
/// Sixty-four multiply-and-rotate chains side by side, so that the vector units see 512 independent bytes a step.
#include "undo/Fingerprint.h"
#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "undo/Fingerprint.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/PixelVectors-inl.h"

#ifndef ZP_FINGERPRINT_ONCE
#define ZP_FINGERPRINT_ONCE
namespace zp
{

constexpr int kLanes = 64;
constexpr std::size_t kStep = kLanes * sizeof(std::uint64_t);
/// Odd, with about half of its bits set and no pattern: one changed bit reaches half of the word.
constexpr std::uint64_t kSpread = 0x9E6C63D0676A9A99u;
constexpr std::uint64_t kSpread2 = 0xC3A5C85C97CB3127u;

} // namespace zp
#endif

HWY_BEFORE_NAMESPACE();
namespace zp::HWY_NAMESPACE
{
namespace
{

using Words = hn::CappedTag<std::uint64_t, 8>;
using Vector = hn::Vec<Words>;

/// v * k modulo 2^64: in one instruction where there is one, else of the products that every target has, 32 by 32 bits.
HWY_INLINE Vector times(Vector v, std::uint64_t k)
{
    const Words d;
#if HWY_TARGET <= HWY_AVX3
    return hn::Mul(v, hn::Set(d, k));
#else
    const hn::Repartition<std::uint32_t, Words> halves;
    const auto low = hn::BitCast(halves, hn::Set(d, k & 0xFFFFFFFFu)), high = hn::BitCast(halves, hn::Set(d, k >> 32));
    const auto v32 = hn::BitCast(halves, v);
    const auto crossed = hn::Add(hn::MulEven(v32, high), hn::MulEven(hn::BitCast(halves, hn::ShiftRight<32>(v)), low));
    return hn::Add(hn::MulEven(v32, low), hn::ShiftLeft<32>(crossed));
#endif
}

/// Each step is a bijection of a lane, so one changed word can never be lost again. The first multiplication makes a
/// difference of the word dense upwards, the rotation brings its high bits down, the second spreads those: with one
/// multiplication only, two changes of a single bit each, a lane's step apart, could cancel.
void absorb(std::uint64_t* HWY_RESTRICT lanes, const std::uint8_t* HWY_RESTRICT bytes, std::size_t steps)
{
    const Words d;
    constexpr int kVectors = kLanes / int(hn::MaxLanes(Words()));
    Vector chains[kVectors];
    for (int i = 0; i < kVectors; ++i) chains[i] = hn::LoadU(d, lanes + i * int(hn::MaxLanes(d)));
    for (std::size_t s = 0; s < steps; ++s, bytes += kStep) {
        for (std::size_t line = 0; line < kStep; line += 64) announce(bytes + line);
        for (int i = 0; i < kVectors; ++i) {
            const hn::Repartition<std::uint8_t, Words> d8;
            const auto words = hn::BitCast(d, hn::LoadU(d8, bytes + i * int(hn::MaxLanes(d8))));
            chains[i] = times(hn::RotateRight<64 - 29>(hn::Add(chains[i], times(words, kSpread2))), kSpread);
        }
    }
    for (int i = 0; i < kVectors; ++i) hn::StoreU(chains[i], d, lanes + i * int(hn::MaxLanes(d)));
}

} // namespace
} // namespace zp::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zp
{

HWY_EXPORT(absorb);

namespace
{

using Lanes = std::array<std::uint64_t, kLanes>;

void absorb(Lanes& lanes, const std::uint8_t* bytes, std::size_t steps)
{
    HWY_DYNAMIC_DISPATCH(absorb)(lanes.data(), bytes, steps);
}

Lanes freshLanes()
{
    Lanes lanes;
    std::uint64_t value = kSpread2;
    for (std::uint64_t& lane : lanes) lane = value = std::rotl(value, 23) * kSpread + 1;
    return lanes;
}

void absorbRow(Lanes& lanes, const std::uint8_t* bytes, std::size_t count)
{
    const std::size_t steps = count / kStep;
    absorb(lanes, bytes, steps);
    if (const std::size_t rest = count - steps * kStep) {
        std::array<std::uint8_t, kStep> padded{};
        std::memcpy(padded.data(), bytes + steps * kStep, rest);
        absorb(lanes, padded.data(), 1);
    }
}

std::uint64_t avalanche(std::uint64_t value)
{
    value = (value ^ (value >> 32)) * kSpread;
    value = (value ^ (value >> 29)) * kSpread2;
    return value ^ (value >> 32);
}

/// The lengths take part because rows are padded with zeros.
Fingerprint finish(const Lanes& lanes, std::uint64_t rowLength, std::uint64_t rows)
{
    Fingerprint result{rowLength * kSpread, rows * kSpread2 + 1};
    for (const std::uint64_t lane : lanes) {
        const std::uint64_t mixed = avalanche(lane);
        result.low = std::rotl(result.low ^ mixed, 27) * kSpread;
        result.high = std::rotl(result.high + mixed, 33) * kSpread2;
    }
    return {avalanche(result.low), avalanche(result.high)};
}

} // namespace

Fingerprint fingerprint(ConstBitmapView pixels)
{
    Lanes lanes = freshLanes();
    const std::size_t rowLength = std::size_t(pixels.width) * 4;
    for (int y = 0; y < pixels.height; ++y) absorbRow(lanes, pixels.rowData(y), rowLength);
    return finish(lanes, rowLength, std::uint64_t(pixels.height));
}

Fingerprint fingerprint(std::span<const std::uint8_t> bytes)
{
    Lanes lanes = freshLanes();
    absorbRow(lanes, bytes.data(), bytes.size());
    return finish(lanes, bytes.size(), 1);
}

} // namespace zp
#endif
