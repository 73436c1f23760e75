// SPDX-License-Identifier: GPL-3.0-or-later
/// The small loops of a smart fill, on every vector target, against the definition for each element.
#include "smartfill/SmartFillRows.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <algorithm>
#include <bit>
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(SmartFillRows, CommonBitsAreCounted)
{
    test::onEveryTarget([] {
        std::mt19937_64 random(31);
        for (const int count : {0, 1, 2, 3, 7, 8, 9, 17, 57}) {
            std::vector<std::uint64_t> a(std::size_t(count) + 1), b(a.size());
            for (auto& word : a) word = random() | random();
            for (auto& word : b) word = random() % 4 ? random() : ~std::uint64_t{0};
            int bits = 0;
            for (std::size_t i = 0; i + 1 < a.size(); ++i) bits += std::popcount(a[i] & b[i]);
            ASSERT_EQ(commonBits(a.data(), b.data(), count), bits) << count;
        }
    });
}

TEST(SmartFillRows, KeysAreRankedByCounting)
{
    test::onEveryTarget([] {
        std::mt19937 random(32);
        for (const int count : {1, 2, 15, 16, 17, 33, 254}) {
            std::vector<std::uint32_t> keys(static_cast<std::size_t>(count)), ranks(keys.size() + 1, 77);
            for (std::size_t i = 0; i < keys.size(); ++i) keys[i] = std::uint32_t(i) * 0x01010101u;
            std::shuffle(keys.begin(), keys.end(), random);
            rankKeys(keys.data(), count, ranks.data());
            for (std::size_t i = 0; i < keys.size(); ++i) ASSERT_EQ(ranks[i], keys[i] / 0x01010101u) << count;
            ASSERT_EQ(ranks.back(), 77u);
        }
    });
}

TEST(SmartFillRows, DistancesGrowFromTheRowBefore)
{
    test::onEveryTarget([] {
        std::mt19937 random(33);
        for (const int width : test::kKernelLengths) {
            const auto done = test::extremeBytes(random, std::size_t(width) + 2);
            auto row = test::extremeBytes(random, std::size_t(width) + 1);
            const auto before = row;
            growFrom(done.data() + 1, row.data(), width);
            for (std::size_t x = 0; x < std::size_t(width); ++x)
                ASSERT_EQ(row[x], std::min(int(before[x]), std::min({done[x], done[x + 1], done[x + 2]}) + 1)) << x;
            ASSERT_EQ(row.back(), before.back());
        }
    });
}

TEST(SmartFillRows, PixelsAreTakenApart)
{
    test::onEveryTarget([] {
        std::mt19937 random(34);
        const auto pixels = test::extremePixels(random, 400);
        for (const int count : test::kKernelLengths) {
            std::vector<std::int32_t> place(static_cast<std::size_t>(count));
            for (auto& p : place) p = std::int32_t(random() % 400) - 200;
            std::array<std::vector<std::uint8_t>, 4> bytes;
            std::array<std::uint8_t*, 4> to{};
            for (std::size_t c = 0; c < 4; ++c) {
                bytes[c].assign(std::size_t(count) + 1, 77);
                to[c] = bytes[c].data();
            }
            takePixels(pixels.data() + 200, place.data(), count, to);
            for (std::size_t c = 0; c < 4; ++c) {
                for (std::size_t i = 0; i < place.size(); ++i)
                    ASSERT_EQ(bytes[c][i], pixels[std::size_t(place[i] + 200)] >> 8 * c & 255) << i << " of " << count;
                ASSERT_EQ(bytes[c].back(), 77);
            }
        }
    });
}

} // namespace
