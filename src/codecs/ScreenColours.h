// SPDX-License-Identifier: GPL-3.0-or-later
/// From the colours of a picture to those of the screen that shows it.
#pragma once
#include "base/ColourTables.h"
#include <cstdint>
#include <memory>
#include <span>

namespace zp
{

/// One conversion between two profiles, made once and used for every redraw. Any thread may convert.
class ScreenColours
{
public:
    /// @param picture, screen  profiles; empty: sRGB. One that makes no sense counts as sRGB
    /// @return null when the two show the same numbers alike: then nothing has to be done
    static std::shared_ptr<const ScreenColours> between(std::span<const std::uint8_t> picture,
                                                        std::span<const std::uint8_t> screen);
    ~ScreenColours();
    ScreenColours(const ScreenColours&) = delete;
    ScreenColours& operator=(const ScreenColours&) = delete;

    /// The conversion as curves and a matrix, which nearly all profiles of cameras, programs and screens are; null for
    /// one that is described by a table of colours.
    const ColourTables* tables() const { return mTables.get(); }
    /// Words 0xFFRRGGBB in place, by the colour engine itself: an order slower than a kernel over tables().
    void convertRow(std::uint32_t* words, int count) const;

private:
    ScreenColours(void* transform, std::unique_ptr<ColourTables> tables);
    void* mMatching;
    std::unique_ptr<ColourTables> mTables;
};

} // namespace zp
