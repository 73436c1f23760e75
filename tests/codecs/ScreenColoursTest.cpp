// SPDX-License-Identifier: GPL-3.0-or-later
/// The conversion between two profiles: when there is none, and tables that say what the colour engine says.
#include "codecs/ScreenColours.h"
#include "codecs/ColourProfiles.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace zp
{
namespace
{

using codec::profileFromPNG;

const codec::ProfileBytes kNone;

/// Display P3's primaries, with a power for a curve.
codec::ProfileBytes wideProfile(double gamma = 1 / 2.2)
{
    return profileFromPNG({.gamma = gamma,
                           .hasPrimaries = true,
                           .white = {0.3127, 0.3290},
                           .red = {0.680, 0.320},
                           .green = {0.265, 0.690},
                           .blue = {0.150, 0.060}});
}

TEST(ScreenColours, AreNothingWhereNumbersMeanTheSame)
{
    const codec::ProfileBytes standard = codec::sRGBProfile(), wide = wideProfile(), nonsense(300, 7);
    EXPECT_FALSE(ScreenColours::between(kNone, kNone));
    EXPECT_FALSE(ScreenColours::between(standard, kNone));
    EXPECT_FALSE(ScreenColours::between(kNone, standard));
    EXPECT_FALSE(ScreenColours::between(wide, wide));
    EXPECT_FALSE(ScreenColours::between(nonsense, kNone));
    EXPECT_TRUE(ScreenColours::between(wide, kNone));
    EXPECT_TRUE(ScreenColours::between(kNone, wide));
}

TEST(ScreenColours, TablesSayWhatTheEngineSays)
{
    for (const auto& [picture, screen] :
         {std::pair{wideProfile(), kNone}, {kNone, wideProfile()}, {wideProfile(1 / 1.8), wideProfile(1 / 2.4)}}) {
        const auto colours = ScreenColours::between(picture, screen);
        ASSERT_TRUE(colours);
        const ColourTables* tables = colours->tables();
        ASSERT_TRUE(tables);
        int worst = 0;
        for (std::uint32_t i = 0; i < 4096; ++i) {
            const std::uint32_t word = 0xFF000000u | (i >> 8) * 17 << 16 | (i >> 4 & 15) * 17 << 8 | (i & 15) * 17;
            std::uint32_t wanted = word;
            colours->convertRow(&wanted, 1);
            for (std::size_t c = 0; c < 3; ++c) {
                float sum = 0;
                for (std::size_t k = 0; k < 3; ++k)
                    sum += tables->light[k][word >> (16 - 8 * k) & 255] * tables->matrix[3 * c + k];
                const auto step =
                    std::size_t(std::lrint(std::sqrt(std::clamp(sum, 0.0f, 1.0f)) * (ColourTables::kSteps - 1)));
                const int off = int(tables->byte[c][step]) - int(wanted >> (16 - 8 * c) & 255);
                worst = std::max(worst, std::abs(off));
            }
        }
        EXPECT_LE(worst, 2);
    }
}

} // namespace
} // namespace zp
