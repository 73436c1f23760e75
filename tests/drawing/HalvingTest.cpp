// SPDX-License-Identifier: GPL-3.0-or-later
/// Means of squares, on every vector target, against sums over their pixels.
#include "drawing/Halving.h"
#include "base/BitmapRep.h"
#include "drawing/ImageDrawingBlend.h"
#include "support/EveryTarget.h"
#include "support/KernelCases.h"
#include <gtest/gtest.h>

namespace
{

using namespace zp;

TEST(Halving, GivesTheRoundedMeanOfEverySquare)
{
    test::onEveryTarget([] {
        std::mt19937 random(41);
        for (int level = 1; level <= kMostHalvings; ++level)
            for (const int count : test::kKernelLengths) {
                if (count > 130) continue; // 2,080 source pixels
                const int side = 1 << level, x = int(random() % 4), y = int(random() % 3);
                const auto rep = BitmapRep::create(x + count * side + 1, y + side);
                for (int row = 0; row < y + side; ++row) {
                    const bool white = random() % 4 == 0; // the largest sums there are
                    for (int i = 0; i < rep->pixelsWide(); ++i)
                        rep->view().row(row)[i] = white ? ~0u
                                                        : std::uint32_t(test::extremeByte(random)) << 24 |
                                                              std::uint32_t(test::extremeByte(random)) << 16 |
                                                              std::uint32_t(random() & 0xFFFF);
                }
                std::vector<std::uint32_t> means(std::size_t(count) + 1, 0x5A5A5A5A);
                averageSquares(rep->view(), x, y, count, level, means.data());
                ASSERT_EQ(means.back(), 0x5A5A5A5Au);
                for (int i = 0; i < count; ++i)
                    for (int c = 0; c < 4; ++c) {
                        int sum = 0;
                        for (int row = y; row < y + side; ++row)
                            for (int k = 0; k < side; ++k) sum += rep->view().pixel(x + i * side + k, row)[c];
                        ASSERT_EQ(int(means[std::size_t(i)] >> 8 * c & 255), (sum + side * side / 2) / (side * side))
                            << "level " << level << ", square " << i << " of " << count;
                    }
            }
    });
}

TEST(Halving, MeansDrawnOverAreTheMeansBlended)
{
    test::onEveryTarget([] {
        std::mt19937 random(42);
        for (int level = 1; level <= kMostHalvings; ++level)
            for (const int count : {1, 3, 16, 17, 40, 70}) {
                const auto rep = BitmapRep::create(count << level, 1 << level);
                // Stretches of opaque, of empty and of any pixels.
                for (int y = 0; y < 1 << level; ++y) {
                    const auto pixels = test::extremePixels(random, std::size_t(count) << level);
                    for (int x = 0; x < count << level; ++x) {
                        const int kind = (x >> level) / 16 % 3;
                        rep->view().row(y)[x] = kind == 0   ? pixels[std::size_t(x)] | 255u
                                                : kind == 1 ? 0
                                                            : pixels[std::size_t(x)];
                    }
                }
                auto drawn = test::extremePixels(random, std::size_t(count) + 1);
                auto blended = drawn;
                std::vector<std::uint32_t> means(static_cast<std::size_t>(count));
                averageSquares(rep->view(), 0, 0, count, level, means.data());
                blendRun({blended.data(), means.data(), 0, nullptr, count}, CompositingOperation::SourceOver, 255);
                averageSquaresOver(rep->view(), 0, 0, count, level, drawn.data());
                ASSERT_EQ(drawn, blended) << "level " << level << ", " << count;
            }
    });
}

TEST(Halving, OfWhiteIsWhite)
{
    test::onEveryTarget([] {
        const auto rep = BitmapRep::create(16 * 70, 16);
        for (int y = 0; y < 16; ++y) std::fill_n(rep->view().row(y), 16 * 70, ~0u);
        for (int level = 1; level <= kMostHalvings; ++level) {
            std::vector<std::uint32_t> means(70);
            averageSquares(rep->view(), 0, 0, 70, level, means.data());
            for (const std::uint32_t mean : means) ASSERT_EQ(mean, ~0u);
        }
    });
}

} // namespace
