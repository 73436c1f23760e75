// SPDX-License-Identifier: GPL-3.0-or-later
/// The inner loops of the tiled fill: which pixels of 64 by 64 match, and writing where bits are set.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>

namespace zp
{

inline constexpr int kTileSide = 64;
using TileRows = std::array<std::uint64_t, kTileSide>; ///< a word a row; bit x is the pixel in column x

/// What makes a pixel open.
struct TileQuery {
    std::uint32_t target = 0;
    int tolerance = 1;               ///< at least 1
    bool openWhereMaskIsZero = true; ///< else where the mask byte is not zero
};

/// A tile's place in the picture and in the mask. @p mask null: no mask.
struct TileSource {
    const std::uint8_t* pixels;
    std::ptrdiff_t rowBytes;
    const std::uint8_t* mask;
    std::ptrdiff_t maskStride;
    int width, height; ///< 1..64: less at the picture's far edges; nothing beyond is read
};

/// What was found in a tile.
struct TileEdges {
    std::uint64_t left, right; ///< bit y: the first (the 64th) pixel of row y is open
    bool allOpen;              ///< all 4096 are
};

/// Fills all 64 words of @p open; rows and columns beyond the source are 0. @param next  the tile that will be asked
/// for next, if known: its lines are called from memory meanwhile
TileEdges loadTile(const TileSource& source, const TileQuery& query, TileRows& open, const TileSource* next);

/// The lowest and the highest byte of each place in a word, over some pixels; of none: low above high.
struct ByteBounds {
    std::uint32_t low = 0xFFFFFFFF, high = 0;
};

/// Widens the bounds of the tiles side by side that a row of @p width pixels runs through: those of pixels 0 to 63 are
/// the first's.
void widenBounds(const std::uint8_t* row, int width, ByteBounds* tiles);

/// row[x] = word for every bit x that is set. @param room  elements that the row has from here on: bits lie within it,
/// and nothing beyond it is touched
void paintBits(std::uint32_t* row, std::uint64_t bits, std::uint32_t word, int room);
/// row[x] = 0, the same way.
void clearBits(std::uint8_t* row, std::uint64_t bits, int room);
/// A whole box of pixels, or of mask bytes. @p rowBytes: from row to row
void paintBox(std::uint32_t* first, std::ptrdiff_t rowBytes, int width, int height, std::uint32_t word);
void clearBox(std::uint8_t* first, std::ptrdiff_t rowBytes, int width, int height);

} // namespace zp
