// SPDX-License-Identifier: GPL-3.0-or-later
/// The filters' row passes, on every vector target, against the sum for each sample.
#include "drawing/FiltersRows.h"
#include "drawing/FiltersScaling.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

namespace
{

using namespace zp;
using namespace zp::filters;

/// a * b / 2^15, rounded half up: one instruction everywhere.
int rounded15(int a, int b) { return (a * b + 0x4000) >> 15; }

std::vector<Wide> wideRow(std::mt19937& random, std::size_t samples)
{
    std::vector<Wide> row(samples);
    for (Wide& v : row) v = Wide(test::extremeByte(random) << kWideBits);
    return row;
}

/// Pixel and channel of a row of samples.
int at(const std::vector<Wide>& row, int pixel, std::size_t channel) { return row[std::size_t(4 * pixel) + channel]; }

BlurWeights someWeights(int radius)
{
    BlurWeights weights;
    int sum = 0;
    for (int k = 0; k < radius; ++k) {
        weights.side.push_back(std::int16_t(12000 >> k));
        sum += weights.side.back();
    }
    weights.taken = std::int16_t(std::min(32767, 2 * sum));
    return weights;
}

TEST(FiltersRows, PixelsAreWidenedAndColoured)
{
    test::onEveryTarget([] {
        std::mt19937 random(81);
        const ColourMatrix matrix{{1.3f, -0.2f, 0.1f, 0.05f, 0.3f, 0.9f, -0.4f, -0.1f, 2.5f, -1.0f, 0.2f, 0.7f}};
        const auto coloured = [&](std::uint32_t p, std::size_t row, float scale) {
            const float a = float(p & 255), r = float(p >> 8 & 255), g = float(p >> 16 & 255), b = float(p >> 24);
            const float* const m = matrix.m + 4 * row;
            // The order of the sums is the kernel's.
            const float sum = scale * m[0] * r + scale * m[1] * g + scale * m[2] * b + scale * m[3] * a;
            return std::uint32_t(std::min(std::max(sum, 0.0f), a * scale) + 0.5f);
        };
        for (const int count : test::kKernelLengths)
            for (const int start : test::kKernelStarts) {
                const auto pixels = test::extremePixels(random, std::size_t(count + start));
                std::vector<Wide> wide(std::size_t(count) * 4 + 1, 77), changed = wide;
                std::vector<std::uint32_t> out(std::size_t(count) + 1, 0x5A5A5A5A);
                widenRow(pixels.data() + start, wide.data(), count);
                colourRowWide(pixels.data() + start, changed.data(), count, matrix);
                colourRow(pixels.data() + start, out.data(), count, matrix);
                ASSERT_EQ(wide.back(), 77);
                ASSERT_EQ(changed.back(), 77);
                ASSERT_EQ(out.back(), 0x5A5A5A5Au);
                for (int i = 0; i < count; ++i) {
                    const std::uint32_t p = pixels[std::size_t(start + i)];
                    std::uint32_t word = p & 255;
                    ASSERT_EQ(at(changed, i, 0), int(p & 255) << kWideBits);
                    for (std::size_t c = 0; c < 4; ++c) ASSERT_EQ(at(wide, i, c), int(p >> 8 * c & 255) << kWideBits);
                    for (std::size_t c = 0; c < 3; ++c) {
                        word |= coloured(p, c, 1) << 8 * (c + 1);
                        ASSERT_EQ(at(changed, i, c + 1), int(coloured(p, c, 64))) << i << " of " << count;
                    }
                    ASSERT_EQ(out[std::size_t(i)], word) << i << " of " << count;
                }
            }
    });
}

TEST(FiltersRows, NumbersThatAreNoneLeaveNothing)
{
    test::onEveryTarget([] {
        ColourMatrix matrix;
        matrix.m[0] = NAN, matrix.m[5] = INFINITY, matrix.m[10] = -INFINITY;
        const std::vector<std::uint32_t> pixels(37, 0x11223380);
        std::vector<std::uint32_t> out(37);
        colourRow(pixels.data(), out.data(), 37, matrix);
        for (const std::uint32_t p : out) ASSERT_EQ(p, 0x00800080u); // nothing, as much as alpha allows, nothing
    });
}

TEST(FiltersRows, BlursSumTheirWeightedSamples)
{
    test::onEveryTarget([] {
        std::mt19937 random(82);
        for (const int radius : {0, 1, 3, 8})
            for (const int count : {1, 31, 32, 33, 64, 100}) {
                const BlurWeights weights = someWeights(radius);
                const int taps = 2 * radius + 1, room = blocks(count) + 2 * radius;
                std::vector<std::vector<Wide>> rows;
                std::vector<std::vector<std::uint32_t>> pixelRows;
                std::vector<const Wide*> starts;
                std::vector<const std::uint32_t*> pixelStarts;
                for (int k = 0; k < taps; ++k) {
                    rows.push_back(wideRow(random, std::size_t(room) * 4));
                    pixelRows.push_back(test::extremePixels(random, std::size_t(count)));
                }
                for (int k = 0; k < taps; ++k) {
                    starts.push_back(rows[std::size_t(k)].data());
                    pixelStarts.push_back(pixelRows[std::size_t(k)].data());
                }
                const auto blurred = [&](auto&& sample) {
                    int sum = sample(0) - rounded15(sample(0), weights.taken);
                    for (int k = 1; k <= radius; ++k)
                        sum += rounded15(sample(-k) + sample(k), weights.side[std::size_t(k - 1)]);
                    return sum;
                };
                std::vector<Wide> along(std::size_t(blocks(count)) * 4), across = along,
                                                                         pixels(std::size_t(count) * 4 + 1, 77);
                std::vector<std::uint32_t> words(std::size_t(count) + 1, 0x5A5A5A5A);
                blurAlong(rows[0].data() + 4 * radius, along.data(), count, weights);
                blurAcross(starts.data(), across.data(), count, weights);
                blurPixelsAcross(pixelStarts.data(), pixels.data(), count, weights);
                blurAlongToPixels(rows[0].data() + 4 * radius, words.data(), count, weights, false);
                ASSERT_EQ(pixels.back(), 77);
                ASSERT_EQ(words.back(), 0x5A5A5A5Au);
                for (int i = 0; i < count; ++i)
                    for (std::size_t c = 0; c < 4; ++c) {
                        const int row = blurred([&](int k) { return at(rows[0], i + radius + k, c); });
                        ASSERT_EQ(at(along, i, c), row) << i << " of " << count << ", radius " << radius;
                        ASSERT_EQ(int(words[std::size_t(i)] >> 8 * c & 255), std::clamp((row + 32) >> 6, 0, 255));
                        ASSERT_EQ(at(across, i, c),
                                  blurred([&](int k) { return at(rows[std::size_t(radius + k)], i, c); }));
                        ASSERT_EQ(at(pixels, i, c), blurred([&](int k) {
                                      return int(pixelRows[std::size_t(radius + k)][std::size_t(i)] >> 8 * c & 255)
                                             << kWideBits;
                                  }));
                    }
            }
    });
}

TEST(FiltersRows, PixelsArePutPastTheCacheAsElsewhere)
{
    test::onEveryTarget([] {
        std::mt19937 random(83);
        for (const int count : {1, 16, 32, 33, 100, 256}) {
            const auto row = wideRow(random, std::size_t(blocks(count)) * 4);
            const auto soft = wideRow(random, std::size_t(blocks(count)) * 4);
            for (const bool sharpen : {false, true}) {
                alignas(64) std::uint32_t near[257] = {}, past[257] = {};
                for (const bool stream : {false, true}) {
                    std::uint32_t* const out = stream ? past : near;
                    sharpen ? sharpenRow(soft.data(), row.data(), out, count, {12000, 1}, stream)
                            : narrowRow(row.data(), out, count, stream);
                }
                ASSERT_EQ(std::memcmp(near, past, sizeof near), 0) << count;
                ASSERT_EQ(near[count], 0u);
                for (int i = 0; i < count && !sharpen; ++i)
                    for (std::size_t c = 0; c < 4; ++c)
                        ASSERT_EQ(int(near[i] >> 8 * c & 255), std::clamp((at(row, i, c) + 32) >> 6, 0, 255));
            }
        }
    });
}

TEST(FiltersRows, SharpeningMovesColourAwayFromTheBlurUnderItsOwnAlpha)
{
    test::onEveryTarget([] {
        std::mt19937 random(84);
        for (const SharpenAmount amount : {SharpenAmount{16384, 0}, SharpenAmount{-9000, 0}, SharpenAmount{20000, 2}}) {
            constexpr int kCount = 96;
            std::vector<Wide> own, soft;
            for (int i = 0; i < kCount; ++i) {
                // Stretches of opaque pixels, of any, and mixed ones.
                const bool opaque = i / 16 % 3 == 0 || (i / 16 % 3 == 2 && random() % 2);
                const auto pixel = [&](std::vector<Wide>& row) {
                    const int alpha = opaque ? 255 : int(random() % 256);
                    row.push_back(Wide(alpha << kWideBits));
                    for (int c = 1; c < 4; ++c) row.push_back(Wide(int(random()) % (alpha + 1) << kWideBits));
                };
                pixel(own);
                pixel(soft);
                for (std::size_t c = 1; c < 4; ++c) {
                    own[own.size() - c] = Wide(std::max<int>(0, own[own.size() - c]));
                    soft[soft.size() - c] = Wide(std::max<int>(0, soft[soft.size() - c]));
                }
            }
            std::vector<std::uint32_t> out(kCount);
            sharpenRow(soft.data(), own.data(), out.data(), kCount, amount, false);
            for (int i = 0; i < kCount; ++i) {
                const int alpha = at(own, i, 0), softAlpha = at(soft, i, 0);
                ASSERT_EQ(int(out[std::size_t(i)] & 255), alpha >> kWideBits);
                for (std::size_t c = 1; c < 4; ++c) {
                    double blurred = at(soft, i, c);
                    if (softAlpha > 0) blurred = std::clamp(blurred * alpha / softAlpha, 0.0, double(kWideOne));
                    const double intensity = double(amount.factor) / 16384 * (1 << amount.doublings);
                    const double sharp = at(own, i, c) + intensity * (at(own, i, c) - blurred);
                    const double expected = std::clamp(sharp, 0.0, double(alpha)) / (1 << kWideBits);
                    const int got = int(out[std::size_t(i)] >> 8 * c & 255);
                    ASSERT_NEAR(got, expected, 0.6) << i << ", channel " << c << ", factor " << amount.factor;
                }
            }
        }
    });
}

TEST(FiltersScaling, HalvesAndDoublesByOneFilter)
{
    test::onEveryTarget([] {
        std::mt19937 random(85);
        for (const int count : test::kKernelLengths) {
            if (count > 130) continue;
            std::vector<std::vector<Wide>> rows;
            for (int k = 0; k < 6; ++k) rows.push_back(wideRow(random, std::size_t(2 * count + 6) * 4));
            const Wide* six[6];
            for (std::size_t k = 0; k < 6; ++k) six[k] = rows[k].data();
            const std::size_t size = std::size_t(count) * 4;
            std::vector<Wide> down(size + 1, 77), along = down, doubled = down, twice(2 * size + 1, 77);
            halveDown(six, down.data(), count);
            halveAlong(rows[0].data() + 4 * kHalvingReach, along.data(), count);
            doubleDown(rows[0].data(), rows[1].data(), rows[2].data(), doubled.data(), count);
            doubleAlong(rows[0].data() + 4, twice.data(), count);
            for (const auto& row : {down, along, doubled, twice}) ASSERT_EQ(row.back(), 77);
            const auto halved = [](auto&& sample) {
                return rounded15(sample(2) + sample(3), 10240) + rounded15(sample(1) + sample(4), 5120) +
                       rounded15(sample(0) + sample(5), 1024);
            };
            const auto mixed = [](int nearer, int own, int other) {
                return rounded15(own, 20480) + rounded15(nearer, 10240) + rounded15(other, 2048);
            };
            for (int i = 0; i < count; ++i)
                for (std::size_t c = 0; c < 4; ++c) {
                    ASSERT_EQ(at(down, i, c), halved([&](int k) { return at(rows[std::size_t(k)], i, c); }));
                    ASSERT_EQ(at(along, i, c), halved([&](int k) { return at(rows[0], 2 * i + k, c); })) << i;
                    ASSERT_EQ(at(doubled, i, c), mixed(at(rows[0], i, c), at(rows[1], i, c), at(rows[2], i, c)));
                    const int before = at(rows[0], i, c), own = at(rows[0], i + 1, c), behind = at(rows[0], i + 2, c);
                    ASSERT_EQ(at(twice, 2 * i, c), mixed(before, own, behind)) << i;
                    ASSERT_EQ(at(twice, 2 * i + 1, c), mixed(behind, own, before)) << i;
                }
        }
    });
}

TEST(FiltersScaling, AFlatRowStaysFlat)
{
    test::onEveryTarget([] {
        for (int level = 0; level < 256; ++level) {
            const std::vector<Wide> row(4 * 70, Wide(level << kWideBits));
            const Wide* const six[6] = {row.data(), row.data(), row.data(), row.data(), row.data(), row.data()};
            std::vector<Wide> out(4 * 70);
            halveDown(six, out.data(), 33);
            for (int i = 0; i < 4 * 33; ++i) ASSERT_EQ(out[std::size_t(i)], row[0]);
            halveAlong(row.data() + 4 * kHalvingReach, out.data(), 33);
            for (int i = 0; i < 4 * 33; ++i) ASSERT_EQ(out[std::size_t(i)], row[0]);
            doubleDown(row.data(), row.data(), row.data(), out.data(), 33);
            for (int i = 0; i < 4 * 33; ++i) ASSERT_EQ(out[std::size_t(i)], row[0]);
            doubleAlong(row.data() + 4, out.data(), 33);
            for (int i = 0; i < 4 * 66; ++i) ASSERT_EQ(out[std::size_t(i)], row[0]);
        }
    });
}

} // namespace
