// SPDX-License-Identifier: GPL-3.0-or-later
/// Which pixels of the work rectangle have a colour, and which thirty of them lie nearest to a given one.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

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

/// The known pixels nearest to the one to fill, nearest first; entry 0 is that pixel itself, whose colour counts for
/// nothing. Arrays have room for two whole vectors; entries from @p count on are undefined.
struct Neighbourhood {
    int count = 0;
    int reach = 0;    ///< no |dx| or |dy| is larger
    bool far = false; ///< reach goes beyond the layout's border: dx and dy are set, and delta alone must not be used
    alignas(64) std::int32_t delta[32]; ///< dy * stride + dx
    alignas(64) std::int32_t index[32]; ///< where the neighbour itself lies (on the torus)
    std::int32_t dx[32], dy[32];        ///< only when far
};

/// Offsets nearest first: by dx * dx + dy * dy, then dy, then dx. Number 0 is the pixel itself, 1 to 8 are the eight
/// around it.
struct NearOffset {
    int dx, dy;
    int length() const { return dx * dx + dy * dy; }
};
/// All offsets no longer than @p reach, in that order.
std::vector<NearOffset> nearOffsets(int reach);

/// The picture is a torus here: a pixel's neighbourhood goes on at the opposite edge, so one pixel may be several
/// neighbours. Nearest means in the order of NearOffset, over offsets within -(size - 1) to size - 1.
///
/// Close by, a short table of offsets in that order is walked over bytes. Where known pixels are rare, a walk would
/// visit the whole plane for every pixel of a large hole: there, rows of bits are cut to the smallest disc with enough
/// of them, and where even that is too little, tiles of 16 x 16 bits with counts are searched ring by ring until
/// nothing nearer can be left.
class KnownPixels
{
public:
    explicit KnownPixels(const MatchLayout& layout);

    void set(int x, int y);
    /// Sets the pixels of row @p y whose byte of @p mask is 0, none of which is set yet. Time: O(width), far below that
    /// of as many single ones.
    void setRow(int y, const std::uint8_t* mask);
    /// Collects up to 30 nearest known pixels of (x, y), itself included when known, in the order above; fills all of
    /// @p out. Time: O(1 / density of known pixels).
    void collect(int x, int y, Neighbourhood& out) const;
    /// The same without the walk: for where known pixels are known to be rare, or an edge is near.
    void search(int x, int y, Neighbourhood& out) const;

    /// How far a Window reaches from its middle.
    static constexpr int kWindowReach = 12;
    /// The surroundings of a pixel as bits, for steps that look at all of them at once: bit c & 7 of byte
    /// strips[(c >> 3) * pitch + r] is the pixel r - 12 rows below and c - phase - 12 columns right of the middle; rows
    /// to 31 and columns to 31 can be read. What lies outside the work rectangle is not known: the torus is the
    /// caller's to see to.
    struct Window {
        const std::uint8_t* strips;
        std::ptrdiff_t pitch;
        int phase; ///< 0 to 7
    };
    Window window(int x, int y) const
    {
        const int column = x + kStripMargin - kWindowReach;
        return {mStrips.data() + (column >> 3) * mStripPitch + y, mStripPitch, column & 7};
    }

    /// How far a disc reaches from its middle: 57 columns are what a word holds wherever in a byte it begins.
    static constexpr int kDiscReach = 28;
    using DiscRows = std::array<std::uint64_t, 2 * kDiscReach + 1>;
    /// Which pixels of the rows around a middle lie within @p radius; row dy is number dy + kDiscReach.
    static const DiscRows& disc(int radius);
    /// The radius of the least disc that holds thirty of the bits, no larger than @p most; 0: there is none.
    /// @param rows  as row() gives them; only those at kDiscReach - most to kDiscReach + most are looked at
    static int leastDisc(const DiscRows& rows, int most);
    /// The 57 pixels of row @p y around column @p x as bits, the leftmost first. Row and columns must lie inside, but
    /// what is read there may reach over.
    std::uint64_t row(int x, int y) const
    {
        const int column = x + kRowMargin - kDiscReach;
        std::uint64_t word;
        std::memcpy(&word, mRowBits.data() + y * mRowPitch + column / 8, 8);
        return word >> (column & 7);
    }

private:
    static constexpr int kWalkReach = 10; ///< beyond, at a density below a tenth, the rows of bits are faster
    static constexpr int kTile = 16;
    static constexpr int kStripMargin = 16; ///< columns before the first; a window starts within them
    static constexpr int kRowMargin = 32;   ///< the same for a disc
    struct Ranked;

    bool walk(int x, int y, Neighbourhood& out) const;
    bool searchDisc(int x, int y, Neighbourhood& out) const;
    void searchTiles(int x, int y, Neighbourhood& out) const;
    void searchTile(int column, int row, int x, int y, Ranked& ranked) const;
    /// Where tile @p number of a row (or column) of tiles starts; numbers go on through the copies of the torus.
    static int tileStart(int number, int tiles, int size);
    static int wrapped(int number, int tiles);

    MatchLayout mLayout;
    int mColumns, mRows;
    std::vector<std::uint8_t> mBytes;   ///< 1 = known, in the padded layout
    std::vector<std::uint16_t> mCounts; ///< known pixels of each tile
    std::ptrdiff_t mStripPitch;
    std::vector<std::uint8_t> mStrips; ///< see Window: eight columns a byte, strip after strip
    std::ptrdiff_t mRowPitch;
    std::vector<std::uint8_t> mRowBits; ///< eight columns a byte, row after row
    std::vector<std::int32_t> mWalkDelta;
    std::vector<std::uint8_t> mWalkReach;          ///< how far the offset reaches, rounded up
    std::array<int, kWalkReach + 1> mWalkLength{}; ///< offsets no longer than the index
};

} // namespace zp
