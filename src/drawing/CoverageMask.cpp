// SPDX-License-Identifier: GPL-3.0-or-later
/// Paths into 8-bit masks.
#include "base/CpuHints.h"
#include "base/Simd.h"
#include "drawing/BitmapContext.h"
#include "drawing/CoverageStroke.h"
#include <cstring>

namespace zp
{

namespace
{
/// Stretches of an edge are mostly shorter than this: not worth the vector loop's beginning and end.
constexpr int kShort = 12;

inline std::uint8_t moved(std::uint8_t byte, std::uint8_t cover, std::uint8_t value)
{
    // In 16 bits throughout: the sum is at most 255 * 255 + 128, and its own high byte still fits on top.
    const auto sum = std::uint16_t(value * cover + byte * (255 - cover) + 128);
    return std::uint8_t(std::uint16_t(sum + (sum >> 8)) >> 8);
}

ZP_MULTIVERSION void moveManyTowards(std::uint8_t* bytes, const std::uint8_t* cover, int count, std::uint8_t value)
{
    for (int i = 0; i < count; ++i) bytes[i] = moved(bytes[i], cover[i], value);
}

void moveTowards(std::uint8_t* bytes, const std::uint8_t* cover, int count, std::uint8_t value)
{
    if (count >= kShort) return moveManyTowards(bytes, cover, count, value);
    for (int i = 0; i < count; ++i) bytes[i] = moved(bytes[i], cover[i], value);
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
