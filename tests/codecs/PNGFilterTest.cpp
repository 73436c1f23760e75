// SPDX-License-Identifier: GPL-3.0-or-later
/// PNG's filters as the format defines them, done and undone, on every vector target.
#include "codecs/PNGFilter.h"
#include "codecs/PNGUnfilter.h"
#include "support/EveryTarget.h"
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace zp::codec
{
namespace
{

using Row = std::vector<std::uint8_t>;

int predicted(PNGFilter filter, int left, int up, int corner)
{
    const int p = left + up - corner;
    const int toLeft = std::abs(p - left), toUp = std::abs(p - up), toCorner = std::abs(p - corner);
    switch (filter) {
    case PNGFilter::None:
        return 0;
    case PNGFilter::Sub:
        return left;
    case PNGFilter::Up:
        return up;
    case PNGFilter::Average:
        return (left + up) / 2;
    case PNGFilter::Paeth:
        return toLeft <= toUp && toLeft <= toCorner ? left : toUp <= toCorner ? up : corner;
    }
    return 0;
}

/// Rows with @p step zeros before their bytes: noise, every other time with small steps and with the two ends alone.
Row randomRow(std::size_t count, unsigned step, unsigned seed)
{
    std::mt19937 random(seed);
    Row row(step + count);
    for (std::size_t i = step; i < row.size(); ++i)
        row[i] = std::uint8_t(seed % 3 == 0 ? random() : seed % 3 == 1 ? 100 + random() % 7 : (random() & 1) * 255);
    return row;
}

TEST(PNGFilters, AreWeighedAndAppliedAsDefined)
{
    for (const unsigned step : {3u, 4u})
        for (std::size_t count = step; count < 300; count += count < 140 ? step : 7 * step)
            for (unsigned seed = 0; seed < 9; ++seed) {
                const Row row = randomRow(count, step, seed), above = randomRow(count, step, seed / 3 + 20);
                std::uint64_t sums[kPNGFilters];
                Row filtered[kPNGFilters];
                for (unsigned f = 0; f < kPNGFilters; ++f) {
                    sums[f] = 0;
                    for (std::size_t i = step; i < row.size(); ++i) {
                        const int p = predicted(PNGFilter(f), row[i - step], above[i], above[i - step]);
                        filtered[f].push_back(std::uint8_t(row[i] - p));
                        sums[f] += unsigned(std::abs(int(std::int8_t(filtered[f].back()))));
                    }
                }
                test::onEveryTarget([&] {
                    std::uint64_t got[kPNGFilters] = {};
                    weighFilters(&row[step], &above[step], count, step, got);
                    for (const PNGFilter f : {PNGFilter::Sub, PNGFilter::Up, PNGFilter::Paeth}) {
                        ASSERT_EQ(got[unsigned(f)], sums[unsigned(f)]) << unsigned(f) << ", " << count;
                        Row out(count);
                        applyFilter(f, &row[step], &above[step], count, step, out.data());
                        ASSERT_EQ(out, filtered[unsigned(f)]) << unsigned(f) << ", " << count;
                    }
                });
                // And back, as bytes of any width and as pixels.
                for (unsigned f = 0; f < kPNGFilters; ++f) {
                    Row out(count);
                    unfilterBytes(PNGFilter(f), filtered[f].data(), &above[step], out.data(), count, step);
                    ASSERT_TRUE(std::equal(out.begin(), out.end(), row.begin() + step)) << f;
                }
            }
}

TEST(PNGFilters, PixelsComeBackInTheEditorsOrder)
{
    for (const unsigned step : {3u, 4u})
        for (std::size_t pixels = 1; pixels < 70; ++pixels)
            for (unsigned f = 0; f < kPNGFilters; ++f)
                for (const bool first : {true, false}) {
                    const std::size_t count = step * pixels;
                    const Row row = randomRow(count, step, unsigned(pixels));
                    const Row above = first ? Row(step + count) : randomRow(count, step, 1000);
                    Row filtered, expected, pixelsAbove;
                    for (std::size_t i = step; i < row.size(); ++i)
                        filtered.push_back(
                            std::uint8_t(row[i] - predicted(PNGFilter(f), row[i - step], above[i], above[i - step])));
                    const auto reordered = [&](const Row& from, Row& to) {
                        for (std::size_t i = step; i < from.size(); i += step) {
                            to.push_back(step == 4 ? from[i + 3] : 255);
                            to.insert(to.end(), &from[i], &from[i] + 3);
                        }
                    };
                    reordered(row, expected);
                    reordered(above, pixelsAbove);
                    pixelsAbove.resize((pixels + 3) / 4 * 16);
                    test::onEveryTarget([&] {
                        Row out((pixels + 3) / 4 * 16);
                        const auto unfilter = step == 4 ? unfilterRGBA : unfilterRGB;
                        unfilter(PNGFilter(f), filtered.data(), first ? nullptr : pixelsAbove.data(), out.data(),
                                 pixels);
                        out.resize(4 * pixels);
                        ASSERT_EQ(out, expected) << "filter " << f << ", " << pixels << " pixels";
                    });
                }
}

} // namespace
} // namespace zp::codec
