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

/// One set of loops. All sets give the same results.
struct TileKernels {
    /// Fills all 64 words of @p open; rows and columns beyond the source are 0.
    TileEdges (*load)(const TileSource& source, const TileQuery& query, TileRows& open);
    /// row[x] = word for every bit x that is set.
    void (*paintRow)(std::uint32_t* row, std::uint64_t bits, std::uint32_t word);
    /// row[x] = 0 for every bit x that is set.
    void (*clearRow)(std::uint8_t* row, std::uint64_t bits);
};

enum class TileVectors { Best, Avx2, Plain };
/// The best set this machine has that is not above the one asked for.
const TileKernels& tileKernels(TileVectors atMost = TileVectors::Best);

} // namespace zp
