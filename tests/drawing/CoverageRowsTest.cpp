// SPDX-License-Identifier: GPL-3.0-or-later
/// Coverage a stretch at a time, on every vector target, against the definition for each pixel.
#include "drawing/CoverageRows.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <climits>
#include <cmath>
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(CoverageRows, AreasBecomeSharesByBothRules)
{
    EXPECT_EQ(coverNonZero(0), 0);
    EXPECT_EQ(coverNonZero(kWholeArea), 255);
    EXPECT_EQ(coverNonZero(-3 * kWholeArea), 255);
    EXPECT_EQ(coverNonZero(kWholeArea / 2), 128); // a half is rounded up
    EXPECT_EQ(coverEvenOdd(2 * kWholeArea), 0);
    EXPECT_EQ(coverEvenOdd(-3 * kWholeArea), 255);
    EXPECT_EQ(coverEvenOdd(kWholeArea + kWholeArea / 4), 191);
    test::onEveryTarget([] {
        std::mt19937 random(71);
        for (int round = 0; round < 500; ++round) {
            std::int32_t areas[kCoverBlock];
            for (std::int32_t& area : areas) {
                area = std::int32_t(random());
                if (random() % 2) area %= 4 * kWholeArea;
                if (random() % 16 == 0) area = INT_MIN;
            }
            for (const bool evenOdd : {false, true}) {
                std::uint8_t cover[kCoverBlock];
                coverBlock(areas, cover, evenOdd);
                for (int i = 0; i < kCoverBlock; ++i) {
                    const double pixels = std::abs(double(areas[i])) / kWholeArea, rest = std::fmod(pixels, 2);
                    const double share = evenOdd ? (rest > 1 ? 2 - rest : rest) : std::min(pixels, 1.0);
                    ASSERT_EQ(cover[i], int(std::floor(share * 255 + 0.5))) << areas[i] << (evenOdd ? ", folded" : "");
                }
            }
        }
    });
}

TEST(CoverageRows, MaskBytesMoveTowardsTheirValue)
{
    test::onEveryTarget([] {
        std::mt19937 random(72);
        for (const int value : {0, 255, 100})
            for (const int count : test::kKernelLengths) {
                auto bytes = test::extremeBytes(random, std::size_t(count) + 1);
                const auto cover = test::extremeBytes(random, std::size_t(count)), before = bytes;
                moveTowards(bytes.data(), cover.data(), count, std::uint8_t(value));
                for (std::size_t i = 0; i < cover.size(); ++i) {
                    const int sum = value * cover[i] + before[i] * (255 - cover[i]);
                    ASSERT_EQ(bytes[i], (2 * sum + 255) / 510) << i << " of " << count;
                }
                ASSERT_EQ(bytes.back(), before.back());
            }
    });
}

} // namespace
