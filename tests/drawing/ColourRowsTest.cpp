// SPDX-License-Identifier: GPL-3.0-or-later
/// Screen words from one set of colours to another, on every vector target, against the arithmetic of one pixel.
#include "drawing/ColourRows.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace
{

using namespace zp;

/// Curves and a matrix that mixes the colours and leaves what can be shown on both sides.
std::unique_ptr<ColourTables> makeTables()
{
    auto tables = std::make_unique<ColourTables>();
    const float mixed[] = {1.22f, -0.2f, -0.02f, -0.04f, 1.05f, -0.01f, 0.3f, 0.2f, 0.5f};
    for (std::size_t i = 0; i < 9; ++i) tables->matrix[i] = mixed[i];
    for (std::size_t c = 0; c < 3; ++c) {
        for (std::size_t i = 0; i < 256; ++i) tables->light[c][i] = std::pow(float(i) / 255, 2.0f + float(c) / 10);
        for (std::size_t i = 0; i < ColourTables::kSteps; ++i)
            tables->byte[c][i] =
                std::uint32_t(std::lround(std::pow(double(i) / (ColourTables::kSteps - 1), 2 / 2.2) * 255));
    }
    return tables;
}

/// How far the byte may be off: a sum may be rounded to the step beside.
std::uint32_t nearestByte(const ColourTables& t, std::size_t c, std::uint32_t word, int offset)
{
    const float sum = t.light[0][word >> 16 & 255] * t.matrix[3 * c] +
                      t.light[1][word >> 8 & 255] * t.matrix[3 * c + 1] + t.light[2][word & 255] * t.matrix[3 * c + 2];
    const int step = int(std::lrint(std::sqrt(std::clamp(sum, 0.0f, 1.0f)) * (ColourTables::kSteps - 1))) + offset;
    return t.byte[c][std::size_t(std::clamp(step, 0, ColourTables::kSteps - 1))];
}

TEST(ColourRows, AreCurveMatrixCurve)
{
    const auto tables = makeTables();
    test::onEveryTarget([&tables] {
        std::mt19937 random(7);
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                std::vector<std::uint32_t> words(std::size_t(count + start) + 1);
                for (std::uint32_t& word : words) word = std::uint32_t(random());
                const std::vector<std::uint32_t> before = words;
                convertColours(*tables, words.data() + start, count);
                for (std::size_t i = 0; i < words.size(); ++i) {
                    if (i < std::size_t(start) || i >= std::size_t(start + count)) {
                        ASSERT_EQ(words[i], before[i]) << "outside";
                        continue;
                    }
                    ASSERT_EQ(words[i] >> 24, 255u);
                    for (std::size_t c = 0; c < 3; ++c) {
                        const std::uint32_t byte = words[i] >> (16 - 8 * c) & 255;
                        ASSERT_GE(byte, nearestByte(*tables, c, before[i], -1)) << i << " of " << count;
                        ASSERT_LE(byte, nearestByte(*tables, c, before[i], 1)) << i << " of " << count;
                    }
                }
            }
    });
}

} // namespace
