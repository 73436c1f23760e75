// SPDX-License-Identifier: GPL-3.0-or-later
/// Single pixels, mask bytes and the older fills and wands as operations of the canvas.
#include "support/ToolFixture.h"
#include "tools/PixelCompare.h"

namespace
{

using namespace zp;
using namespace zp::test;

class Pixels : public ToolTest
{
};

TEST_F(Pixels, AreReadAndWrittenAtTruncatedCoordinates)
{
    canvas->setColor(0x11223344, {5.9f, 7.9f});
    EXPECT_EQ(word(5, 7), 0x11223344u);
    EXPECT_EQ(canvas->colorAtPoint({5.2f, 7.2f}), 0x11223344u);
    EXPECT_EQ(canvas->colorAtPoint({5.2f, 7.2f}, true), 0x11223344u);
    canvas->setColor(0x55667788, {5, 7}, true);
    EXPECT_EQ(word(5, 7), 0x55667788u);
}

TEST_F(Pixels, ToleranceIsKeptUntilItIsRefreshed)
{
    slider.setValue(50);
    EXPECT_EQ(canvas->tol2(true), 64);
    slider.setValue(100);
    EXPECT_EQ(canvas->tol2(false), 64);
    EXPECT_EQ(canvas->tol2(true), 128);
    slider.setValue(0);
    canvas->tol2(true);
    EXPECT_FALSE(canvas->compareColor(0x01020304, 0x01020304));
    slider.setValue(1);
    canvas->tol2(true);
    EXPECT_TRUE(canvas->compareColor(0x01020304, 0x01020304));
}

TEST_F(Pixels, MaskIsInvertedWhole)
{
    canvas->clearSelectionMask();
    canvas->setMaskPixel({3, 4});
    EXPECT_EQ(canvas->maskPixelAtPoint({3, 4}), 0);
    canvas->mSelectionMaskData[0] = 77;
    canvas->inverseMask();
    EXPECT_EQ(mask(3, 4), 255);
    EXPECT_EQ(mask(0, 0), 0);
    canvas->inverseMask();
    EXPECT_EQ(mask(3, 4), 0);
    EXPECT_EQ(mask(0, 0), 255);
    EXPECT_EQ(mask(199, 99), 255);
}

TEST_F(Pixels, OlderFillsUseTheColoursSetByTheirCaller)
{
    for (int y = 0; y < 100; ++y) canvas->mBitmapRep->view().row(y)[50] = kBlackWord;
    canvas->mOldColor = kWhite;
    canvas->mNewColor = {1, 0, 0, 1};
    canvas->mSize = 5;
    canvas->floodFillScanlineStack({10, 10});
    EXPECT_EQ(countWords(kRedWord), 5000u);
    canvas->mOldColor = {1, 0, 0, 1};
    canvas->mNewColor = kWhite;
    takeSounds();
    canvas->floodFill4Stack({10, 10});
    EXPECT_EQ(countWords(kRedWord), 0u);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"Ping"});
    canvas->mNewColor = {1, 0, 0, 1}; // colour and target alike within the tolerance
    canvas->floodFill4Stack({10, 10});
    EXPECT_EQ(countWords(kRedWord), 0u);
    EXPECT_TRUE(takeSounds().empty());
}

TEST_F(Pixels, TheSlowWandSelectsTheSameWithTheCachedTolerance)
{
    for (int y = 20; y < 50; ++y)
        for (int x = 30; x < 70; ++x) canvas->mBitmapRep->view().row(y)[x] = kBlackWord;
    canvas->clearSelectionMask();
    canvas->magicWandFast({40, 30});
    std::vector<std::uint8_t> fast(canvas->mSelectionMaskData.get(), canvas->mSelectionMaskData.get() + 20'000);
    canvas->clearSelectionMask();
    slider.setValue(0); // not looked at
    canvas->magicWand({40, 30});
    EXPECT_TRUE(std::equal(fast.begin(), fast.end(), canvas->mSelectionMaskData.get()));
    EXPECT_FALSE(canvas->mSelectionMaskClear);
}

TEST_F(Pixels, ThePaintingWandLooksForItsTargetInTheOtherByteOrder)
{
    canvas->tol2(true);
    canvas->mOldColor = {0.2f, 0.4f, 0.6f, 1};
    canvas->mNewColor = {1, 0, 0, 1};
    canvas->mSize = 5;
    fillWith(packColor(canvas->mOldColor));
    canvas->clearSelectionMask();
    canvas->magicWandOver({10, 10});
    EXPECT_EQ(countWords(kRedWord), 0u); // the canvas' own order does not match
    fillWith(packColorRedFirst(canvas->mOldColor));
    canvas->magicWandOver({10, 10});
    EXPECT_EQ(countWords(kRedWord), 20'000u);
    EXPECT_EQ(mask(199, 99), 0);
    EXPECT_FALSE(canvas->mSelectionMaskClear);
}

TEST_F(Pixels, FillsAtPointsOutsideDoNothing)
{
    canvas->mColor = {1, 0, 0, 1};
    for (const Point p : {Point{-1, 5}, Point{5, -30}, Point{200, 5}, Point{1e9f, 1e9f}, Point{NAN, 3}}) {
        canvas->floodFillScanlineStackFast(p);
        canvas->floodFillScanlineStack(p);
        canvas->floodFill4Stack(p);
        canvas->magicWandFast(p);
        canvas->magicWand(p);
        canvas->magicWandOver(p);
    }
    EXPECT_EQ(countWords(kWhiteWord), 20'000u);
}

} // namespace
