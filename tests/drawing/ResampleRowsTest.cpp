// SPDX-License-Identifier: GPL-3.0-or-later
/// The resampler's row passes, on every vector target, against the sum for each sample.
#include "drawing/ResampleRows.h"
#include "base/BitmapRep.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace
{

using namespace zp;
using namespace zp::resampling;

/// a * b / 2^15, rounded half up: one instruction everywhere.
int rounded15(int a, int b) { return (a * b + 0x4000) >> 15; }

/// Some places with up to @p most shares each, from @p first on; negative shares among them as cubics have.
Taps someTaps(std::mt19937& random, int places, int most, int first, int length)
{
    TapsBuilder taps;
    for (int p = 0; p < places; ++p) {
        const int count = 1 + int(random() % unsigned(most));
        std::vector<double> shares(static_cast<std::size_t>(count));
        double rest = 1;
        for (int k = 1; k < count; ++k) rest -= shares[std::size_t(k)] = double(random() % 1000) / 1000 / count - 0.05;
        shares[0] = rest;
        taps.add(first + int(random() % unsigned(std::max(1, length - count))), shares);
    }
    return taps.build();
}

TEST(ResampleRows, WidenSumFourAndFinish)
{
    test::onEveryTarget([] {
        std::mt19937 random(71);
        for (const int count : test::kKernelLengths) {
            const auto size = std::size_t(count) * 4;
            const auto pixels = test::extremePixels(random, std::size_t(count) + 1);
            std::vector<Wide> wide(size + 1, 77);
            widenRow(pixels.data() + 1, wide.data(), count);
            ASSERT_EQ(wide.back(), 77);
            const auto* bytes = reinterpret_cast<const std::uint8_t*>(pixels.data() + 1);
            for (std::size_t i = 0; i < size; ++i) ASSERT_EQ(wide[i], bytes[i] << kSourceBits);

            std::vector<Wide> rows[4], sum(size + 1, 77);
            const Wide* lines[4];
            for (std::size_t k = 0; k < 4; ++k) {
                rows[k].resize(size + 1);
                for (Wide& v : rows[k]) v = Wide(int(random() % 20000) - 2000);
                lines[k] = rows[k].data() + 1;
            }
            const std::int16_t shares[4] = {-1024, 9216, 9216, -1024};
            sumFourRows(lines, shares, sum.data(), count);
            ASSERT_EQ(sum.back(), 77);
            for (std::size_t i = 0; i < size; ++i) {
                int expected = 0;
                for (std::size_t k = 0; k < 4; ++k) expected += rounded15(lines[k][i], shares[k]);
                ASSERT_EQ(sum[i], expected) << i << " of " << size;
            }

            for (const int bits : {5, 6}) {
                std::vector<std::uint32_t> out(std::size_t(count) + 1, 0x5A5A5A5A);
                finishRow(sum.data(), out.data(), count, bits);
                ASSERT_EQ(out.back(), 0x5A5A5A5Au);
                for (std::size_t i = 0; i < size; ++i) {
                    const auto level = [&](std::size_t at) {
                        return std::clamp((sum[at] + (1 << (bits - 1))) >> bits, 0, 255);
                    };
                    ASSERT_EQ(int(out[i / 4] >> 8 * (i % 4) & 255), std::min(level(i), level(i / 4 * 4)))
                        << i << " of " << size;
                }
            }
        }
    });
}

TEST(ResampleRows, RowsAreSummedByTheirShares)
{
    test::onEveryTarget([] {
        std::mt19937 random(72);
        std::vector<std::uint32_t> scratch;
        for (const int count : test::kKernelLengths) {
            if (count == 0) continue;
            const auto rep = BitmapRep::create(count, 40);
            for (int y = 0; y < 40; ++y) {
                const auto pixels = test::extremePixels(random, std::size_t(count));
                std::copy(pixels.begin(), pixels.end(), rep->view().row(y));
            }
            for (const int most : {1, 4, kMostRounded}) {
                const Taps rows = someTaps(random, 3, most, 0, 40);
                for (std::size_t place = 0; place < 3; ++place) {
                    std::vector<Wide> sum(std::size_t(count) * 4 + 1, 77);
                    sumRows(rep->view(), rows, place, sum.data(), scratch);
                    ASSERT_EQ(sum.back(), 77);
                    for (std::size_t i = 0; i < std::size_t(count) * 4; ++i) {
                        int expected = 0;
                        for (int k = 0; k < rows.count[place]; ++k)
                            expected += rounded15(rep->view().rowData(rows.first[place] + k)[i] << kSourceBits,
                                                  rows.shares[place * std::size_t(rows.perPlace) + std::size_t(k)]);
                        ASSERT_EQ(sum[i], Wide(expected)) << i << " of " << count << ", up to " << most;
                    }
                }
            }
            // More than that many are summed exactly; only a picture that shrinks has so many, and none is negative.
            TapsBuilder even;
            even.add(2, std::vector<double>(37, 1.0 / 37));
            const Taps means = even.build();
            std::vector<Wide> sum(std::size_t(count) * 4 + 1, 77);
            sumRows(rep->view(), means, 0, sum.data(), scratch);
            ASSERT_EQ(sum.back(), 77);
            for (std::size_t i = 0; i < std::size_t(count) * 4; ++i) {
                std::uint32_t expected = 128;
                for (int k = 0; k < 37; ++k)
                    expected += rep->view().rowData(2 + k)[i] * std::uint32_t(means.shares[std::size_t(k)]);
                ASSERT_EQ(sum[i], Wide(expected >> 8)) << i << " of " << count;
            }
        }
    });
}

TEST(ResampleRows, PixelsAlongARowAreSummedByTheirShares)
{
    test::onEveryTarget([] {
        std::mt19937 random(73);
        for (const int places : {1, 2, 3, 4, 5, 7, 8, 9, 16, 33})
            for (const int most : {1, 3, 4, 5, 8, 9, 12, kMostRounded, 30}) {
                constexpr int kLength = 100;
                PaddedRow row(kLength);
                for (int i = 0; i < 4 * kLength; ++i) row.samples()[i] = Wide(int(random() % 18000) - 1000);
                row.repeatEnds();
                // From before the row's beginning to behind its end, as a cubic reaches.
                const Taps columns = someTaps(random, places, most, most > kMostRounded ? 0 : -2, kLength);
                std::vector<Wide> out(std::size_t(places) * 4 + 1, 77);
                sumAlong(row.samples(), columns, out.data());
                ASSERT_EQ(out.back(), 77);
                for (std::size_t p = 0; p < std::size_t(places); ++p)
                    for (int c = 0; c < 4; ++c) {
                        const Wide* const at = row.samples() + 4 * columns.first[p] + c;
                        int rounded = 0;
                        std::int64_t exact = 1 << 14;
                        for (int k = 0; k < columns.count[p]; ++k) {
                            const int share = columns.shares[p * std::size_t(columns.perPlace) + std::size_t(k)];
                            rounded += rounded15(at[4 * k], share);
                            exact += at[4 * k] * share;
                        }
                        const int expected = columns.perPlace > kMostRounded ? int(exact >> 15) : rounded;
                        ASSERT_EQ(out[4 * p + std::size_t(c)], expected)
                            << "place " << p << " of " << places << ", up to " << most;
                    }
            }
    });
}

} // namespace
