// SPDX-License-Identifier: GPL-3.0-or-later
/// Making brush tips, and stamping them.
#include "tools/BrushTip.h"
#include "base/FixedPoint.h"
#include "drawing/BitmapContext.h"
#include "tools/BrushRows.h"
#include <cmath>
#include <cstring>

namespace zp
{

namespace
{

/// Far beyond any brush of the interface, far below where a side squared would not fit a signed word.
constexpr int kLargestSide = 16384;

void drawRoundShape(BitmapView tip)
{
    const float centre = float(tip.width) * 0.5f;
    for (int y = 0; y < tip.height; ++y)
        for (int x = 0; x < tip.width; ++x) {
            const float distance = std::hypot(float(x) + 0.5f - centre, float(y) + 0.5f - centre);
            const float inside = std::min(1.0f, std::max(0.0f, centre - distance + 0.5f));
            *tip.pixel(x, y) = std::uint8_t(std::lround(inside * 255));
        }
}

} // namespace

BrushTip::BrushTip(ConstBitmapView shape, float size, Color color)
{
    if (!(size >= 0.5f)) return;
    mSide = int(std::lround(std::min(size, float(kLargestSide))));
    mPixels.resize(std::size_t(mSide) * std::size_t(mSide) * 4);
    const BitmapView tip{mPixels.data(), mSide, mSide, std::ptrdiff_t{4} * mSide};
    if (shape.isEmpty()) {
        drawRoundShape(tip);
    } else {
        BitmapContext context(tip);
        context.drawImage(shape, tip.box().rect(), shape.box().rect(), CompositingOperation::Copy);
    }
    const std::uint32_t red = colorByte(color.red), green = colorByte(color.green), blue = colorByte(color.blue);
    for (std::size_t i = 0; i < mPixels.size(); i += 4) {
        const std::uint32_t alpha = mPixels[i];
        mPixels[i + 1] = std::uint8_t(divide255(red * alpha));
        mPixels[i + 2] = std::uint8_t(divide255(green * alpha));
        mPixels[i + 3] = std::uint8_t(divide255(blue * alpha));
    }
}

BrushStamp::BrushStamp(const BrushTip& tip, float fraction)
    : mSide(tip.side()), mStride((std::size_t(tip.side()) * 4 + 63) / 64 * 64)
{
    const std::size_t bytes = mStride * std::size_t(mSide);
    mSource = allocatePixels(std::max<std::size_t>(bytes, 1));
    mKeep = allocatePixels(std::max<std::size_t>(bytes, 1));
    if (!mSource || !mKeep) {
        mSide = 0;
        return;
    }
    const auto opacity = std::uint32_t(std::lround(std::min(1.0f, std::max(0.0f, fraction)) * 65536));
    const ConstBitmapView from = tip.pixels();
    mSpans.resize(std::size_t(mSide));
    for (int y = 0; y < mSide; ++y) {
        std::uint8_t* source = mSource.get() + mStride * std::size_t(y);
        std::uint8_t* keep = mKeep.get() + mStride * std::size_t(y);
        Span span{mSide, 0};
        for (int x = 0; x < mSide; ++x) {
            // One rounding rule for alpha and colour, so that colour <= alpha survives.
            for (int c = 0; c < 4; ++c) source[4 * x + c] = std::uint8_t((from.pixel(x, y)[c] * opacity + 32768) >> 16);
            std::memset(keep + std::ptrdiff_t{4} * x, 255 - source[4 * x], 4);
            if (source[4 * x]) span = {std::min(span.first, x), x + 1};
        }
        mSpans[std::size_t(y)] = span;
    }
}

void BrushStamp::drawAt(BitmapView pixels, int x, int y) const
{
    const int top = std::max(0, -y), bottom = int(std::min(std::int64_t{mSide}, std::int64_t{pixels.height} - y));
    for (int row = top; row < bottom; ++row) {
        const Span span = mSpans[std::size_t(row)];
        const int first = std::max(span.first, -x);
        const int last = int(std::min(std::int64_t{span.last}, std::int64_t{pixels.width} - x));
        if (last <= first) continue;
        const auto part = [&](const PixelMemory& plane) {
            return reinterpret_cast<const std::uint32_t*>(plane.get() + mStride * std::size_t(row)) + first;
        };
        stampRow(pixels.row(y + row) + (x + first), part(mSource), part(mKeep), last - first);
    }
}

void eraseThroughMask(BitmapView pixels, ConstMaskView mask)
{
    for (int y = 0; y < pixels.height; ++y) eraseRow(pixels.row(y), mask.row(y), pixels.width);
}

} // namespace zp
