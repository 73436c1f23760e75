// SPDX-License-Identifier: GPL-3.0-or-later
/// Where a watermark lands and how strongly.
#include "batch/WatermarkDrawing.h"
#include <gtest/gtest.h>

using namespace zp;

namespace
{
constexpr std::uint32_t kInk = 0x302010FF, kPaper = 0x646464FF;

std::shared_ptr<BitmapRep> sheet(int width, int height, std::uint32_t fill)
{
    auto rep = BitmapRep::create(width, height);
    for (int y = 0; y < height; ++y) std::fill_n(rep->view().row(y), width, fill);
    return rep;
}
} // namespace

TEST(Watermark, ThePointIsItsLowerLeftCornerCountedFromTheImages)
{
    const auto image = sheet(20, 16, kPaper), mark = sheet(4, 3, kInk);
    drawWatermark(image->view(), mark->view(), sizeInPoints(*mark), {2, 5}, 1);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 20; ++x) {
            const bool inside = x >= 2 && x < 6 && y >= 16 - 5 - 3 && y < 16 - 5;
            ASSERT_EQ(image->view().row(y)[x], inside ? kInk : kPaper) << x << "," << y;
        }
}

TEST(Watermark, WhatFallsOutsideIsCut)
{
    const auto image = sheet(10, 10, kPaper), mark = sheet(6, 6, kInk);
    drawWatermark(image->view(), mark->view(), sizeInPoints(*mark), {-3, -3}, 1);
    EXPECT_EQ(image->view().row(9)[0], kInk);
    EXPECT_EQ(image->view().row(7)[2], kInk);
    EXPECT_EQ(image->view().row(6)[0], kPaper);
    EXPECT_EQ(image->view().row(9)[3], kPaper);
}

TEST(Watermark, OpacityNothingChangesNothingAndMoreThanAllIsAll)
{
    const auto image = sheet(6, 6, kPaper), mark = sheet(6, 6, kInk);
    drawWatermark(image->view(), mark->view(), sizeInPoints(*mark), {0, 0}, 0);
    EXPECT_EQ(image->view().row(3)[3], kPaper);
    drawWatermark(image->view(), mark->view(), sizeInPoints(*mark), {0, 0}, 3.5f);
    EXPECT_EQ(image->view().row(3)[3], kInk);
}

TEST(Watermark, ItsSizeIsInPoints)
{
    const auto mark = sheet(30, 12, kInk);
    EXPECT_EQ(sizeInPoints(*mark), (Size{30, 12}));
    mark->properties.xDpi = 144, mark->properties.yDpi = 72;
    EXPECT_EQ(sizeInPoints(*mark), (Size{15, 12}));
    mark->properties.xDpi = 1; // a slip, not a size
    EXPECT_EQ(sizeInPoints(*mark), (Size{30, 12}));
}
