// SPDX-License-Identifier: GPL-3.0-or-later
/// A picture cut into square tiles, numbered by rows.
#pragma once
#include "base/Geometry.h"
#include <cstdint>
#include <vector>

namespace zp
{

struct TileGrid {
    static constexpr int kSide = 128;

    int width = 0, height = 0;

    int columns() const { return (width + kSide - 1) / kSide; }
    int rows() const { return (height + kSide - 1) / kSide; }
    int count() const { return columns() * rows(); }
    PixelBox box(int tile) const
    {
        const int x = tile % columns() * kSide, y = tile / columns() * kSide;
        return {x, y, std::min(x + kSide, width), std::min(y + kSide, height)};
    }
    /// Calls f(tile) for every tile that @p pixels touches.
    template <class F>
    void forEach(PixelBox pixels, F&& f) const
    {
        pixels = pixels.intersected({0, 0, width, height});
        if (pixels.isEmpty()) return;
        for (int row = pixels.y0 / kSide; row <= (pixels.y1 - 1) / kSide; ++row)
            for (int column = pixels.x0 / kSide; column <= (pixels.x1 - 1) / kSide; ++column)
                f(row * columns() + column);
    }
    friend bool operator==(const TileGrid&, const TileGrid&) = default;
};

/// Some tiles of a picture.
class TileSet
{
public:
    TileSet() = default;
    explicit TileSet(TileGrid grid) : mGrid(grid), mIn(std::size_t(grid.count())) {}

    const TileGrid& grid() const { return mGrid; }
    bool isEmpty() const { return mCount == 0; }
    int count() const { return mCount; }
    bool contains(int tile) const { return mIn[std::size_t(tile)] != 0; }
    void add(int tile)
    {
        mCount += mIn[std::size_t(tile)] ? 0 : 1;
        mIn[std::size_t(tile)] = 1;
    }
    void add(PixelBox pixels)
    {
        mGrid.forEach(pixels, [this](int tile) { add(tile); });
    }
    void addAll() { add(PixelBox{0, 0, mGrid.width, mGrid.height}); }
    void add(const TileSet& other)
    {
        for (int tile = 0; tile < int(other.mIn.size()); ++tile)
            if (other.mIn[std::size_t(tile)]) add(tile);
    }
    /// The same tiles and all others of their rows.
    TileSet wholeRows() const
    {
        TileSet rows(mGrid);
        for (const int tile : list()) {
            const PixelBox box = mGrid.box(tile);
            if (!rows.contains(tile)) rows.add(PixelBox{0, box.y0, mGrid.width, box.y1});
        }
        return rows;
    }
    void clear()
    {
        if (mCount) mIn.assign(mIn.size(), 0);
        mCount = 0;
    }
    std::vector<int> list() const
    {
        std::vector<int> tiles;
        tiles.reserve(std::size_t(mCount));
        for (int tile = 0; tile < int(mIn.size()); ++tile)
            if (mIn[std::size_t(tile)]) tiles.push_back(tile);
        return tiles;
    }

private:
    TileGrid mGrid;
    std::vector<std::uint8_t> mIn;
    int mCount = 0;
};

} // namespace zp
