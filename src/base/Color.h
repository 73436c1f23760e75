// SPDX-License-Identifier: GPL-3.0-or-later
/// A colour of the device's red, green and blue, not premultiplied.
#pragma once
#include <cmath>
#include <cstdint>

namespace zp
{

/// Components from 0 to 1; colour is not multiplied by alpha.
struct Color {
    float red = 0, green = 0, blue = 0, alpha = 1;
    friend bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color kBlack{0, 0, 0, 1};
inline constexpr Color kWhite{1, 1, 1, 1};
/// The grey that shows through transparent pixels on screen.
inline constexpr Color kGray{0.5f, 0.5f, 0.5f, 1};
inline constexpr Color kClear{0, 0, 0, 0};

/// A component as a byte: times 255, rounded half away from zero, clamped.
inline std::uint8_t colorByte(float component)
{
    const float v = std::round(component * 255.0f);
    return v <= 0 ? std::uint8_t(0) : v >= 255 ? std::uint8_t(255) : std::uint8_t(v);
}

} // namespace zp
