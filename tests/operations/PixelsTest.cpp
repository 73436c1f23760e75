// SPDX-License-Identifier: GPL-3.0-or-later
/// Single pixels, mask bytes, clean-ups of transparency, and the older fills and wands.
#include "operations/PixelAccess.h"
#include "support/ToolFixture.h"

namespace
{

using namespace zp;
using namespace zp::test;

class Pixels : public ToolTest
{
protected:
    /// A fill or wand asks for the tolerance, as each does for those after it.
    void askTolerance()
    {
        edit([](Edit& e) { e.paint().refreshTolerance(); });
    }
    std::vector<std::uint8_t> maskBytes()
    {
        std::vector<std::uint8_t> bytes;
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 200; ++x) bytes.push_back(mask(x, y));
        return bytes;
    }
};

TEST_F(Pixels, AreReadAndWrittenAtTruncatedCoordinates)
{
    performNumbers("setColor:atPoint:", {double(0x11223344), 5.9, 7.9});
    EXPECT_EQ(pixel(5, 7), 0x11223344u);
    EXPECT_EQ(colorAtPoint(picture().pixels(), {5.2f, 7.2f}), 0x11223344u);
    edit([](Edit& e) { setColor(e.writeAll(), 0x55667788, {5.9f, 7.1f}); });
    EXPECT_EQ(pixel(5, 7), 0x55667788u);
}

TEST_F(Pixels, OutsideThePictureNoneIsWritten)
{
    takeSounds();
    for (const Point p : {Point{-1, 5}, {5, -1}, {200, 5}, {5, 100}, {NAN, 5}, {1e9f, 1e9f}})
        EXPECT_FALSE(performNumbers("setColor:atPoint:", {0, p.x, p.y}));
    EXPECT_EQ(takeSounds(), Lines(6, "beep"));
    EXPECT_EQ(countPixels(kWhiteWord), 20'000u);
}

TEST_F(Pixels, ToleranceIsKeptUntilItIsRefreshed)
{
    const auto refreshed = [this] {
        askTolerance();
        return paint().tolerance();
    };
    document->setToleranceSetting(50);
    EXPECT_EQ(refreshed(), 64);
    document->setToleranceSetting(100);
    EXPECT_EQ(paint().tolerance(), 64);
    EXPECT_EQ(refreshed(), 128);
    document->setToleranceSetting(0);
    askTolerance();
    EXPECT_FALSE(compareColor(paint(), 0x01020304, 0x01020304));
    document->setToleranceSetting(1);
    askTolerance();
    EXPECT_TRUE(compareColor(paint(), 0x01020304, 0x01020304));
}

TEST_F(Pixels, MaskIsInvertedWhole)
{
    edit([](Edit& e) {
        SelectionMask& mask = e.selection().rawMask();
        mask.select(3, 4);
        mask.writable().data[0] = 77;
    });
    EXPECT_EQ(mask(3, 4), 0);
    perform("inverseMask");
    EXPECT_EQ(mask(3, 4), 255);
    EXPECT_EQ(mask(0, 0), 0);
    perform("inverseMask");
    EXPECT_EQ(mask(3, 4), 0);
    EXPECT_EQ(mask(0, 0), 255);
    EXPECT_EQ(mask(199, 99), 255);
}

TEST_F(Pixels, OlderFillsLookForTheColourThatIsThereAndWriteThePaintColour)
{
    fillBox({50, 0, 51, 100}, kBlackWord);
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(5);
    performNumbers("floodFillScanlineStack:", {10, 10});
    EXPECT_EQ(countPixels(kRedWord), 5000u);
    document->setPaintColor(kWhite);
    takeSounds();
    performNumbers("floodFill4Stack:", {10, 10});
    EXPECT_EQ(countPixels(kRedWord), 0u);
    EXPECT_EQ(takeSounds(), Lines{"Ping"});
    // Colour and target alike within the tolerance.
    performNumbers("floodFill4Stack:", {10, 10});
    EXPECT_EQ(countPixels(kWhiteWord), 19'900u);
    EXPECT_TRUE(takeSounds().empty());
}

TEST_F(Pixels, TheSlowWandSelectsTheSameWithTheCachedTolerance)
{
    fillBox({30, 20, 70, 50}, kBlackWord);
    choose(Tool::Wand);
    gestureThrough({{40, 30}});
    const std::vector<std::uint8_t> fast = maskBytes();
    EXPECT_EQ(std::ranges::count(fast, 0), 1200);
    perform("clearSelectionMask");
    EXPECT_NE(maskBytes(), fast);
    document->setToleranceSetting(0); // not looked at
    performNumbers("magicWand:", {40, 30});
    EXPECT_EQ(maskBytes(), fast);
    EXPECT_FALSE(selection().mask().isClear());
}

TEST_F(Pixels, ThePaintingWandLooksForItsTargetInTheOtherByteOrder)
{
    // What is there is remembered as a colour and looked for with its bytes the other way round: only a colour that
    // reads the same in both orders is found.
    askTolerance();
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(5);
    fillImage(word(255, 51, 102, 153));
    performNumbers("magicWandOver:", {10, 10});
    EXPECT_EQ(countPixels(kRedWord), 0u);
    const std::uint32_t symmetric = word(255, 60, 200, 60);
    fillImage(symmetric);
    performNumbers("magicWandOver:", {10, 10});
    EXPECT_EQ(countPixels(kRedWord), 20'000u);
    EXPECT_EQ(mask(199, 99), 0);
    EXPECT_FALSE(selection().mask().isClear());
}

TEST_F(Pixels, FillsAtPointsOutsideBeep)
{
    document->setPaintColor({1, 0, 0, 1});
    const char* const actions[] = {
        "floodFillScanlineStackFast:", "floodFillScanlineStack:", "floodFill4Stack:", "magicWand:", "magicWandOver:"};
    takeSounds();
    for (const Point p : {Point{-1, 5}, Point{5, -30}, Point{200, 5}, Point{1e9f, 1e9f}, Point{NAN, 3}})
        for (const char* action : actions) EXPECT_FALSE(performNumbers(action, {p.x, p.y})) << action << p.x;
    EXPECT_EQ(takeSounds(), Lines(5 * std::size(actions), "beep"));
    EXPECT_EQ(countPixels(kWhiteWord), 20'000u);
    EXPECT_TRUE(selection().mask().isClear());
}

TEST_F(Pixels, CleanUpPasses)
{
    setPixel(0, 0, word(254, 9, 9, 9));
    setPixel(1, 0, word(255, 0, 0, 0));
    setPixel(2, 0, word(255, 255, 0, 255));
    perform("makeBGBlack");
    EXPECT_EQ(pixel(0, 0), 0u);
    EXPECT_EQ(pixel(1, 0), word(255, 0, 0, 0));
    perform("magentaClear");
    EXPECT_EQ(pixel(1, 0), 0u);
    EXPECT_EQ(pixel(2, 0), word(255, 255, 0, 255));
}

} // namespace
