// SPDX-License-Identifier: GPL-3.0-or-later
/// Averages over cells, and their row loops on every vector target, against sums over pixels.
#include "drawing/GridAverager.h"
#include "base/BitmapRep.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(AverageRows, WeighAndSumByteByByte)
{
    test::onEveryTarget([] {
        std::mt19937 random(51);
        for (const int count : test::kKernelLengths)
            for (const std::uint32_t weight : {0u, 1u, 21845u, 65535u, 65536u}) {
                const auto a = test::extremeBytes(random, std::size_t(count) + 1);
                const auto b = test::extremeBytes(random, std::size_t(count) + 1);
                std::vector<std::uint32_t> sums(std::size_t(count) + 1, 7);
                startWeighing(a.data() + 1, weight, sums.data(), count);
                addWeighed(b.data() + 1, kWeightOne - weight, sums.data(), count);
                ASSERT_EQ(sums.back(), 7u);
                for (int i = 0; i < count; ++i)
                    ASSERT_EQ(sums[std::size_t(i)],
                              a[std::size_t(i) + 1] * weight + b[std::size_t(i) + 1] * (kWeightOne - weight));
            }
    });
}

TEST(AverageRows, ColumnsOfCellsAreWeighedAndRounded)
{
    test::onEveryTarget([] {
        std::mt19937 random(52);
        for (int round = 0; round < 200; ++round) {
            // Cells of one to five columns that begin at column 3.
            std::vector<AverageCell> cells;
            std::vector<std::uint32_t> weights;
            int column = 3;
            for (int c = int(random() % 20); c >= 0; --c) {
                AverageCell cell{column, int(1 + random() % 5), std::uint32_t(weights.size())};
                std::uint32_t left = kWeightOne;
                for (int i = 0; i < cell.count; ++i) {
                    const std::uint32_t share = i + 1 == cell.count ? left : std::uint32_t(random()) % (left + 1);
                    weights.push_back(share);
                    left -= share;
                }
                column += cell.count;
                cells.push_back(cell);
            }
            const int columns = column - 3;
            std::vector<std::uint32_t> sums(std::size_t(columns) * 4);
            for (std::uint32_t& s : sums) s = test::extremeByte(random) * kWeightOne - (random() % 2);
            for (std::uint32_t& s : sums)
                if (s > 255 * kWeightOne) s = 0;
            const auto given = sums;
            std::vector<std::uint32_t> out(cells.size() + 1, 0x5A5A5A5A);
            averageCells(sums.data(), columns, 3, cells.data(), weights.data(), out.data(), int(cells.size()));
            ASSERT_EQ(out.back(), 0x5A5A5A5Au);
            for (std::size_t c = 0; c < cells.size(); ++c)
                for (std::size_t channel = 0; channel < 4; ++channel) {
                    std::uint32_t total = 1u << 23;
                    for (int i = 0; i < cells[c].count; ++i) {
                        const std::size_t at = std::size_t(cells[c].first - 3 + i) * 4 + channel;
                        total += ((given[at] + 128) >> 8) * weights[cells[c].weights + std::uint32_t(i)];
                    }
                    ASSERT_EQ(out[c] >> 8 * channel & 255, total >> 24) << "round " << round << ", cell " << c;
                }
        }
    });
}

/// What part of [low, high) the cell [a, b) covers; the nearest pixel where it covers none.
struct Covered {
    double a, b;
    Covered(double from, double to, int low, int high)
        : a(std::clamp(from, double(low), double(high))), b(std::clamp(to, double(low), double(high)))
    {
        if (b > a) return;
        a = std::clamp(std::floor(a), double(low), double(high) - 1);
        b = a + 1;
    }
    double share(int pixel) const { return std::max(0.0, std::min(b, pixel + 1.0) - std::max(a, double(pixel))); }
};

struct GridCase {
    const char* name;
    AveragingGrid grid;
    PixelBox part;
};

class GridAverages : public testing::TestWithParam<GridCase>
{
};

TEST_P(GridAverages, AreTheAreasMeans)
{
    const GridCase& c = GetParam();
    std::mt19937 random(53);
    const auto rep = BitmapRep::create(300, 40);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 300; ++x) rep->view().row(y)[x] = std::uint32_t(random());
    test::onEveryTarget([&] {
        const GridAverager averager(rep->view(), c.part, c.grid);
        ASSERT_EQ(averager.columns(), c.grid.columns);
        std::vector<std::uint32_t> line(std::size_t(c.grid.columns) + 1);
        for (int row = 0; row < c.grid.rows; ++row) {
            // In two pieces, as a clip may ask for them.
            const int middle = int(random() % unsigned(c.grid.columns + 1));
            line.back() = 0x5A5A5A5A;
            averager.average(row, middle, c.grid.columns, line.data() + middle);
            averager.average(row, 0, middle, line.data());
            ASSERT_EQ(line.back(), 0x5A5A5A5Au);
            const double top = c.grid.top + row * c.grid.stepY;
            const Covered down(top, top + c.grid.stepY, c.part.y0, c.part.y1);
            for (int column = 0; column < c.grid.columns; ++column) {
                const double left = c.grid.left + column * c.grid.stepX;
                const Covered across(left, left + c.grid.stepX, c.part.x0, c.part.x1);
                for (int channel = 0; channel < 4; ++channel) {
                    double sum = 0, area = 0;
                    for (int y = int(down.a); y < down.b; ++y)
                        for (int x = int(across.a); x < across.b; ++x) {
                            const double share = down.share(y) * across.share(x);
                            sum += share * rep->view().pixel(x, y)[channel];
                            area += share;
                        }
                    const double got = line[std::size_t(column)] >> 8 * channel & 255;
                    ASSERT_NEAR(got, sum / area, 0.52) << "cell " << column << ", " << row;
                }
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Grids, GridAverages,
                         testing::Values(GridCase{"Halved", {0, 0, 2, 2, 150, 20}, {0, 0, 300, 40}},
                                         GridCase{"HalvedBeyondAnOddPart", {-3, -3, 2, 2, 155, 23}, {3, 2, 298, 37}},
                                         GridCase{"QuarteredBeyondThePart", {-9, -5, 4, 4, 80, 14}, {1, 1, 299, 39}},
                                         GridCase{"Sixteenth", {0, -16, 16, 16, 20, 5}, {0, 0, 300, 40}},
                                         GridCase{"AHalfPixelOff", {0.5, 0.25, 2, 2, 149, 19}, {0, 0, 300, 40}},
                                         GridCase{"AnyStep", {-1.3, 0.4, 3.7, 2.9, 83, 14}, {0, 0, 300, 40}},
                                         GridCase{"OneAcross", {0, 0, 1, 2, 300, 20}, {0, 0, 300, 40}},
                                         GridCase{"OneCell", {0, 0, 300, 40, 1, 1}, {0, 0, 300, 40}}),
                         [](const auto& which) { return std::string(which.param.name); });

TEST(GridAverages, HalvesRoundExactlyInsideAndAtTheBorder)
{
    // 2 x 2 means of 0, 0, 0 and 2 are a half: rounded up, wherever the cell lies.
    const auto rep = BitmapRep::create(64, 2);
    for (int x = 0; x < 64; ++x) rep->view().row(1)[x] = x % 2 ? 0x02020202u : 0;
    test::onEveryTarget([&] {
        const GridAverager averager(rep->view(), {0, 0, 64, 2}, {0, 0, 2, 2, 32, 1});
        std::uint32_t out[32];
        averager.average(0, 0, 32, out);
        for (const std::uint32_t mean : out) ASSERT_EQ(mean, 0x01010101u);
    });
}

} // namespace
