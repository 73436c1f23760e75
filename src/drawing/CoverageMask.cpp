// SPDX-License-Identifier: GPL-3.0-or-later
/// Paths into 8-bit masks.
#include "base/CpuHints.h"
#include "drawing/BitmapContext.h"
#include "drawing/CoverageRows.h"
#include "drawing/CoverageStroke.h"
#include <cstring>

namespace zp
{

namespace
{
class MaskSink final : public CoverageSink
{
public:
    MaskSink(MaskView mask, std::uint8_t value) : mMask(mask), mValue(value) {}
    void solid(int y, int x0, int x1) override { std::memset(mMask.row(y) + x0, mValue, std::size_t(x1 - x0)); }
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override
    {
        moveTowards(mMask.row(y) + x0, cover, x1 - x0, mValue);
    }

    void expect(int y, int x) override { prefetchForWriting(mMask.row(y) + x); }

private:
    MaskView mMask;
    std::uint8_t mValue;
};
} // namespace

void fillPathInMask(MaskView mask, const BezierPath& path, std::uint8_t value, bool antialias)
{
    if (mask.isEmpty()) return;
    CoverageRaster raster(mask.box());
    raster.addPath(path, {});
    MaskSink sink(mask, value);
    raster.sweepInBands(path.windingRule(), antialias, sink);
}

void strokePathInMask(MaskView mask, const BezierPath& path, std::uint8_t value)
{
    if (mask.isEmpty()) return;
    CoverageRaster raster(mask.box());
    addStroke(raster, path, {});
    MaskSink sink(mask, value);
    raster.sweepInBands(WindingRule::NonZero, true, sink);
}

} // namespace zp
