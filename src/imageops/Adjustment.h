// SPDX-License-Identifier: GPL-3.0-or-later
/// The adjustment of a floating selection: its settings, and the filtered pixels that are computed as they are needed.
#pragma once
#include "base/Geometry.h"
#include "drawing/Filters.h"
#include <cstdint>

/// Five whole numbers as the adjust dialog shows them; the defaults are neutral.
struct _ZPFilters {
    std::int32_t hue = 0, saturation = 100, brightness = 0, contrast = 100, sharpness = 0;
};

namespace zp
{

/// The dialog's whole numbers as the filters take them: hue in hundredths of a radian, the colour controls in per cent,
/// sharpness above zero as per cent of an unsharp mask's intensity, below zero as twentieths of a blur's radius.
FilterSettings filterSettings(const _ZPFilters& filters);

} // namespace zp
