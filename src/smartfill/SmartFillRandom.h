// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill's random numbers: one seed, and a numbered stream for every fill step.
#pragma once
#include <cstdint>

namespace zp
{

/// Counter-based: number i of stream s is a hash of (seed, s, i). A step's draws therefore depend on nothing that
/// happened before, so a vector loop may take sixteen at once, a step that ends early leaves no trace in the next, and
/// the same seed gives the same picture on every machine.
class SmartFillRandom
{
public:
    explicit SmartFillRandom(std::uint64_t seed) : mSeed(seed) {}

    /// Goes to the start of stream @p stream.
    void begin(std::uint64_t stream)
    {
        mKey = keyOf(stream);
        mNext = 0;
    }
    /// The stream's next number, 0 to length - 1.
    std::uint32_t below(std::uint32_t length) { return scaled(mix(mKey, mNext++), length); }

    /// The stream as a number that mix() takes.
    std::uint32_t keyOf(std::uint64_t stream) const
    {
        std::uint64_t z = mSeed + (stream + 1) * 0x9E3779B97F4A7C15u;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return std::uint32_t(z >> 32);
    }
    /// Number @p index of the stream with @p key, over the whole 32-bit range; its high bits are the good ones. A key
    /// is already well mixed, so one multiplication is enough to part neighbouring indices.
    static constexpr std::uint32_t mix(std::uint32_t key, std::uint32_t index)
    {
        std::uint32_t x = key ^ (index * kStride);
        x = (x ^ (x >> 16)) * kMultiplier;
        return x ^ (x >> 15);
    }
    static constexpr std::uint32_t kStride = 0x9E3779B9u, kMultiplier = 0x846CA68Bu;
    /// A 32-bit number brought into 0 to length - 1 by its high bits: as even as a remainder, without the division.
    static constexpr std::uint32_t scaled(std::uint32_t number, std::uint32_t length)
    {
        return std::uint32_t((std::uint64_t(number) * length) >> 32);
    }

private:
    std::uint64_t mSeed;
    std::uint32_t mKey = 0, mNext = 0;
};

/// The stream that shuffles the fill list; fill steps use their own index, which is never this large.
inline constexpr std::uint64_t kSmartFillShuffleStream = ~std::uint64_t{0} - 1;

} // namespace zp
