// SPDX-License-Identifier: GPL-3.0-or-later
/// Small pictures of known or random pixels for tests of drawing.
#pragma once
#include "base/BitmapRep.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace zp::test
{

constexpr std::uint32_t word(int a, int r, int g, int b)
{
    return std::uint32_t(a) | std::uint32_t(r) << 8 | std::uint32_t(g) << 16 | std::uint32_t(b) << 24;
}
inline int channelOf(std::uint32_t w, int channel) { return int(w >> (8 * channel) & 255); }

inline std::shared_ptr<BitmapRep> picture(int width, int height, std::uint32_t fill = 0)
{
    auto rep = BitmapRep::create(width, height);
    for (int y = 0; y < height; ++y) std::fill_n(rep->view().row(y), width, fill);
    return rep;
}

/// Whether two pictures have the same size and pixels; the first difference is named.
inline testing::AssertionResult samePixels(ConstBitmapView a, ConstBitmapView b)
{
    if (a.width != b.width || a.height != b.height) return testing::AssertionFailure() << "sizes differ";
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.width; ++x)
            if (a.row(y)[x] != b.row(y)[x])
                return testing::AssertionFailure()
                       << std::hex << a.row(y)[x] << " is not " << b.row(y)[x] << std::dec << " at " << x << ", " << y;
    return testing::AssertionSuccess();
}

/// Whether no colour lies above its alpha.
inline testing::AssertionResult isPremultiplied(ConstBitmapView v)
{
    for (int y = 0; y < v.height; ++y)
        for (int x = 0; x < v.width; ++x)
            for (int c = 1; c < 4; ++c)
                if (channelOf(v.row(y)[x], c) > channelOf(v.row(y)[x], 0))
                    return testing::AssertionFailure() << "colour above alpha at " << x << ", " << y;
    return testing::AssertionSuccess();
}

/// Valid premultiplied pixels, a third of them opaque, some empty.
inline std::shared_ptr<BitmapRep> noise(int width, int height, unsigned seed, bool opaque = false)
{
    auto rep = BitmapRep::create(width, height);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const unsigned kind = random() % 3;
            const unsigned a = opaque || kind == 0 ? 255
                               : kind == 1         ? random() % 256
                                                   : (random() % 2) * (random() % 256);
            rep->view().row(y)[x] =
                word(int(a), int(random() % (a + 1)), int(random() % (a + 1)), int(random() % (a + 1)));
        }
    return rep;
}

} // namespace zp::test
