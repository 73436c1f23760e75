// SPDX-License-Identifier: GPL-3.0-or-later
/// Sixty-four multiply-and-rotate chains side by side, so that the vector units see 512 independent bytes a step.
#include "undo/Fingerprint.h"
#include "base/Simd.h"
#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

namespace zp
{

namespace
{

constexpr int kLanes = 64;
constexpr std::size_t kStep = kLanes * sizeof(std::uint64_t);
/// Odd, with about half of its bits set and no pattern: one changed bit reaches half of the word.
constexpr std::uint64_t kSpread = 0x9E6C63D0676A9A99u;
constexpr std::uint64_t kSpread2 = 0xC3A5C85C97CB3127u;

using Lanes = std::array<std::uint64_t, kLanes>;

/// Each step is a bijection of a lane, so one changed word can never be lost again. The first multiplication makes a
/// difference of the word dense upwards, the rotation brings its high bits down, the second spreads those: with one
/// multiplication only, two changes of a single bit each, a lane's step apart, could cancel.
ZP_MULTIVERSION void absorb(std::uint64_t* __restrict lanes, const std::uint8_t* __restrict bytes, std::size_t steps)
{
    for (std::size_t s = 0; s < steps; ++s, bytes += kStep) {
        std::uint64_t words[kLanes];
        std::memcpy(words, bytes, kStep);
        for (int i = 0; i < kLanes; ++i) {
            const std::uint64_t mixed = lanes[i] + words[i] * kSpread2;
            lanes[i] = ((mixed << 29) | (mixed >> 35)) * kSpread;
        }
    }
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
    absorb(lanes.data(), bytes, steps);
    if (const std::size_t rest = count - steps * kStep) {
        std::array<std::uint8_t, kStep> padded{};
        std::memcpy(padded.data(), bytes + steps * kStep, rest);
        absorb(lanes.data(), padded.data(), 1);
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
