// SPDX-License-Identifier: GPL-3.0-or-later
/// Colour profiles made and used by LittleCMS: what describes grey, inks or a gamma becomes a profile for red, green
/// and blue. Any thread; none throws.
#pragma once
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace zp::codec
{

using ProfileBytes = std::vector<std::uint8_t>;

/// For a grey picture whose pixels became red = green = blue: the same curve for all three, so that every pixel keeps
/// its value and its look. Empty when @p grey is no profile of a grey space or describes it by a table.
ProfileBytes rgbProfileFromGrey(std::span<const std::uint8_t> grey);

/// What a PNG file may say of its colours without a profile.
struct PNGColours {
    double gamma = 0;          ///< of the file: 1 / the power; 0 when it is not said
    bool hasPrimaries = false; ///< else they are those of sRGB
    double white[2] = {}, red[2] = {}, green[2] = {}, blue[2] = {}; ///< x and y
};
/// A profile that says the same; empty when that is sRGB near enough, nothing is said, or it makes no sense.
ProfileBytes profileFromPNG(const PNGColours& colours);

/// The profile of pixels that were turned into sRGB.
ProfileBytes sRGBProfile();

/// Turns four inks of 8 bits into opaque sRGB pixels A, R, G, B, as a profile for inks says.
class InkConverter
{
public:
    /// @param inverted  0 is full ink, as Adobe's programs store it
    InkConverter(std::span<const std::uint8_t> profile, bool inverted);
    ~InkConverter();
    InkConverter(const InkConverter&) = delete;
    InkConverter& operator=(const InkConverter&) = delete;
    explicit operator bool() const { return mMatching != nullptr; } ///< the profile is one for four inks
    void convert(const std::uint8_t* inks, std::uint8_t* argb, int count) const;

private:
    void* mMatching = nullptr;
};

} // namespace zp::codec
