// SPDX-License-Identifier: GPL-3.0-or-later
/// The mask tracer's public face: bits in, path out.
#include "selection/ZPPathBuilder.h"
#include "selection/OutlineTracer.h"

ZPPathBuilder::ZPPathBuilder(zp::ConstMaskView mask)
    : mWidth(std::uint32_t(mask.isEmpty() ? 0 : mask.width)),
      mHeight(std::uint32_t(mask.isEmpty() ? 0 : mask.height)),
      mMaskData(zp::BitRows::ofSelected(mask))
{
}

zp::BezierPath ZPPathBuilder::path() const
{
    zp::BezierPath path;
    path.setWindingRule(zp::WindingRule::EvenOdd);
    // A loop of four corners or more takes two elements and one point beyond its corners.
    zp::traceOutline(
        mMaskData, {0, 1}, [&path](std::span<const zp::Point> corners) { path.appendPolygon(corners); },
        [&path](std::size_t count) { path.reserve(count + count / 2, count + count / 4); });
    return path;
}
