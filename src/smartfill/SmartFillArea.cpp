// SPDX-License-Identifier: GPL-3.0-or-later
/// From a selection to its work rectangle, and the rectangle's pixels out of and back into the picture.
#include "smartfill/SmartFill.h"
#include <algorithm>
#include <cmath>

namespace zp
{
namespace
{

/// Cut off towards zero; what no picture reaches is brought near first, so that the conversion is defined.
int truncated(float value)
{
    if (std::isnan(value)) return 0;
    return int(std::clamp(value, -1.0e8f, 1.0e8f));
}

int evenUp(int value) { return value % 2 ? value + 1 : value; }
int evenDown(int value) { return value % 2 ? value - 1 : value; }

int sampled(int extent, bool faster) { return std::max(0, faster ? extent / 2 : extent); }

} // namespace

SmartFillArea smartFillArea(Rect selection, int width, int height, int radiusPercent, bool faster)
{
    const float r = float(radiusPercent / 100.0);
    const auto [x, y] = selection.origin;
    const auto [w, h] = selection.size;
    SmartFillArea area;
    area.faster = faster;
    area.work = {std::max(0, truncated(x - r * w)), std::max(0, truncated(y - r * h)),
                 std::min(width, truncated(x + w + r * w)), std::min(height, truncated(y + h + r * h))};
    if (faster) {
        const int sx0 = truncated(x), sy0 = truncated(y);
        const int sx1 = truncated(w) + sx0, sy1 = truncated(h) + sy0;
        area.selection = {evenUp(sx0), evenUp(sy0), evenDown(sx1), evenDown(sy1)};
        area.work = {evenUp(area.work.x0), evenUp(area.work.y0), evenDown(area.work.x1), evenDown(area.work.y1)};
    }
    if (area.work.isEmpty()) area.work = {};
    return area;
}

SmartFillPicture fetchSmartFillPicture(ConstBitmapView bitmap, ConstMaskView mask, const SmartFillArea& area,
                                       PixelPoint maskOrigin)
{
    SmartFillPicture picture;
    picture.width = sampled(area.work.width(), area.faster);
    picture.height = sampled(area.work.height(), area.faster);
    const std::size_t count = std::size_t(picture.width) * std::size_t(picture.height);
    picture.pixels.resize(count);
    picture.mask.resize(count);
    const int pitch = area.faster ? 2 : 1;
    std::size_t next = 0;
    for (int j = 0; j < picture.height; ++j) {
        const int y = area.work.y0 + pitch * j;
        const std::uint32_t* pixels = bitmap.row(y) + area.work.x0;
        for (int i = 0; i < picture.width; ++i, ++next) {
            const PixelPoint inMask{area.work.x0 + pitch * i - maskOrigin.x, y - maskOrigin.y};
            picture.pixels[next] = pixels[pitch * i];
            picture.mask[next] = mask.box().contains(inMask.x, inMask.y) ? mask.row(inMask.y)[inMask.x] : 0;
        }
    }
    return picture;
}

PixelBox writeBackSmartFill(BitmapView bitmap, const SmartFillPicture& picture, const SmartFillArea& area)
{
    const auto pixel = [&](int i, int j) {
        return picture.pixels[std::size_t(j) * std::size_t(picture.width) + std::size_t(i)];
    };
    if (!area.faster) {
        for (int j = 0; j < picture.height; ++j)
            std::copy_n(&picture.pixels[std::size_t(j) * std::size_t(picture.width)], picture.width,
                        bitmap.row(area.work.y0 + j) + area.work.x0);
        return area.work;
    }
    // A selection that hangs over the picture's edge has bounds outside the work rectangle: nothing was made for those.
    const PixelBox box = area.selection.intersected(area.work);
    for (int y = box.y0; y < box.y1; y += 2)
        for (int x = box.x0; x < box.x1; x += 2) {
            const std::uint32_t value = pixel((x - area.work.x0) / 2, (y - area.work.y0) / 2);
            for (int j = 0; j < 2; ++j) std::fill_n(bitmap.row(y + j) + x, 2, value);
        }
    return box;
}

} // namespace zp
