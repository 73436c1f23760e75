// SPDX-License-Identifier: GPL-3.0-or-later
/// The placement of the floating selection as a plain record.
#pragma once
#include "base/Geometry.h"
#include <array>

/// Where the floating image is: drawn centred on position, scaled and turned about its centre.
struct _ZPTransform {
    zp::Point position;                ///< centre, image coordinates, y downwards
    float scale = 1;                   ///< both axes
    float rotate = 0;                  ///< degrees
    bool flipH = false, flipV = false; ///< kept in the record; nothing sets or reads them
    zp::Point oldPos;                  ///< near corner of the selection's box when it was floated
    zp::Size oldSize;                  ///< size of that box
    /// How far each corner of that box was pulled from its place, in the piece's own pixels, before it is scaled and
    /// turned: upper left, upper right, lower right, lower left. All zero: it is the rectangle it was.
    std::array<zp::Point, 4> corners{};
};
