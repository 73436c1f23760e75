// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection's row loops and the finding of corners, on every vector target, against a loop over single pixels.
#include "selection/SelectionRows.h"
#include "selection/OutlineCorners.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(SelectionRows, BytesBelow255ArePackedAsBits)
{
    test::onEveryTarget([] {
        std::mt19937 random(12);
        for (const int width : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                const auto bytes = test::extremeBytes(random, std::size_t(width + start));
                std::vector<std::uint64_t> words(std::size_t(width) / 64 + 2, 77);
                packSelectedBits(bytes.data() + start, width, words.data());
                std::vector<std::uint64_t> expected(words.size(), 0);
                expected.back() = 77;
                for (int x = 0; x < width; ++x)
                    expected[std::size_t(x) / 64] |= std::uint64_t(bytes[std::size_t(start + x)] != 255) << x % 64;
                ASSERT_EQ(words, expected) << width;
            }
    });
}

TEST(SelectionRows, BytesAreInvertedAndNothingBeside)
{
    test::onEveryTarget([] {
        std::mt19937 random(13);
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                auto bytes = test::extremeBytes(random, std::size_t(count + start + 1));
                auto expected = bytes;
                for (int i = start; i < start + count; ++i)
                    expected[std::size_t(i)] = std::uint8_t(255 - expected[std::size_t(i)]);
                invertRow(bytes.data() + start, count);
                ASSERT_EQ(bytes, expected) << count;
            }
    });
}

TEST(SelectionRows, TranslucentOrBlackPixelsAreTakenOut)
{
    test::onEveryTarget([] {
        std::mt19937 random(14);
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                auto pixels = test::extremePixels(random, std::size_t(count + start + 1));
                for (std::uint32_t& p : pixels)
                    if (random() % 4 == 0) p = 0x000000FF;
                auto opaque = pixels, coloured = pixels;
                clearTranslucentRow(opaque.data() + start, count);
                clearBlackRow(coloured.data() + start, count);
                for (int i = 0; i < count + start + 1; ++i) {
                    const std::uint32_t p = pixels[std::size_t(i)];
                    const bool inside = i >= start && i < start + count;
                    ASSERT_EQ(opaque[std::size_t(i)], inside && (p & 255) != 255 ? 0 : p) << i << " of " << count;
                    ASSERT_EQ(coloured[std::size_t(i)], inside && p == 0x000000FF ? 0 : p) << i << " of " << count;
                }
            }
    });
}

/// The four pixels round each point of the line between two rows decide what is there.
std::vector<std::uint32_t> expectedCorners(const std::vector<std::uint64_t>& above,
                                           const std::vector<std::uint64_t>& below)
{
    // Both begin with the word that stands before the row.
    const auto at = [](const std::vector<std::uint64_t>& row, std::size_t x) { return row[1 + x / 64] >> x % 64 & 1; };
    const auto before = [&](const std::vector<std::uint64_t>& row, std::size_t x) { return x ? at(row, x - 1) : 0; };
    std::vector<std::uint32_t> corners;
    for (std::size_t x = 0; x < 64 * (above.size() - 1); ++x) {
        const bool level = at(above, x) != at(below, x), levelLeft = before(above, x) != before(below, x);
        const bool upright = at(above, x) != before(above, x);
        const auto column = std::uint32_t(x);
        if (level != levelLeft) {
            corners.push_back(column | (upright ? FoundCorner::kEndsAbove : 0));
        } else if (level && upright) {
            corners.push_back(column | FoundCorner::kCrossing | FoundCorner::kEndsAbove);
            corners.push_back(column | FoundCorner::kCrossing);
        }
    }
    return corners;
}

TEST(OutlineCorners, AreWhereTheBorderTurns)
{
    test::onEveryTarget([] {
        std::mt19937 random(8);
        for (int round = 0; round < 600; ++round) {
            const std::size_t words = std::size_t(1 + round % 20);
            // The word before each row is readable and 0, the last bit of each row is 0.
            std::vector<std::uint64_t> above(words + 1), below(words + 1);
            for (std::size_t w = 1; w <= words; ++w) {
                const auto any = [&] { return std::uint64_t(random()) << 32 | random(); };
                above[w] = any(), below[w] = any();
                switch (random() % 4) {
                case 0:
                    below[w] = above[w];
                    break;
                case 1:
                    above[w] &= any() & any() & any(), below[w] = above[w] ^ (any() & any() & any());
                    break;
                case 2:
                    above[w] = 0x5555555555555555, below[w] = ~above[w];
                    break;
                default:
                    break;
                }
            }
            above[words] &= ~(std::uint64_t{1} << 63), below[words] &= ~(std::uint64_t{1} << 63);
            const std::vector<std::uint32_t> expected = expectedCorners(above, below);
            std::vector<FoundCorner> found(expected.size() + 16);
            ASSERT_EQ(countCorners(above.data() + 1, below.data() + 1, words), expected.size());
            ASSERT_EQ(findCorners(above.data() + 1, below.data() + 1, words, found.data()), expected.size());
            for (std::size_t i = 0; i < expected.size(); ++i) ASSERT_EQ(found[i].x, expected[i]) << "round " << round;
        }
    });
}

} // namespace
