// SPDX-License-Identifier: GPL-3.0-or-later
/// The adjust dialog's numbers as filter settings.
#include "imageops/Adjustment.h"

namespace zp
{

FilterSettings filterSettings(const _ZPFilters& filters)
{
    FilterSettings settings;
    settings.hueAngle = float(filters.hue) / 100.0f;
    settings.saturation = float(filters.saturation) / 100.0f;
    settings.brightness = float(filters.brightness) / 100.0f;
    settings.contrast = float(filters.contrast) / 100.0f;
    if (filters.sharpness > 0) settings.unsharpIntensity = float(filters.sharpness) / 100.0f;
    if (filters.sharpness < 0) settings.blurRadius = float(filters.sharpness) / -20.0f;
    return settings;
}

} // namespace zp
