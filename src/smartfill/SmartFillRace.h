// SPDX-License-Identifier: GPL-3.0-or-later
/// Candidates raced against an error to be beaten, with a coarse distance that is never more than the exact one: nearly
/// all fall out after a few neighbours, and only the rest need comparing.
#pragma once
#include "smartfill/SmartFillMatch.h"

namespace zp
{

/// The coarse distance of byte differences, four at a time (larger ones than 127 count as 127): bytes in units fine
/// enough for the error to be beaten.
struct CoarseDistance {
    alignas(16) std::uint8_t of[32];
    int limit; ///< a coarse error from here on is not below the error to be beaten; 1 to 255

    /// @param error  the one to be beaten, above 0 and below kWorstError
    explicit CoarseDistance(std::int32_t error);
};

/// Neighbours whose counterparts come as streams: for each its bytes and the streams they are compared with, one for
/// each of so many channels.
struct NeighbourStreams {
    int count = 0, channels = 0;
    const std::uint8_t* bytes[DrawnSources::kAround][4]; ///< of kRandomTries tries; whole vectors more may be read
    std::uint8_t value[DrawnSources::kAround][4];
};

/// Candidates still in the race, and what their neighbours so far add up to.
struct Contenders {
    static constexpr int kRoom = kRandomTries + 64; ///< whole vectors are written
    int count = 0;
    alignas(64) std::int32_t place[kRoom], error[kRoom];
};

/// So few candidates are better compared than raced on.
inline constexpr int kFewContenders = 2;

/// All tries, by as many of the neighbours as it takes to drop most. @param place  of each try @return how many
/// neighbours that were
int raceStreams(const NeighbourStreams& streams, const CoarseDistance& distance, const std::int32_t* place,
                Contenders& contenders);
/// Neighbours first to end - 1, whose counterparts lie in the source at each place plus their delta.
struct RacedNeighbours {
    const std::uint32_t* source;
    const std::int32_t* delta;
    const std::uint32_t* value;
    int first, end;
};
/// All contenders by one pair of neighbours after the other, until few are left.
void raceOn(const RacedNeighbours& neighbours, const CoarseDistance& distance, Contenders& contenders);

} // namespace zp
