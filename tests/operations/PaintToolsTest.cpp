// SPDX-License-Identifier: GPL-3.0-or-later
/// The tools that paint, and the eyedropper, under the mouse.
#include "support/ToolFixture.h"

namespace
{

using namespace zp;
using namespace zp::test;

class PaintTools : public ToolTest
{
};

TEST_F(PaintTools, BucketFillsWithinTheSelectionAndTakesASnapshot)
{
    select(makeRect(10, 10, 20, 20));
    document->setPaintColor({1, 0, 0, 1});
    choose(Tool::Bucket);
    const int before = history().newest();
    press(15, 15);
    release(15, 15);
    settle();
    EXPECT_EQ(countPixels(kRedWord), 400u);
    EXPECT_EQ(pixel(10, 10), kRedWord);
    EXPECT_EQ(history().newest(), before + 1);
}

TEST_F(PaintTools, BucketOutsideTheSelectionOrThePictureFillsNothing)
{
    select(makeRect(10, 10, 20, 20));
    document->setPaintColor({1, 0, 0, 1});
    choose(Tool::Bucket);
    press(15, 30); // just below the selection
    release(15, 30);
    settle();
    press(-3, 5);
    release(-3, 5);
    press(200, 100);
    release(200, 100);
    settle();
    EXPECT_EQ(countPixels(kRedWord), 0u);
}

TEST_F(PaintTools, BucketBeepsWhereItsColourIsAlready)
{
    document->setPaintColor(kWhite);
    choose(Tool::Bucket);
    edit([](Edit& e) { e.paint().refreshTolerance(); }); // as a fill before has left it
    press(15, 15);
    settle();
    release(15, 15);
    EXPECT_EQ(takeSounds(), Lines{"beep"});
    EXPECT_EQ(countPixels(kWhiteWord), 20'000u);
}

TEST_F(PaintTools, BucketWithASliderAtZeroFillsNothing)
{
    document->setToleranceSetting(0);
    edit([](Edit& e) { e.paint().refreshTolerance(); });
    document->setPaintColor({1, 0, 0, 1});
    choose(Tool::Bucket);
    press(15, 15);
    settle();
    release(15, 15);
    EXPECT_EQ(countPixels(kWhiteWord), 20'000u);
    EXPECT_TRUE(takeSounds().empty());
}

TEST_F(PaintTools, EyedropperPicksWhileItIsDraggedAndOnlyInside)
{
    setPixel(5, 7, 0x000080FF); // red 128
    setPixel(6, 9, 0x00004080); // red 64 of alpha 128: half transparent
    choose(Tool::Eyedropper);
    press(5.5f, 7.9f);
    EXPECT_NEAR(paint().color().red, 128 / 255.0, 1e-6);
    drag(6, 9);
    EXPECT_NEAR(paint().color().red, 128 / 255.0, 0.003);
    EXPECT_NEAR(paint().color().alpha, 128 / 255.0, 1e-6);
    drag(-5, 5);
    drag(200, 5);
    EXPECT_NEAR(paint().color().alpha, 128 / 255.0, 1e-6);
    release(200, 5);
}

TEST_F(PaintTools, PencilStrokesItsPathInTheColour)
{
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(6);
    choose(Tool::Pencil);
    const int before = history().newest();
    press(20, 30);
    ASSERT_TRUE(gesture().pencilPath());
    EXPECT_EQ(gesture().pencilPath()->lineWidth(), 6);
    drag(60, 30);
    drag(60, 60);
    EXPECT_EQ(countPixels(kWhiteWord), 20'000u); // only the release writes pixels
    release(60, 60);
    EXPECT_FALSE(gesture().pencilPath());
    settle();
    EXPECT_EQ(pixel(40, 30), kRedWord);
    EXPECT_EQ(pixel(60, 45), kRedWord);
    EXPECT_EQ(pixel(40, 45), kWhiteWord);
    EXPECT_EQ(history().newest(), before + 1);
}

TEST_F(PaintTools, ShiftPencilDrawsOneStraightLine)
{
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(4);
    choose(Tool::Pencil);
    hold(kShiftKey);
    press(20, 20);
    EXPECT_FALSE(gesture().pencilPath());
    drag(60, 90);
    hold(0);
    drag(100, 20);
    release(100, 20);
    settle();
    EXPECT_EQ(pixel(60, 20), kRedWord);
    EXPECT_EQ(pixel(60, 80), kWhiteWord);
    EXPECT_EQ(pixel(40, 55), kWhiteWord);
}

TEST_F(PaintTools, PencilStaysInTheSelection)
{
    select(makeRect(0, 0, 50, 100));
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(4);
    choose(Tool::Pencil);
    press(20, 20);
    drag(90, 20);
    release(90, 20);
    settle();
    EXPECT_EQ(pixel(49, 20), kRedWord);
    EXPECT_EQ(pixel(50, 20), kWhiteWord);
}

TEST_F(PaintTools, EraserClearsExactlyTheStrokedPixels)
{
    document->setBrushSize(6);
    choose(Tool::Eraser);
    press(20, 30);
    drag(60, 30);
    release(60, 30);
    settle();
    EXPECT_EQ(pixel(40, 30), 0u);
    EXPECT_EQ(pixel(40, 28), 0u);
    EXPECT_EQ(pixel(40, 34), kWhiteWord);
    EXPECT_EQ(pixel(10, 30), kWhiteWord);
    hold(kShiftKey);
    press(100, 80);
    drag(150, 80);
    release(150, 80);
    hold(0);
    settle();
    EXPECT_EQ(pixel(120, 80), 0u);
}

TEST_F(PaintTools, EraserBeyondThePictureIsCut)
{
    document->setBrushSize(30);
    choose(Tool::Eraser);
    press(-1000, -1000);
    drag(5, 5);
    drag(90'000, 70'000);
    release(90'000, 70'000);
    settle();
    EXPECT_EQ(pixel(5, 5), 0u);
    press(-500, 40);
    release(-500, 40);
    settle();
}

TEST_F(PaintTools, CloneStampCopiesFromItsReference)
{
    fillBox({20, 20, 40, 40}, kBlackWord);
    document->setBrushSize(10);
    choose(Tool::CloneStamp);
    hold(kOptionKey);
    press(30, 30);
    drag(31, 31);
    release(31, 31);
    EXPECT_EQ(gesture().cloneReference(), (Point{30, 30}));
    EXPECT_EQ(countPixels(kBlackWord), 400u); // a reference click paints nothing, even with an unsteady hand
    hold(0);
    const int before = history().newest();
    press(130, 60);
    drag(130, 60);
    release(130, 60);
    settle();
    EXPECT_EQ(pixel(130, 60), kBlackWord);
    EXPECT_EQ(pixel(127, 60), kBlackWord);
    EXPECT_EQ(pixel(136, 60), kWhiteWord);
    EXPECT_EQ(history().newest(), before + 1);
}

TEST_F(PaintTools, AReferenceClickWithoutAStampLeavesNoStepWhateverKeyIsLetGoFirst)
{
    document->setBrushSize(10);
    choose(Tool::CloneStamp);
    hold(kOptionKey);
    press(30, 30);
    hold(0); // the key is let go before the button
    release(30, 30);
    settle();
    expectNumbers(0, 0);
    press(100, 50); // a stamp that is not dragged stamps nothing
    release(100, 50);
    settle();
    expectNumbers(0, 0);
    press(100, 50);
    drag(101, 50);
    hold(kOptionKey);
    release(101, 50);
    settle();
    expectNumbers(1, 1);
}

TEST_F(PaintTools, EraserStaysInTheSelectionWithItsSoftEdge)
{
    select(makeRect(0, 0, 50.5f, 100));
    document->setBrushSize(6);
    choose(Tool::Eraser);
    gestureThrough({{20, 30}, {90, 30}});
    settle();
    EXPECT_EQ(pixel(49, 30), 0u);
    EXPECT_NEAR(int(pixel(50, 30) & 255), 128, 1);
    EXPECT_EQ(pixel(51, 30), kWhiteWord);
}

TEST_F(PaintTools, ClippedToNothingTheyBeepAndLeaveNoStep)
{
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(10);
    for (const Tool tool : {Tool::Brush, Tool::Pencil, Tool::Eraser, Tool::Bucket, Tool::CloneStamp}) {
        SCOPED_TRACE(int(tool));
        select(makeRect(300, 300, 20, 20)); // beside the picture
        choose(tool);
        takeSounds();
        gestureThrough({{20, 30}, {90, 30}});
        settle();
        EXPECT_EQ(takeSounds(), Lines{"beep"});
        expectNumbers(0, 0);
    }
    for (const Tool tool : {Tool::Brush, Tool::Pencil, Tool::Eraser}) {
        SCOPED_TRACE(int(tool));
        select(makeRect(100, 70, 20, 20)); // in the picture, beside the stroke
        choose(tool);
        takeSounds();
        gestureThrough({{20, 30}, {90, 30}});
        settle();
        EXPECT_EQ(takeSounds(), Lines{"beep"});
        expectNumbers(0, 0);
    }
    EXPECT_EQ(countPixels(kWhiteWord), 20'000u);
}

TEST_F(PaintTools, AFloatingPieceIsSettledInTheStepOfTheStroke)
{
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(4);
    choose(Tool::Pencil);
    for (const bool moved : {false, true}) {
        SCOPED_TRACE(moved);
        newImage(200, 100);
        fillBox({10, 10, 30, 30}, kBlackWord);
        select(makeRect(10, 10, 20, 20));
        lift();
        if (moved) performNumbers("nudge", {50, 0});
        const Rect bounds = outlineBounds();
        gestureThrough({{bounds.origin.x + 2, 20}, {bounds.origin.x + 18, 20}});
        settle();
        EXPECT_FALSE(floating());
        EXPECT_EQ(outlineBounds(), bounds) << "the outline stays for the command";
        EXPECT_EQ(pixel(int(bounds.origin.x) + 10, 20), kRedWord);
        EXPECT_EQ(pixel(65, 12), moved ? kBlackWord : kWhiteWord);
        EXPECT_EQ(pixel(12, 12), kBlackWord);
        expectNumbers(1, 1);
    }
}

} // namespace
