// SPDX-License-Identifier: GPL-3.0-or-later
/// The smart fill's random numbers: one seed, and a numbered stream for every use.
#pragma once
#include <cstdint>

namespace zp
{

/// Counter-based: number i of stream s is a hash of (seed, s, i). What a stream gives therefore depends on nothing that
/// happened before, and the same seed gives the same picture on every machine.
class SmartFillRandom
{
public:
    enum Stream : std::uint64_t { FillOrder = 1, Draw, StepStart };

    // Candidates are drawn for a block of steps at once, and a step takes 200 successive ones of them from a random
    // place on. To each step they are as random as if it had drawn them itself, while the block's fit into the
    // processor's nearest cache with all that is compared first about them.
    static constexpr int kBlockSteps = 1024; ///< blocks begin at multiples
    static constexpr int kStarts = 1024;     ///< a step starts at one of these
    static constexpr int kBlockDraws = 1024 + 256;

    explicit SmartFillRandom(std::uint64_t seed) : mSeed(seed) {}

    /// Number @p index of a stream, brought into 0 to @p length - 1.
    std::uint32_t below(std::uint32_t length, Stream stream, std::uint64_t index) const
    {
        // By the high bits of a product: as even as a remainder, without the division.
        return std::uint32_t(((hash(hash(mSeed + stream) + index) >> 32) * length) >> 32);
    }

    /// Draw number @p i (0 to kBlockDraws - 1) for the block of @p step, 0 to @p length - 1.
    std::uint32_t draw(std::uint32_t length, std::int64_t step, int i) const
    {
        return below(length, Draw, std::uint64_t(step / kBlockSteps) * kBlockDraws + std::uint64_t(i));
    }
    /// Which of its block's draws is the first of @p step.
    int startOf(std::int64_t step) const { return int(below(kStarts, StepStart, std::uint64_t(step))); }

private:
    static constexpr std::uint64_t hash(std::uint64_t z)
    {
        z += 0x9E3779B97F4A7C15u;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

    std::uint64_t mSeed;
};

} // namespace zp
