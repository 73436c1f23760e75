// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture as it is on screen, kept while it stays the same: many of its pixels are read for one of the screen.
#pragma once
#include "base/Geometry.h"
#include "drawing/AntsPainter.h"
#include <cstddef>
#include <cstdint>
#include <vector>

namespace zp
{

class Picture;

class StillPicture
{
public:
    /// Where and how the picture is shown.
    struct Scene {
        PixelBox visible;          ///< the device pixels of the canvas that can be seen
        double scale = 1;          ///< device pixels an image pixel
        std::uint32_t outside = 0; ///< the word beside the picture
        bool operator==(const Scene&) const = default;
    };

    /// Fills the target with the words that renderToScreen() gives. What is kept is forgotten when the scene or the
    /// picture's pixels become others. A part outside of what can be seen, or without memory, is rendered as it is
    /// asked for. Nobody may be writing the picture. Main thread. Cost: a copy of the words that were asked for before,
    /// the rendering of whole tiles of those that were not.
    void draw(const ScreenTarget& target, const Picture& picture, const Scene& scene);
    /// Renders some of what is missing of the scene. Nobody may be writing the picture. Main thread. Cost: 64 rows of
    /// the screen. @return false when nothing is missing any more, or there is no memory for it
    bool prepare(const Picture& picture, const Scene& scene);
    /// Releases the memory: as many words as can be seen. Cheap when there are none.
    void forget();

private:
    /// Side of a tile, in device pixels.
    static constexpr int kTile = 64;

    bool begin(const Picture& picture, const Scene& scene);
    /// Renders the tiles of a row of tiles, [left, right), of which some are missing.
    void fill(const Picture& picture, int row, int left, int right);

    Scene mScene;
    const void* mPixels = nullptr;
    std::uint64_t mWrites = 0;
    int mAcross = 0; ///< tiles
    std::vector<bool> mThere;
    std::vector<std::uint32_t> mWords;
};

} // namespace zp
