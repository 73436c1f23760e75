// SPDX-License-Identifier: GPL-3.0-or-later
/// An offscreen world over memory that someone else owns: drawing through it and through the owner is the same.
#pragma once
#include "base/BitmapRep.h"

namespace zp
{

struct GWorld {
    /// 16-bit bounds, as offscreen worlds have them.
    struct Bounds {
        std::int16_t left = 0, top = 0, right = 0, bottom = 0;
    };
    BitmapView pixels;
    Bounds bounds;
    /// A world over the representation's bytes, which must outlive it. Never a copy.
    static GWorld over(BitmapRep& rep)
    {
        return {rep.view(), {0, 0, std::int16_t(rep.pixelsWide()), std::int16_t(rep.pixelsHigh())}};
    }
};

/// Copies the source's whole rectangle onto the destination's whole rectangle, nearest pixel when sizes differ.
void copyBits(const GWorld& source, GWorld& destination);

} // namespace zp
