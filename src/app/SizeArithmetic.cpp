// SPDX-License-Identifier: GPL-3.0-or-later
/// The sums of the size dialogs.
#include "app/SizeArithmetic.h"
#include "base/Translation.h"
#include <cmath>
#include <limits>

namespace zp
{

namespace
{

/// Rounded half away from zero; what no pixel count can be (the image has no size to relate to) becomes 0.
int wholePixels(float value)
{
    const float rounded = std::round(value);
    return std::isfinite(rounded) && std::abs(rounded) < 2e9f ? int(rounded) : 0;
}

} // namespace

std::string fileSizeEstimate(int width, int height)
{
    const double kilobytes = double(width) * double(height) * 4.0 * 0.0009765625;
    if (kilobytes > 2000.0)
        return filledIn(translated("Files", "%1 MB"), {std::to_string(std::lround(kilobytes * 0.0009765625))});
    return filledIn(translated("Files", "%1 KB"), {std::to_string(std::lround(kilobytes))});
}

ResizeFields linkedResizeFields(ResizeFields f, int tag, float w, float h, bool keepAspect)
{
    const auto widthFollowsHeight = [&](float width) {
        f.width = wholePixels(width);
        f.widthPercent = float(f.width) / w * 100;
    };
    const auto heightFollowsWidth = [&](float height) {
        f.height = wholePixels(height);
        f.heightPercent = float(f.height) / h * 100;
    };
    switch (ResizeTag(tag)) {
    case ResizeTag::Width:
        f.widthPercent = float(f.width) / w * 100;
        if (keepAspect) heightFollowsWidth(float(f.width) * (h / w));
        break;
    case ResizeTag::Height:
        f.heightPercent = float(f.height) / h * 100;
        if (keepAspect) widthFollowsHeight(float(f.height) * (w / h));
        break;
    case ResizeTag::WidthPercent:
        f.width = wholePixels(w * (f.widthPercent / 100));
        if (keepAspect) heightFollowsWidth(h / w * float(f.width));
        break;
    case ResizeTag::HeightPercent:
        f.height = wholePixels(h * (f.heightPercent / 100));
        if (keepAspect) widthFollowsHeight(w / h * float(f.height));
        break;
    }
    return f;
}

} // namespace zp
