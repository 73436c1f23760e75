// SPDX-License-Identifier: GPL-3.0-or-later
/// Resizing the image, scaled and not, and sizes that are refused.
#include "desktop/Panels.h"
#include "support/CanvasFixture.h"
#include <limits>

using namespace zp;
using zp::test::word;

namespace
{

class ResizeImage : public zp::test::CanvasTest
{
};

TEST_F(ResizeImage, ExtendingLeavesTheNewPartTransparent)
{
    makeImage(100, 100);
    fillImage(word(255, 10, 20, 30));
    canvas->setImageSize({200, 100}, false);
    EXPECT_EQ(canvas->imageSize(), (Size{200, 100}));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 200; ++x) ASSERT_EQ(pixel(x, y), x < 100 ? word(255, 10, 20, 30) : 0u) << x << "," << y;
}

TEST_F(ResizeImage, CuttingKeepsTheTopLeft)
{
    makeImage(60, 50);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 60; ++x) setPixel(x, y, word(255, std::uint8_t(x), std::uint8_t(y), 0));
    canvas->setImageSize({17, 9}, false);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 17; ++x) ASSERT_EQ(pixel(x, y), word(255, std::uint8_t(x), std::uint8_t(y), 0));
}

TEST_F(ResizeImage, ScalingToTheSameSizeKeepsEveryByte)
{
    makeImage(77, 33);
    for (int y = 0; y < 33; ++y)
        for (int x = 0; x < 77; ++x) setPixel(x, y, word(200, std::uint8_t(2 * x), std::uint8_t(y), 7));
    canvas->setImageSize({77, 33}, true);
    for (int y = 0; y < 33; ++y)
        for (int x = 0; x < 77; ++x) ASSERT_EQ(pixel(x, y), word(200, std::uint8_t(2 * x), std::uint8_t(y), 7));
}

TEST_F(ResizeImage, ScalingDownAveragesAndUpKeepsFlatColour)
{
    makeImage(40, 40);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) setPixel(x, y, (x + y) % 2 ? word(255, 255, 0, 100) : word(255, 0, 0, 200));
    canvas->setImageSize({20, 20}, true);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) ASSERT_EQ(pixel(x, y), word(255, 128, 0, 150));
    settle();
    canvas->setImageSize({63, 41}, true);
    for (int y = 0; y < 41; ++y)
        for (int x = 0; x < 63; ++x) ASSERT_EQ(pixel(x, y), word(255, 128, 0, 150));
}

TEST_F(ResizeImage, BuffersRowsAndWidgetFollow)
{
    makeImage(64, 64);
    canvas->setImageSize({160, 90}, true);
    EXPECT_EQ(canvas->mBitmapRep->bytesPerRow(), 64 * 10 + 64);
    EXPECT_EQ(canvas->mBitmap, canvas->mBitmapRep->bitmapData());
    ASSERT_TRUE(canvas->mGWorld.has_value());
    EXPECT_EQ(canvas->mGWorld->pixels.data, canvas->mBitmap);
    EXPECT_TRUE(canvas->mImage->isFlipped());
    EXPECT_EQ(canvas->mImage->representations().at(0).bitmap, canvas->mBitmapRep);
    EXPECT_EQ(canvas->size(), QSize(160, 90));
    EXPECT_EQ(canvas->mSelectionMask->width, 160);
    EXPECT_EQ(canvas->mSelectionMask->height, 90);
}

TEST_F(ResizeImage, TheSelectionIsGone)
{
    makeImage(50, 50);
    canvas->selectAll();
    canvas->mAuxSelectionPath = BezierPath::withRect(makeRect(0, 0, 5, 5));
    canvas->setImageSize({30, 30}, true);
    EXPECT_TRUE(canvas->selectionNil());
    EXPECT_FALSE(canvas->mAuxSelectionPath.has_value());
    EXPECT_EQ(canvas->mSelectionTimer, nullptr);
    EXPECT_TRUE(canvas->mSelectionMaskClear);
}

TEST_F(ResizeImage, TakesASnapshotOnTopOfTheOthers)
{
    makeImage(50, 50);
    const int before = canvas->mUndoIndex;
    canvas->setImageSize({30, 30}, true);
    settle();
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
}

TEST_F(ResizeImage, WhatTheFileSaidStays)
{
    makeImage(50, 50);
    canvas->mBitmapRep->properties.xDpi = 300;
    canvas->mBitmapRep->properties.userComment = "a comment";
    canvas->setImageSize({25, 25}, true);
    EXPECT_EQ(canvas->mBitmapRep->properties.xDpi, 300);
    EXPECT_EQ(canvas->mBitmapRep->properties.userComment, "a comment");
}

TEST_F(ResizeImage, RefusedSizesChangeNothing)
{
    makeImage(50, 40);
    canvas->selectAll();
    const auto rep = canvas->mBitmapRep;
    const int before = canvas->mUndoIndex;
    const SilencedPanels nobodyThere;
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    for (const Size& size : {Size{0, 10}, Size{10, 0}, Size{-5, 10}, Size{30001, 10}, Size{30000, 30000 * 2},
                             Size{nan, 10}, Size{10, inf}, Size{0.9f, 10}, Size{3e38f, 3e38f}})
        for (const bool scale : {false, true}) {
            canvas->setImageSize(size, scale);
            EXPECT_EQ(canvas->mBitmapRep, rep) << double(size.width) << " x " << double(size.height);
        }
    settle();
    EXPECT_FALSE(canvas->selectionNil());
    EXPECT_EQ(canvas->mUndoIndex, before);
    EXPECT_EQ(canvas->imageSize(), (Size{50, 40}));
}

} // namespace
