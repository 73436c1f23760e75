// SPDX-License-Identifier: GPL-3.0-or-later
/// The clip of a drawing context: a box, coverage where paths cut it, masks on top.
#pragma once
#include "base/BitmapView.h"
#include "base/PixelMemory.h"
#include "drawing/CoverageRaster.h"
#include <memory>
#include <vector>

namespace zp
{

/// How much of each pixel of a box lies inside all clip paths. Shared between saved states, never changed once made.
class ClipCoverage
{
public:
    /// The inside of what @p raster holds, cut by @p before when that is given.
    static std::shared_ptr<const ClipCoverage> make(CoverageRaster& raster, WindingRule rule, bool antialias,
                                                    const ClipCoverage* before);

    PixelBox box() const { return mBox; }
    const std::uint8_t* row(int y) const
    {
        return mBytes.get() + std::ptrdiff_t{mBox.width()} * (y - mBox.y0) - mBox.x0;
    }
    /// Columns of a row: outside [first, last) nothing passes, inside [solidFirst, solidLast) everything.
    struct Span {
        int first = 0, last = 0, solidFirst = 0, solidLast = 0;
    };
    const Span& span(int y) const { return mSpans[std::size_t(y - mBox.y0)]; }

private:
    PixelBox mBox;
    PixelMemory mBytes;
    std::vector<Span> mSpans;
};

/// A context's whole clip. Cheap to copy.
struct Clip {
    PixelBox box;                                 ///< inside the bitmap, and inside coverage's box
    std::shared_ptr<const ClipCoverage> coverage; ///< null: the box alone
    std::vector<ConstMaskView> masks;             ///< 0 lets through, 255 stops

    void addBox(PixelBox other);
    void addPath(CoverageRaster& raster, WindingRule rule, bool antialias);
};

/// Passes on what of a shape the clip lets through.
class ClipSink final : public CoverageSink
{
public:
    ClipSink(const Clip& clip, CoverageSink& next) : mClip(clip), mNext(next) {}
    void solid(int y, int x0, int x1) override;
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override;

private:
    void masked(int y, int x0, int x1, const std::uint8_t* cover);
    std::uint8_t* room(int count);

    const Clip& mClip;
    CoverageSink& mNext;
    std::vector<std::uint8_t> mRoom;
};

} // namespace zp
