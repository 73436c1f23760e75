// SPDX-License-Identifier: GPL-3.0-or-later
/// The loops over alpha bytes and the fingerprint, on every vector target, against loops over single bytes.
#include "undo/AlphaRows.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include "undo/Fingerprint.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(AlphaRows, AlphaIsTakenOutPutBackFilledAndLimits)
{
    test::onEveryTarget([] {
        std::mt19937 random(21);
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                const auto size = std::size_t(count + start + 1);
                std::vector<std::uint32_t> pixels(size);
                for (std::uint32_t& p : pixels)
                    for (int shift = 0; shift < 32; shift += 8) p |= std::uint32_t(test::extremeByte(random)) << shift;
                const auto alphas = test::extremeBytes(random, size);
                auto taken = alphas;
                auto given = pixels, filled = pixels, limited = pixels;
                gatherAlpha(pixels.data() + start, taken.data() + start, count);
                scatterAlpha(given.data() + start, alphas.data() + start, count);
                fillAlpha(filled.data() + start, 129, count);
                limitColourToAlpha(limited.data() + start, count);
                for (std::size_t i = 0; i < size; ++i) {
                    const std::uint32_t p = pixels[i], a = p & 255;
                    const bool inside = int(i) >= start && int(i) < start + count;
                    ASSERT_EQ(taken[i], inside ? a : alphas[i]) << i << " of " << count;
                    ASSERT_EQ(given[i], inside ? (p & ~255u) | alphas[i] : p) << i << " of " << count;
                    ASSERT_EQ(filled[i], inside ? (p & ~255u) | 129u : p) << i << " of " << count;
                    const std::uint32_t least = a | std::min(p >> 8 & 255, a) << 8 | std::min(p >> 16 & 255, a) << 16 |
                                                std::min(p >> 24, a) << 24;
                    ASSERT_EQ(limited[i], inside ? least : p) << i << " of " << count;
                }
            }
    });
}

TEST(AlphaRows, BlocksEndAtTheFirstThatHoldsWhatIsLookedFor)
{
    test::onEveryTarget([] {
        for (const std::size_t count : {0u, 1u, 63u, 64u, 65u, 127u, 128u, 200u, 320u})
            for (std::size_t odd = 0; odd <= count; ++odd) {
                // One byte differs; where odd is count none does.
                std::vector<std::uint8_t> equal(count + 1, 255), pairless(count + 1);
                for (std::size_t i = 0; i <= count; ++i) pairless[i] = std::uint8_t(i % 2 ? 128 : 127);
                if (odd < count) equal[odd + 1] = 254, pairless[odd + 1] = pairless[odd];
                const std::size_t whole = count / kAlphaBlock * kAlphaBlock;
                const std::size_t expected = std::min(whole, odd / kAlphaBlock * kAlphaBlock);
                ASSERT_EQ(equalBlocks(equal.data() + 1, count, 255), expected) << odd << " of " << count;
                ASSERT_EQ(pairlessBlocks(pairless.data() + 1, count), expected) << odd << " of " << count;
            }
    });
}

struct Known {
    std::size_t length;
    std::uint64_t low, high;
};

TEST(Fingerprint, IsTheSameOnEveryTargetAndInEveryVersion)
{
    // Files carry fingerprints: these are what earlier versions wrote.
    constexpr Known kKnown[] = {
        {0, 0xDA89B6D92053C181u, 0x28B25A998EFD2CB9u},   {1, 0xFEB0C29321BEEADCu, 0x1ADEDB2B3A702067u},
        {511, 0x41D51C67BE1FB773u, 0x300E6B4337633827u}, {512, 0xF84C1F98D79CA4F9u, 0x5884B3BADEEC0EF0u},
        {513, 0x54341C14D21032C5u, 0x6A26F440EB091C9Cu}, {5000, 0x5494346FDEECEC2Du, 0x600ED41B6C46F2AEu},
    };
    test::onEveryTarget([&] {
        for (const Known& known : kKnown) {
            std::vector<std::uint8_t> bytes(known.length);
            std::uint32_t state = std::uint32_t(known.length) + 1;
            for (std::uint8_t& b : bytes) b = std::uint8_t((state = state * 1664525u + 1013904223u) >> 24);
            const Fingerprint print = fingerprint(std::span<const std::uint8_t>(bytes));
            EXPECT_EQ(print.low, known.low) << known.length;
            EXPECT_EQ(print.high, known.high) << known.length;
        }
    });
}

} // namespace
