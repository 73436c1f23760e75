// SPDX-License-Identifier: GPL-3.0-or-later
/// When two pixels or two colours count as alike, and how a colour becomes a pixel word.
#pragma once
#include "base/Color.h"
#include <cstdint>

namespace zp
{

/// The word whose bytes lie in memory as alpha, red, green, blue: blue in the high byte on this (little-endian)
/// machine. Components times 255, rounded half away from zero, clamped to a byte; colour is not multiplied by alpha.
std::uint32_t packColor(Color color);
/// red, green, blue, alpha from the high byte down: the order the painting wand packs its target in.
std::uint32_t packColorRedFirst(Color color);
/// The same as packColor with colour multiplied by alpha (rounded), as the canvas keeps its pixels.
std::uint32_t packPremultiplied(Color color);
/// Colour of a premultiplied pixel word: divided by alpha; fully transparent is clear black.
Color unpackPremultiplied(std::uint32_t word);

/// Slider position (0 to 100) to tolerance: round(v / 100 * 255 * 0.5), half away from zero. 100 gives 128, 50
/// gives 64.
int toleranceForSlider(double value);

/// Whether each byte of @p a lies strictly between b - t and b + t of @p b's. At t = 0 nothing matches, not even a
/// word with itself; this is meant: a slider at 0 selects nothing.
constexpr bool wordsMatch(std::uint32_t a, std::uint32_t b, int t)
{
    for (int shift = 24; shift >= 0; shift -= 8) {
        const int x = int(a >> shift & 0xFF), y = int(b >> shift & 0xFF);
        if (!(x > y - t && x < y + t)) return false;
    }
    return true;
}

/// A place in a pixel's word.
enum class Channel { Red, Green, Blue, Alpha };
struct ChannelDistance {
    Channel channel = Channel::Red;
    int distance = 0;
};

/// The place in which two pixel words differ most, the first of equals. wordsMatch is true exactly when the distance is
/// less than its tolerance.
constexpr ChannelDistance farthestChannel(std::uint32_t a, std::uint32_t b)
{
    constexpr struct {
        Channel channel;
        int shift;
    } kPlaces[] = {{Channel::Red, 8}, {Channel::Green, 16}, {Channel::Blue, 24}, {Channel::Alpha, 0}};
    ChannelDistance farthest;
    for (const auto& [channel, shift] : kPlaces) {
        const int x = int(a >> shift & 0xFF), y = int(b >> shift & 0xFF), distance = x > y ? x - y : y - x;
        if (distance > farthest.distance) farthest = {channel, distance};
    }
    return farthest;
}

/// Whether red, green and blue each differ by less than t / 255 * 0.5 (single precision); alpha is not compared.
bool ColorsWithinTolerance(const Color& a, const Color& b, int t);
/// Whether red, green and blue, as bytes, are equal; alpha is not compared.
bool ColorsEqual255(const Color& a, const Color& b);

} // namespace zp
