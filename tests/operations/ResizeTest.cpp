// SPDX-License-Identifier: GPL-3.0-or-later
/// Resizing the image, scaled and not, and sizes that are refused.
#include "desktop/Panels.h"
#include "support/DocumentFixture.h"
#include <limits>

using namespace zp;
using namespace zp::test;

namespace
{

class ResizeImage : public DocumentTest
{
protected:
    Outcome setImageSize(const Size& size, bool scale)
    {
        return performNumbers("setImageSize:scale:", {size.width, size.height, double(scale)});
    }
};

TEST_F(ResizeImage, ExtendingLeavesTheNewPartTransparent)
{
    makeImage(100, 100);
    fillImage(word(255, 10, 20, 30));
    setImageSize({200, 100}, false);
    EXPECT_EQ(picture().size(), (Size{200, 100}));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 200; ++x) ASSERT_EQ(pixel(x, y), x < 100 ? word(255, 10, 20, 30) : 0u) << x << "," << y;
}

TEST_F(ResizeImage, CuttingKeepsTheTopLeft)
{
    makeImage(60, 50);
    paintImage([](int x, int y) { return word(255, x, y, 0); });
    setImageSize({17, 9}, false);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 17; ++x) ASSERT_EQ(pixel(x, y), word(255, x, y, 0));
}

TEST_F(ResizeImage, ScalingToTheSameSizeKeepsEveryByte)
{
    makeImage(77, 33);
    paintImage([](int x, int y) { return word(200, 2 * x, y, 7); });
    const auto before = allPixels();
    setImageSize({77, 33}, true);
    EXPECT_EQ(picture().size(), (Size{77, 33}));
    EXPECT_EQ(allPixels(), before);
}

TEST_F(ResizeImage, ScalingDownAveragesAndUpKeepsFlatColour)
{
    makeImage(40, 40);
    paintImage([](int x, int y) { return (x + y) % 2 ? word(255, 255, 0, 100) : word(255, 0, 0, 200); });
    setImageSize({20, 20}, true);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) ASSERT_EQ(pixel(x, y), word(255, 128, 0, 150));
    settle();
    setImageSize({63, 41}, true);
    for (int y = 0; y < 41; ++y)
        for (int x = 0; x < 63; ++x) ASSERT_EQ(pixel(x, y), word(255, 128, 0, 150));
}

TEST_F(ResizeImage, BuffersRowsAndWidgetFollow)
{
    makeImage(64, 64);
    setImageSize({160, 90}, true);
    EXPECT_EQ(picture().bitmap()->bytesPerRow(), 64 * 10 + 64);
    EXPECT_EQ(picture().bitmapPointer(), picture().bitmap()->bitmapData());
    ASSERT_TRUE(picture().gworld());
    EXPECT_EQ(picture().gworld()->pixels.data, picture().bitmapPointer());
    EXPECT_TRUE(picture().image().isFlipped());
    EXPECT_EQ(picture().image().representations().at(0).bitmap, picture().bitmap());
    EXPECT_EQ(canvas->size(), QSize(160, 90));
    EXPECT_EQ(selection().mask().width(), 160);
    EXPECT_EQ(selection().mask().height(), 90);
}

TEST_F(ResizeImage, TheSelectionIsGone)
{
    makeImage(50, 50);
    perform("selectAll:");
    renderMask();
    edit([](Edit& e) { e.selection().park(SetOperation::Union); });
    setImageSize({30, 30}, true);
    EXPECT_TRUE(selection().isNil());
    EXPECT_FALSE(selection().parked());
    EXPECT_FALSE(selection().antsMarch());
    EXPECT_TRUE(selection().mask().isClear());
}

TEST_F(ResizeImage, TakesASnapshotOnTopOfTheOthers)
{
    makeImage(50, 50);
    const int before = history().newest();
    setImageSize({30, 30}, true);
    settle();
    EXPECT_EQ(history().newest(), before + 1);
}

TEST_F(ResizeImage, WhatTheFileSaidStays)
{
    makeImage(50, 50);
    edit([](Edit& e) {
        e.picture().writableBitmap()->properties.xDpi = 300;
        e.picture().writableBitmap()->properties.userComment = "a comment";
    });
    setImageSize({25, 25}, true);
    EXPECT_EQ(picture().bitmap()->properties.xDpi, 300);
    EXPECT_EQ(picture().bitmap()->properties.userComment, "a comment");
}

TEST_F(ResizeImage, RefusedSizesChangeNothing)
{
    makeImage(50, 40);
    perform("selectAll:");
    const auto rep = picture().bitmap();
    const int before = history().newest();
    const SilencedPanels nobodyThere;
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    for (const Size& size : {Size{0, 10}, Size{10, 0}, Size{-5, 10}, Size{30001, 10}, Size{30000, 30000 * 2},
                             Size{nan, 10}, Size{10, inf}, Size{0.9f, 10}, Size{3e38f, 3e38f}})
        for (const bool scale : {false, true}) {
            EXPECT_FALSE(setImageSize(size, scale));
            EXPECT_EQ(picture().bitmap(), rep) << double(size.width) << " x " << double(size.height);
        }
    settle();
    EXPECT_FALSE(selection().isNil());
    EXPECT_EQ(history().newest(), before);
    EXPECT_EQ(picture().size(), (Size{50, 40}));
}

} // namespace
