// SPDX-License-Identifier: GPL-3.0-or-later
/// Painting through a mask.
#include "tools/MaskMix.h"
#include "tools/TestPicture.h"
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace
{

using namespace zp;
using namespace zp::test;

/// Any colour that its alpha allows.
std::uint32_t anyWord(std::mt19937& random)
{
    const std::uint32_t alpha = random() % 256;
    const auto colour = [&] { return std::uint32_t(random()) % (alpha + 1); };
    return alpha | colour() << 8 | colour() << 16 | colour() << 24;
}

int channel(std::uint32_t word, int c) { return int(word >> (8 * c) & 255); }

TEST(MaskMix, MixesInProportionInsideTheBoxOnly)
{
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        constexpr int kWidth = 23, kHeight = 17;
        Picture picture(kWidth, kHeight);
        Mask mask(kWidth, kHeight);
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) {
                picture.at(x, y) = anyWord(random);
                const unsigned kind = random() % 3;
                mask.at(x, y) = std::uint8_t(kind == 0 ? 0 : kind == 1 ? 255 : random() % 256);
            }
        const Picture before = picture;
        PixelBox box{int(random() % kWidth), int(random() % kHeight), 0, 0};
        box.x1 = box.x0 + int(random() % unsigned(kWidth - box.x0 + 1));
        box.y1 = box.y0 + int(random() % unsigned(kHeight - box.y0 + 1));
        Picture changed(std::max(1, box.width()), std::max(1, box.height()));
        for (int y = 0; y < changed.height(); ++y)
            for (int x = 0; x < changed.width(); ++x) changed.at(x, y) = anyWord(random);

        BitmapView part = changed.view();
        part.width = box.width(), part.height = box.height();
        mixThroughMask(picture.view(), part, mask.view(), box);
        Picture old = before;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x) {
                const std::uint32_t was = old.at(x, y), is = picture.at(x, y);
                if (!box.contains(x, y)) {
                    ASSERT_EQ(is, was);
                    continue;
                }
                const std::uint32_t paint = changed.at(x - box.x0, y - box.y0);
                const int m = mask.at(x, y);
                if (m == 0) {
                    ASSERT_EQ(is, paint);
                }
                if (m == 255) {
                    ASSERT_EQ(is, was);
                }
                for (int c = 0; c < 4; ++c) {
                    const double exact = (channel(paint, c) * (255.0 - m) + channel(was, c) * double(m)) / 255;
                    ASSERT_EQ(channel(is, c), int(std::floor(exact + 0.5))) << "rounded, channel " << c;
                    ASSERT_LE(channel(is, c), channel(is, 0)) << "colour stays at most alpha";
                }
            }
        ASSERT_TRUE(picture.spareUntouched());
    }
}

TEST(MaskMix, AMaskReachesWhereAnyByteLetsThrough)
{
    struct Case {
        PixelPoint free;
        PixelBox box;
        bool reaches;
    };
    for (const Case& c : {Case{{5, 5}, {0, 0, 10, 8}, true},
                          {{5, 5}, {5, 5, 6, 6}, true},
                          {{5, 5}, {0, 0, 5, 8}, false},
                          {{5, 5}, {6, 0, 10, 8}, false},
                          {{5, 5}, {0, 0, 10, 5}, false},
                          {{5, 5}, {0, 6, 10, 8}, false},
                          {{9, 7}, {0, 0, 10, 8}, true},
                          {{9, 7}, {9, 7, 9, 8}, false},
                          {{9, 7}, {3, 3, 3, 3}, false}})
        for (const std::uint8_t value : {0, 254}) {
            Mask mask(10, 8, 255);
            mask.at(c.free.x, c.free.y) = value;
            EXPECT_EQ(maskReaches(mask.view(), c.box), c.reaches)
                << c.free.x << ", " << c.free.y << " by " << c.box.x0 << ", " << c.box.y0;
        }
    Mask shut(10, 8, 255);
    EXPECT_FALSE(maskReaches(shut.view(), {0, 0, 10, 8}));
}

} // namespace
