// SPDX-License-Identifier: GPL-3.0-or-later
/// The placement of the floating selection and the settings of a colour adjustment, as plain records.
#pragma once
#include "platform/Geometry.h"
#include <cstdint>

/// Where the floating image is: drawn centred on position, scaled and turned about its centre.
struct _ZPTransform {
    zp::Point position;   ///< centre, image coordinates, y downwards
    float scale = 1;      ///< both axes
    float rotate = 0;     ///< degrees
    bool flipH = false, flipV = false; ///< kept in the record; nothing sets or reads them
    zp::Point oldPos;     ///< near corner of the selection's box when it was floated
    zp::Size oldSize;     ///< size of that box
};

/// Five whole numbers as the adjust dialog shows them; the defaults are neutral.
struct _ZPFilters {
    std::int32_t hue = 0, saturation = 100, brightness = 0, contrast = 100, sharpness = 0;
};
