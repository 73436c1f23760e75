// SPDX-License-Identifier: GPL-3.0-or-later
/// Row kernels against loops of one line, on every vector target, at every length around a vector's.
#include "codecs/PixelRows.h"
#include "support/EveryTarget.h"
#include <algorithm>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace zp
{
namespace
{

using Row = std::vector<std::uint8_t>;

int roundedQuotient(int numerator, int divisor) { return (numerator + divisor / 2) / divisor; }

struct Kernel {
    const char* name;
    unsigned from, to; ///< bytes a pixel
    std::function<void(const std::uint8_t*, std::uint8_t*, std::size_t)> run;
    std::function<void(const std::uint8_t*, std::uint8_t*)> plain; ///< one pixel
};

constexpr std::uint32_t kBehind = 0x6428FAFF; // bytes A, R, G, B: 255, 250, 40, 100

std::vector<Kernel> kernels()
{
    const auto inPlace = [](auto work) {
        return [work](const std::uint8_t* from, std::uint8_t* to, std::size_t n) {
            if (n > 0) std::memcpy(to, from, 4 * n);
            work(to, n);
        };
    };
    return {
        {"premultiply", 4, 4, inPlace(codec::premultiplyRow),
         [](const std::uint8_t* p, std::uint8_t* q) {
             q[0] = p[0];
             for (int k = 1; k < 4; ++k) q[k] = std::uint8_t(roundedQuotient(p[k] * p[0], 255));
         }},
        {"limit", 4, 4, inPlace(codec::limitRowToAlpha),
         [](const std::uint8_t* p, std::uint8_t* q) {
             for (int k = 0; k < 4; ++k) q[k] = std::min(p[k], p[0]);
         }},
        {"unpremultiply", 4, 4, codec::unpremultiplyRowToRGBA,
         [](const std::uint8_t* p, std::uint8_t* q) {
             for (int k = 0; k < 3; ++k)
                 q[k] = p[0] == 0 ? 0 : std::uint8_t(roundedQuotient(std::min(p[k + 1], p[0]) * 255, p[0]));
             q[3] = p[0];
         }},
        {"compose", 4, 4,
         [](const std::uint8_t* from, std::uint8_t* to, std::size_t n) { codec::composeRow(from, to, n, kBehind); },
         [](const std::uint8_t* p, std::uint8_t* q) {
             const int behind[4] = {255, 250, 40, 100};
             for (int k = 0; k < 4; ++k)
                 q[k] = std::uint8_t(std::min(255, p[k] + roundedQuotient(behind[k] * (255 - p[0]), 255)));
         }},
        {"rgbToARGB", 3, 4, codec::rgbToARGB,
         [](const std::uint8_t* p, std::uint8_t* q) {
             q[0] = 255;
             std::copy_n(p, 3, q + 1);
         }},
        {"argbToRGB", 4, 3, codec::argbToRGB, [](const std::uint8_t* p, std::uint8_t* q) { std::copy_n(p + 1, 3, q); }},
        {"rgbaToARGB", 4, 4, codec::rgbaToARGB,
         [](const std::uint8_t* p, std::uint8_t* q) {
             q[0] = p[3];
             std::copy_n(p, 3, q + 1);
         }},
        {"argbToGrey", 4, 1, codec::argbToGrey, [](const std::uint8_t* p, std::uint8_t* q) { *q = p[1]; }},
        {"argbToRGBA", 4, 4, codec::argbToRGBA,
         [](const std::uint8_t* p, std::uint8_t* q) {
             q[3] = p[0];
             std::copy_n(p + 1, 3, q);
         }},
    };
}

TEST(PixelRows, DoWhatOnePixelAtATimeDoes)
{
    // All pairs of alpha and colour, in an order that gives neighbours different ones.
    constexpr std::size_t kPixels = 65536;
    std::vector<std::uint32_t> order(kPixels);
    for (std::size_t i = 0; i < kPixels; ++i) order[i] = std::uint32_t(i);
    std::shuffle(order.begin(), order.end(), std::mt19937(1));
    Row all(4 * kPixels);
    for (std::size_t i = 0; i < kPixels; ++i) {
        const auto a = std::uint8_t(order[i]), c = std::uint8_t(order[i] >> 8);
        const std::uint8_t pixel[4] = {a, c, std::uint8_t(255 - c), std::uint8_t(a - c)};
        std::copy_n(pixel, 4, &all[4 * i]);
    }
    for (const Kernel& kernel : kernels()) {
        SCOPED_TRACE(kernel.name);
        Row expected(kernel.to * kPixels);
        for (std::size_t i = 0; i < kPixels; ++i) kernel.plain(&all[kernel.from * i], &expected[kernel.to * i]);
        test::onEveryTarget([&] {
            Row got(kernel.to * kPixels);
            kernel.run(all.data(), got.data(), kPixels);
            ASSERT_TRUE(got == expected);
            for (std::size_t n = 0; n < 140; ++n)
                for (const std::size_t start : {0, 1, 7}) {
                    // Exactly as much memory as the row has, so that a byte read or written behind it is seen.
                    const Row from(&all[kernel.from * start], &all[kernel.from * (start + n)]);
                    Row to(kernel.to * n + 1, 0xA5);
                    kernel.run(from.data(), to.data(), n);
                    ASSERT_TRUE(std::equal(to.begin(), to.end() - 1, &expected[kernel.to * start])) << n << " pixels";
                    ASSERT_EQ(to.back(), 0xA5) << n << " pixels";
                }
        });
    }
}

TEST(PixelRows, OneColourAnywhereIsSeen)
{
    test::onEveryTarget([&] {
        for (std::size_t n = 1; n < 140; ++n) {
            Row row(4 * n, 0);
            for (std::size_t i = 0; i < n; ++i) std::fill_n(&row[4 * i], 4, std::uint8_t(7 * i));
            ASSERT_TRUE(codec::isGreyRow(row.data(), n));
            for (std::size_t i = 0; i < 4 * n; ++i) {
                row[i] ^= 0x40;
                ASSERT_EQ(codec::isGreyRow(row.data(), n), i % 4 == 0) << i << " of " << n;
                row[i] ^= 0x40;
            }
        }
    });
}

TEST(PixelRows, OneClearPixelAnywhereIsSeen)
{
    test::onEveryTarget([&] {
        for (std::size_t n = 1; n < 140; ++n) {
            Row row(4 * n, 0);
            for (std::size_t i = 0; i < n; ++i) row[4 * i] = 255;
            ASSERT_TRUE(codec::isOpaqueRow(row.data(), n));
            for (std::size_t i = 0; i < n; ++i) {
                row[4 * i] = 254;
                ASSERT_FALSE(codec::isOpaqueRow(row.data(), n)) << i << " of " << n;
                row[4 * i] = 255;
            }
        }
        ASSERT_TRUE(codec::isOpaqueRow(nullptr, 0));
    });
}

} // namespace
} // namespace zp
