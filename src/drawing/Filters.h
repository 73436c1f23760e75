// SPDX-License-Identifier: GPL-3.0-or-later
/// Colour and sharpness filters over premultiplied A, R, G, B pixels.
#pragma once
#include "base/BitmapView.h"

namespace zp
{

/// The settings of one chain; the neutral ones skip their filter altogether, so that all neutral is an exact copy.
struct FilterSettings {
    float hueAngle = 0;                                 ///< radians about the grey axis
    float saturation = 1, brightness = 0, contrast = 1; ///< colour controls: factor, added, factor about mid grey
    float unsharpIntensity = 0, unsharpRadius = 2.5f;   ///< unsharp mask; radius is the Gaussian's sigma in pixels
    float blurRadius = 0;                               ///< Gaussian blur, sigma in pixels
    bool isNeutral() const
    {
        return hueAngle == 0 && saturation == 1 && brightness == 0 && contrast == 1 && unsharpIntensity == 0 &&
               blurRadius == 0;
    }
    friend bool operator==(const FilterSettings&, const FilterSettings&) = default;
};

/// hue, then colour controls, then sharpness, computed on unpremultiplied colour where that matters, clamped; edges are
/// extended, so no dark rim. Writes only @p part of @p destination (same size as @p source; the views must not overlap)
/// with the pixels the whole run would have there. Both cores. Any thread.
void applyFilters(ConstBitmapView source, BitmapView destination, const FilterSettings& settings, PixelBox part);

} // namespace zp
