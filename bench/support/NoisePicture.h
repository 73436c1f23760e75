// SPDX-License-Identifier: GPL-3.0-or-later
/// A picture that no shortcut helps with: every pixel differs from its neighbours.
#pragma once
#include "base/BitmapRep.h"
#include <cstdint>
#include <memory>

namespace zp::bench
{

/// Opaque noise, the same each time.
inline std::shared_ptr<BitmapRep> noisePicture(int width, int height)
{
    auto rep = BitmapRep::createUninitialized(width, height);
    std::uint32_t state = 1;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            state = state * 1664525u + 1013904223u;
            rep->view().row(y)[x] = state | 255u;
        }
    return rep;
}

} // namespace zp::bench
