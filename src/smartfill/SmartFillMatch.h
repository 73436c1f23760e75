// SPDX-License-Identifier: GPL-3.0-or-later
/// One step of a smart fill: finding the source pixel whose surroundings are most like those of the pixel to fill.
#pragma once
#include "smartfill/KnownPixels.h"
#include "smartfill/SmartFillRandom.h"
#include <array>
#include <cstdint>
#include <cstdlib>

namespace zp
{

inline constexpr std::int32_t kWorstError = 0x40000000;
/// What a neighbour costs that has no counterpart: it lies outside or in the hole. More than any difference.
inline constexpr std::int32_t kMissingPenalty = 4 * 65536;
inline constexpr int kRandomTries = 200;

/// A pixel being synthesised; both parts are always wanted together.
struct TargetPixel {
    std::uint32_t value;
    std::int32_t filledFrom; ///< index of the source pixel it was filled from; -1: not filled
};

/// Source pixels drawn at random, one after the other, for steps to take their candidates from. What a step compares
/// first about a candidate is its nearest neighbours, and those stand here in the same order, so that they come as a
/// stream instead of one cache miss each.
struct DrawnSources {
    static constexpr int kCount = SmartFillRandom::kBlockDraws; ///< whole vectors may be read from any start
    static constexpr int kAround = 12;

    alignas(64) std::array<std::int32_t, kCount> place;
    /// The bytes of the pixels at offsets 1 to 12 of NearOffset from each place, anything where that is no source
    /// pixel: byte @p channel of the pixel at offset k + 1 of draw i is around[k][channel][i].
    alignas(64) std::array<std::array<std::array<std::uint8_t, kCount>, 4>, kAround> around;
};

/// What the steps of a run share. Indices are those of the layout; nothing is owned.
struct MatchState {
    MatchLayout layout;
    const std::uint32_t* source = nullptr; ///< the picture before the first step
    /// How many pixels around (square) are all source pixels: 0 = not a source pixel, 1 = alone, up to 255. Readable
    /// for three bytes after the end.
    const std::uint8_t* clear = nullptr;
    const TargetPixel* target = nullptr; ///< the picture now
    const KnownPixels* known = nullptr;
    const DrawnSources* drawn = nullptr;
    std::array<std::int32_t, DrawnSources::kAround>
        aroundDelta{}; ///< offsets 1 to 12 of NearOffset as dy * stride + dx
    /// The channels in which source pixels differ at all; most pictures have one alpha.
    std::array<std::uint8_t, 4> channels{};
    int channelCount = 0;
};

struct BestMatch {
    std::int32_t error = kWorstError;
    std::int32_t source = -1;
};

/// Finds the best match for pixel (x, y): first among the candidates that continue what its neighbours were filled
/// from, nearest neighbour first and none twice, then among kRandomTries of the drawn sources from @p start on. The
/// first of equals wins, and a perfect match ends the search. All ways of doing this give the same answer: errors are
/// whole numbers, so the order of adding is free.
using MatchStep = BestMatch (*)(const MatchState& state, int x, int y, int start);

BestMatch matchPortable(const MatchState& state, int x, int y, int start);
/// The same with the neighbourhood given.
BestMatch matchPortable(const MatchState& state, const Neighbourhood& near, int start);
/// The fastest way this processor knows.
MatchStep bestMatchStep();

/// robustDistance of 0 to 255; differences of bytes reach no further, and it is symmetric.
const std::int32_t* robustDistanceTable();

} // namespace zp
