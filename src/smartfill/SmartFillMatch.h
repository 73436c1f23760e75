// SPDX-License-Identifier: GPL-3.0-or-later
/// Comparing the surroundings of a pixel to fill with those of source pixels: the inner loop of smart fill.
#pragma once
#include <cstdint>
#include <cstdlib>

namespace zp
{

/// How the work rectangle's pixels lie in memory: a border of @p border unused pixels stands around them, so that a
/// neighbour within its reach is one addition away and needs no test of the edges. Positions are indices into it.
struct MatchLayout {
    int width = 0, height = 0, border = 0, stride = 0;

    MatchLayout() = default;
    MatchLayout(int w, int h);
    std::size_t size() const { return std::size_t(stride) * std::size_t(height + 2 * border); }
    std::int32_t index(int x, int y) const { return (y + border) * stride + x + border; }
    int x(std::int32_t index) const { return index % stride - border; }
    int y(std::int32_t index) const { return index / stride - border; }
};

inline constexpr int kNeighbours = 30;
inline constexpr std::int32_t kWorstError = 0x40000000;
/// What a neighbour costs that has no counterpart: it lies outside or in the hole. More than any difference.
inline constexpr std::int32_t kMissingPenalty = 4 * 65536;

/// The known pixels nearest to the one to fill, nearest first; entry 0 is that pixel itself, whose colour counts for
/// nothing. Arrays have room for two whole vectors; entries from @p count on are undefined.
struct Neighbourhood {
    int count = 0;
    int reach = 0;    ///< no |dx| or |dy| is larger
    bool far = false; ///< reach goes beyond the layout's border: dx and dy are set, and delta alone must not be used
    alignas(64) std::int32_t delta[32];  ///< dy * stride + dx
    alignas(64) std::uint32_t value[32]; ///< the neighbour's pixel now
    std::int32_t index[32];              ///< where the neighbour itself lies (on the torus)
    std::int32_t dx[32], dy[32];         ///< only when far
};

struct MatchSource {
    MatchLayout layout;
    const std::uint32_t* pixels = nullptr;
    /// How many pixels around (square) are all source pixels: 0 = not a source pixel, 1 = alone, up to 255. Readable
    /// for three bytes after the end.
    const std::uint8_t* clear = nullptr;
    const std::int32_t* list = nullptr; ///< all source pixels, row by row
    std::uint32_t listLength = 0;
};

struct BestMatch {
    std::int32_t error = kWorstError;
    std::int32_t source = -1;
};

/// One way of searching. A candidate with an error below best's takes its place; candidates come in order, and the
/// search ends early on error 0. All ways give the same answer: errors are whole numbers, so the order of adding is
/// free.
struct MatchSearch {
    /// Compares @p candidates, indices of source pixels.
    void (*among)(const MatchSource&, const Neighbourhood&, const std::int32_t* candidates, int count, BestMatch& best);
    /// Compares @p tries source pixels chosen by the numbers of the random stream with @p key.
    void (*atRandom)(const MatchSource&, const Neighbourhood&, std::uint32_t key, int tries, BestMatch& best);
};

void searchPortable(const MatchSource& source, const Neighbourhood& near, const std::int32_t* candidates, int count,
                    BestMatch& best);
void searchRandomPortable(const MatchSource& source, const Neighbourhood& near, std::uint32_t key, int tries,
                          BestMatch& best);
inline constexpr MatchSearch kPortableSearch{searchPortable, searchRandomPortable};
/// The fastest way this processor knows.
MatchSearch bestMatchSearch();

/// robustDistance of 0 to 255; differences of bytes reach no further, and it is symmetric.
const std::int32_t* robustDistanceTable();

} // namespace zp
