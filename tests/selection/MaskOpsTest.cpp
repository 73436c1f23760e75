// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection mask's whole-picture operations.
#include "selection/MaskOps.h"
#include "base/BitmapRep.h"
#include "selection/MaskPictures.h"
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

using namespace zp;

TEST(MaskOps, SettingLeavesTheBytesBetweenRowsAlone)
{
    std::vector<std::uint8_t> bytes(10 * 3, 7);
    fillMask({bytes.data(), 6, 3, 10}, 0);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 10; ++x) EXPECT_EQ(bytes[std::size_t(y * 10 + x)], x < 6 ? 0 : 7);
    fillMask({}, 0); // nothing to set, nothing happens
}

TEST(MaskOps, InvertingTurnsEveryValueOver)
{
    TestMask mask(256, 2);
    for (int i = 0; i < 512; ++i) mask.bytes[std::size_t(i)] = std::uint8_t(i);
    invertMask(mask.view());
    for (int i = 0; i < 512; ++i) EXPECT_EQ(mask.bytes[std::size_t(i)], 255 - i % 256);
}

TEST(MaskOps, APathOnWholePixelsSelectsExactlyThem)
{
    TestMask mask(8, 5);
    renderPathInMask(mask.view(), BezierPath::withRect(makeRect(2, 1, 3, 2)), kSelected);
    EXPECT_EQ(mask.text(), "......../..###.../..###.../......../........");
    renderPathInMask(mask.view(), BezierPath::withRect(makeRect(3, 0, 1, 2)), kNotSelected);
    EXPECT_EQ(mask.text(), "......../..#.#.../..###.../......../........");
}

TEST(MaskOps, EdgesWithinPixelsGetValuesBetween)
{
    TestMask mask(4, 1);
    renderPathInMask(mask.view(), BezierPath::withRect(makeRect(0.5f, 0, 2, 1)), kSelected);
    EXPECT_NEAR(mask.bytes[0], 128, 2);
    EXPECT_EQ(mask.bytes[1], 0);
    EXPECT_NEAR(mask.bytes[2], 128, 2);
    EXPECT_EQ(mask.bytes[3], 255);
}

TEST(MaskOps, DoublyCoveredLoopsAreNotSelected)
{
    BezierPath twice = BezierPath::withRect(makeRect(0, 0, 6, 6));
    twice.appendRect(makeRect(2, 2, 2, 2)); // turns the same way: only even-odd leaves it out
    ASSERT_EQ(twice.windingRule(), WindingRule::NonZero);
    TestMask mask(6, 6);
    renderPathInMask(mask.view(), twice, kSelected);
    EXPECT_EQ(mask.text(), "######/######/##..##/##..##/######/######");
}

TEST(MaskOps, PathsBeyondTheMaskAreCut)
{
    TestMask mask(5, 3);
    renderPathInMask(mask.view(), BezierPath::withRect(makeRect(-1e6f, 1, 2e6f, 1e6f)), kSelected);
    EXPECT_EQ(mask.text(), "...../#####/#####");
    renderPathInMask(mask.view(), BezierPath::withRect(makeRect(100, 100, 5, 5)), kNotSelected);
    EXPECT_EQ(mask.text(), "...../#####/#####");
    renderPathInMask({}, BezierPath::withRect(makeRect(0, 0, 5, 5)), kSelected);
    renderPathInMask(mask.view(), BezierPath{}, kNotSelected);
    EXPECT_EQ(mask.text(), "...../#####/#####");
}

TEST(MaskOps, TintChangesThreeBytesOfUnselectedPixelsOnly)
{
    const auto bitmap = BitmapRep::create(256, 3);
    ASSERT_TRUE(bitmap);
    TestMask mask(256, 3);
    for (int x = 0; x < 256; ++x) {
        for (int y = 0; y < 3; ++y) std::memset(bitmap->view().pixel(x, y), x, 4);
        mask.bytes[std::size_t(x)] = 254;     // row 0: partly selected counts as selected
        mask.bytes[std::size_t(256 + x)] = 0; // row 1: selected
    }
    tintUnselected(bitmap->view(), mask.view());
    for (int x = 0; x < 256; ++x) {
        for (int y = 0; y < 2; ++y)
            for (int b = 0; b < 4; ++b) ASSERT_EQ(bitmap->view().pixel(x, y)[b], x);
        const std::uint8_t* p = bitmap->view().pixel(x, 2);
        ASSERT_EQ(p[0], int(std::round(x * 0.7 + 5.7)));
        ASSERT_EQ(p[1], int(std::round(x * 0.7 + 73.5)));
        ASSERT_EQ(p[2], int(std::round(x * 0.7 + 39.6)));
        ASSERT_EQ(p[3], x);
    }
}
