// SPDX-License-Identifier: GPL-3.0-or-later
/// Where the picture sits in another size, and pixels that stay sharp.
#include "support/DocumentFixture.h"

using namespace zp;
using namespace zp::test;

namespace
{

class ResizePlace : public DocumentTest
{
protected:
    ResizePlace()
    {
        makeImage(4, 2);
        edit([](Edit& e) {
            const BitmapView all = e.writeAll();
            for (int y = 0; y < 2; ++y)
                for (int x = 0; x < 4; ++x) all.row(y)[x] = word(255, std::uint8_t(10 * y + x), 0, 0);
        });
    }
};

TEST_F(ResizePlace, EachOfNinePlacesIsReached)
{
    for (int place = 0; place < 9; ++place) {
        makeImage(4, 2);
        edit([](Edit& e) { e.writeAll().row(0)[0] = kRedWord; });
        performNumbers("setImageSize:scale:", {10, 8, 0, double(place)});
        const int x = place % 3 * 3, y = place / 3 * 3;
        EXPECT_EQ(pixel(x, y), kRedWord) << place;
        EXPECT_EQ(countPixels(kRedWord), 1u);
        settle();
    }
}

TEST_F(ResizePlace, WhatIsCutIsCutAroundThePlace)
{
    performNumbers("setImageSize:scale:", {2, 2, 0, 4});
    EXPECT_EQ(channelOf(pixel(0, 0), 1), 1);
    EXPECT_EQ(channelOf(pixel(1, 1), 1), 12);
}

TEST_F(ResizePlace, SharpPixelsStaySquares)
{
    performNumbers("setImageSize:scale:", {12, 6, 1, 0, 1});
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 12; ++x) EXPECT_EQ(channelOf(pixel(x, y), 1), 10 * (y / 3) + x / 3) << x << " " << y;
    settle();
    performNumbers("setImageSize:scale:", {4, 2, 1, 0, 1});
    EXPECT_EQ(channelOf(pixel(3, 1), 1), 13) << "and come back";
}

} // namespace
