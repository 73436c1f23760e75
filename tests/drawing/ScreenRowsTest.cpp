// SPDX-License-Identifier: GPL-3.0-or-later
/// Pixels on the screen, on every vector target, against the sum for each colour.
#include "drawing/ScreenRows.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(ScreenRows, ShowThePictureOverGrey)
{
    test::onEveryTarget([] {
        std::mt19937 random(61);
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                auto pixels = test::extremePixels(random, std::size_t(count + start));
                for (std::size_t i = 0; i < pixels.size() && i < 256; ++i)
                    if (start == 3) pixels[i] = std::uint32_t(i); // every alpha, black
                std::vector<std::uint32_t> out(std::size_t(count) + 1, 0x5A5A5A5A);
                convertToScreen(pixels.data() + start, out.data(), count);
                ASSERT_EQ(out.back(), 0x5A5A5A5Au);
                for (int i = 0; i < count; ++i) {
                    const std::uint32_t p = pixels[std::size_t(start + i)];
                    const std::uint32_t gray = (2 * (255 - (p & 255)) * 128 + 255) / 510;
                    const std::uint32_t expected = 0xFF000000u | ((p >> 8 & 255) + gray) << 16 |
                                                   ((p >> 16 & 255) + gray) << 8 | ((p >> 24) + gray);
                    ASSERT_EQ(out[std::size_t(i)], expected) << i << " of " << count;
                }
            }
    });
}

} // namespace
