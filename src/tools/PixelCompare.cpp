// SPDX-License-Identifier: GPL-3.0-or-later
/// Packing of colours and the two tests for alikeness.
#include "tools/PixelCompare.h"
#include "base/FixedPoint.h"
#include <bit>
#include <cmath>

namespace zp
{

static_assert(std::endian::native == std::endian::little, "pixel words are packed for a little-endian machine");

namespace
{

std::uint32_t word(std::uint8_t highest, std::uint8_t second, std::uint8_t third, std::uint8_t lowest)
{
    return std::uint32_t{highest} << 24 | std::uint32_t{second} << 16 | std::uint32_t{third} << 8 | lowest;
}

std::uint8_t timesAlpha(std::uint8_t color, std::uint8_t alpha)
{
    return std::uint8_t(divide255(std::uint32_t{color} * alpha));
}

} // namespace

std::uint32_t packColor(Color c)
{
    return word(colorByte(c.blue), colorByte(c.green), colorByte(c.red), colorByte(c.alpha));
}

std::uint32_t packColorRedFirst(Color c)
{
    return word(colorByte(c.red), colorByte(c.green), colorByte(c.blue), colorByte(c.alpha));
}

std::uint32_t packPremultiplied(Color c)
{
    const std::uint8_t alpha = colorByte(c.alpha);
    return word(timesAlpha(colorByte(c.blue), alpha), timesAlpha(colorByte(c.green), alpha),
                timesAlpha(colorByte(c.red), alpha), alpha);
}

Color unpackPremultiplied(std::uint32_t pixel)
{
    const std::uint32_t alpha = pixel & 0xFF;
    if (alpha == 0) return kClear;
    // Through whole bytes, so that a colour picked from a pixel and painted again gives the same pixel.
    const auto component = [&](int shift) {
        const std::uint32_t value = pixel >> shift & 0xFF;
        const std::uint32_t plain = (value * 255 + alpha / 2) / alpha;
        return value >= alpha ? 1.0f : float(plain) / 255.0f;
    };
    return {component(8), component(16), component(24), float(alpha) / 255.0f};
}

int toleranceForSlider(double value) { return int(std::round(value / 100 * 255 * 0.5)); }

bool ColorsWithinTolerance(const Color& a, const Color& b, int t)
{
    const float d = float(t) / 255.0f * 0.5f;
    const auto near = [d](float x, float y) { return x > y - d && y + d > x; };
    return near(a.red, b.red) && near(a.green, b.green) && near(a.blue, b.blue);
}

bool ColorsEqual255(const Color& a, const Color& b)
{
    const auto same = [](float x, float y) { return colorByte(x) == colorByte(y); };
    return same(a.red, b.red) && same(a.green, b.green) && same(a.blue, b.blue);
}

} // namespace zp
