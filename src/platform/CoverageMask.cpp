// SPDX-License-Identifier: GPL-3.0-or-later
/// Paths into 8-bit masks.
#include "platform/BitmapContext.h"
#include "platform/CoverageStroke.h"
#include "platform/Simd.h"
#include <cstring>

namespace zp
{

namespace
{
ZP_MULTIVERSION void moveTowards(std::uint8_t* bytes, const std::uint8_t* cover, int count, unsigned value)
{
    for (int i = 0; i < count; ++i) {
        const unsigned c = cover[i];
        const unsigned sum = value * c + bytes[i] * (255 - c) + 128;
        bytes[i] = std::uint8_t((sum + (sum >> 8)) >> 8);
    }
}

class MaskSink final : public CoverageSink
{
public:
    MaskSink(MaskView mask, std::uint8_t value) : mMask(mask), mValue(value) {}
    void solid(int y, int x0, int x1) override { std::memset(mMask.row(y) + x0, mValue, std::size_t(x1 - x0)); }
    void partial(int y, int x0, int x1, const std::uint8_t* cover) override
    {
        moveTowards(mMask.row(y) + x0, cover, x1 - x0, mValue);
    }

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
    raster.sweep(path.windingRule(), antialias, sink);
}

void strokePathInMask(MaskView mask, const BezierPath& path, std::uint8_t value)
{
    if (mask.isEmpty()) return;
    CoverageRaster raster(mask.box());
    addStroke(raster, path, {});
    MaskSink sink(mask, value);
    raster.sweep(WindingRule::NonZero, true, sink);
}

} // namespace zp
