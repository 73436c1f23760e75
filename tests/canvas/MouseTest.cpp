// SPDX-License-Identifier: GPL-3.0-or-later
/// The tools under the mouse: what each press, drag and release does, and what is refused.
#include "support/ToolFixture.h"
#include <QScrollArea>
#include <QScrollBar>

namespace
{

using namespace zp;
using namespace zp::test;

class Mouse : public ToolTest
{
};

TEST_F(Mouse, DragWithTheRectangleSelectsAndFillsTheMask)
{
    canvas->setTool(0);
    press(10, 20);
    drag(30, 40);
    drag(60, 50);
    release(60, 50);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(10, 20, 50, 30));
    EXPECT_EQ(mask(10, 20), 0);
    EXPECT_EQ(mask(59, 49), 0);
    EXPECT_EQ(mask(60, 50), 255);
    EXPECT_TRUE(canvas->mSelectionTimer);
    EXPECT_EQ(info.text(), "{{10, 20}, {50, 30}}");
    EXPECT_TRUE(has(takeLogLines(), "60.000000  50.000000"));
}

TEST_F(Mouse, ReleaseAwayFromThePressIsADragEvenWithoutOne)
{
    canvas->setTool(0);
    press(10, 20);
    release(60, 50);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(10, 20, 50, 30));
}

TEST_F(Mouse, CommandMakesASquareAndControlAnOval)
{
    canvas->setTool(0);
    hold(kCommandKey);
    press(10, 10);
    drag(4, 30);
    release(4, 30);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(4, 10, 6, 6));
    hold(kControlKey);
    press(50, 10);
    drag(90, 40);
    release(90, 40);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_FALSE(canvas->mSelectionPath->contains({51, 11}));
    EXPECT_TRUE(canvas->mSelectionPath->contains({70, 25}));
}

TEST_F(Mouse, ClickWithTheRectangleDropsTheSelectionWithACue)
{
    select(makeRect(100, 50, 20, 20));
    canvas->setTool(0);
    press(10, 10);
    release(10, 10);
    EXPECT_FALSE(canvas->mSelectionPath);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"Frog"});
    EXPECT_EQ(mask(110, 60), 255);
    EXPECT_EQ(info.text(), "?");
}

TEST_F(Mouse, ShiftWithoutASelectionStartsAPlainOne)
{
    canvas->setTool(0);
    hold(kShiftKey);
    press(10, 10);
    EXPECT_FALSE(canvas->mAuxSelectionPath);
    drag(20, 20);
    release(20, 20);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(10, 10, 10, 10));
}

TEST_F(Mouse, ShiftAddsAndOptionSubtracts)
{
    select(makeRect(10, 10, 20, 20));
    canvas->setTool(0);
    hold(kShiftKey);
    press(50, 10);
    EXPECT_TRUE(canvas->mAuxSelectionPath);
    drag(60, 20);
    release(60, 20);
    EXPECT_FALSE(canvas->mAuxSelectionPath);
    EXPECT_EQ(mask(15, 15), 0);
    EXPECT_EQ(mask(55, 15), 0);
    EXPECT_EQ(mask(40, 15), 255);
    hold(kOptionKey);
    press(5, 5);
    drag(20, 40);
    release(20, 40);
    EXPECT_EQ(mask(15, 15), 255);
    EXPECT_EQ(mask(25, 15), 0);
    EXPECT_EQ(mask(55, 15), 0);
}

TEST_F(Mouse, PressInsideTheSelectionMovesIt)
{
    for (const int tool : {0, 1, 2, 8}) {
        SCOPED_TRACE(tool);
        select(makeRect(10, 10, 20, 20));
        canvas->mTransformRecord.position = {20, 20};
        canvas->setTool(tool);
        press(15, 15);
        EXPECT_TRUE(canvas->mMove);
        drag(18, 25);
        drag(20, 30);
        release(20, 30);
        EXPECT_FALSE(canvas->mMove);
        ASSERT_TRUE(canvas->mSelectionPath);
        EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(15, 25, 20, 20));
        EXPECT_EQ(canvas->mTransformRecord.position, (Point{25, 35}));
    }
}

TEST_F(Mouse, CommandPressInsideTheSelectionFloatsIt)
{
    select(makeRect(10, 10, 20, 20));
    canvas->setTool(2);
    hold(kCommandKey);
    press(15, 15);
    EXPECT_TRUE(canvas->mSelectionImage);
    EXPECT_TRUE(has(takeSounds(), "Pop"));
    release(15, 15);
}

TEST_F(Mouse, LassoClosesAndFillsTheMask)
{
    canvas->setTool(1);
    press(10, 10);
    drag(60, 10);
    drag(60, 60);
    drag(10, 60);
    release(10, 60);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->elementCount(), 5);
    EXPECT_EQ(canvas->mSelectionPath->elementAt(4), PathElement::ClosePath);
    EXPECT_EQ(mask(30, 30), 0);
    EXPECT_EQ(mask(70, 30), 255);
    EXPECT_TRUE(has(takeLogLines(), "5"));
}

TEST_F(Mouse, ClickWithTheLassoSelectsNothing)
{
    canvas->setTool(1);
    press(10, 10);
    release(10, 10);
    EXPECT_FALSE(canvas->mSelectionPath);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"Frog"});
    EXPECT_TRUE(has(takeLogLines(), "2"));
}

TEST_F(Mouse, PolygonLassoGrowsByClicksAndEndsWithReturn)
{
    canvas->setTool(1);
    hold(kControlKey);
    press(10, 10);
    release(10, 10);
    EXPECT_TRUE(canvas->mPolygonLasso);
    ASSERT_EQ(canvas->mSelectionPath->elementCount(), 2);
    hold(0);
    // Every click is a corner, inside or outside of what was drawn so far; the press arms a move.
    for (const Point corner : {Point{60, 10}, {60, 60}, {5, 70}}) {
        press(corner.x, corner.y);
        EXPECT_TRUE(canvas->mMove);
        EXPECT_EQ(canvas->mSelectionPath->currentPoint(), corner);
        release(corner.x, corner.y);
        EXPECT_TRUE(canvas->mPolygonLasso);
    }
    ASSERT_EQ(canvas->mSelectionPath->elementCount(), 5);
    key(Qt::Key_Return, "\r");
    EXPECT_FALSE(canvas->mPolygonLasso);
    ASSERT_EQ(canvas->mSelectionPath->elementCount(), 6);
    std::array<Point, 3> p;
    EXPECT_EQ(canvas->mSelectionPath->elementAt(4, p), PathElement::LineTo);
    EXPECT_EQ(p[0], (Point{10, 10})) << "the last corner goes onto the first";
    EXPECT_EQ(canvas->mSelectionPath->elementAt(5), PathElement::ClosePath);
    // A click that is no longer part of the polygon starts a new lasso.
    press(100, 80);
    EXPECT_FALSE(canvas->mPolygonLasso);
    ASSERT_EQ(canvas->mSelectionPath->elementCount(), 1);
    EXPECT_EQ(canvas->mSelectionPath->currentPoint(), (Point{100, 80}));
    release(100, 80);
}

TEST_F(Mouse, WandSelectsByColourAndTracesTheOutline)
{
    for (int y = 20; y < 50; ++y)
        for (int x = 30; x < 70; ++x) canvas->mBitmapRep->view().row(y)[x] = kBlackWord;
    canvas->setTool(2);
    press(40, 30);
    release(40, 30);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(30, 20, 40, 30));
    EXPECT_EQ(mask(30, 20), 0);
    EXPECT_EQ(mask(29, 20), 255);
    EXPECT_FALSE(canvas->mSelectionMaskClear);
    const std::vector<std::string> lines = takeLogLines();
    EXPECT_TRUE(has(lines, "magicWand done"));
    EXPECT_TRUE(has(lines, "ZPPathBuilder done"));
}

TEST_F(Mouse, WandOfAUniformPictureOutlinesItAll)
{
    slider.setValue(1);
    canvas->setTool(2);
    press(199.7f, 99.7f); // at the far corner: rounded, it would lie outside
    release(199.7f, 99.7f);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(0, 0, 200, 100));
}

TEST_F(Mouse, WandWithToleranceZeroOrOutsideSelectsNothing)
{
    canvas->setTool(2);
    slider.setValue(0);
    press(10, 10);
    release(10, 10);
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_TRUE(canvas->mSelectionPath->isEmpty());
    slider.setValue(10);
    press(-50, 5000);
    release(-50, 5000);
    EXPECT_TRUE(canvas->mSelectionPath->isEmpty());
}

TEST_F(Mouse, BucketFillsWithinTheSelectionAndTakesASnapshot)
{
    select(makeRect(10, 10, 20, 20));
    canvas->mColor = {1, 0, 0, 1};
    canvas->setTool(6);
    const int before = canvas->mUndoIndex;
    press(15, 15);
    release(15, 15);
    settle();
    EXPECT_EQ(countWords(kRedWord), 400u);
    EXPECT_EQ(word(10, 10), kRedWord);
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
}

TEST_F(Mouse, BucketOutsideTheSelectionOrThePictureFillsNothing)
{
    select(makeRect(10, 10, 20, 20));
    canvas->mColor = {1, 0, 0, 1};
    canvas->setTool(6);
    press(15, 30); // just below the selection
    release(15, 30);
    settle();
    press(-3, 5);
    release(-3, 5);
    press(200, 100);
    release(200, 100);
    settle();
    EXPECT_EQ(countWords(kRedWord), 0u);
}

TEST_F(Mouse, BucketBeepsWhereItsColourIsAlready)
{
    canvas->mColor = kWhite;
    canvas->setTool(6);
    canvas->tol2(true); // as a fill before has left it
    press(15, 15);
    settle();
    release(15, 15);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"beep"});
    EXPECT_EQ(countWords(kWhiteWord), 20'000u);
}

TEST_F(Mouse, BucketWithASliderAtZeroFillsNothing)
{
    slider.setValue(0);
    canvas->tol2(true);
    canvas->mColor = {1, 0, 0, 1};
    canvas->setTool(6);
    press(15, 15);
    settle();
    release(15, 15);
    EXPECT_EQ(countWords(kWhiteWord), 20'000u);
    EXPECT_TRUE(takeSounds().empty());
}

TEST_F(Mouse, EyedropperPicksWhileItIsDraggedAndOnlyInside)
{
    canvas->mBitmapRep->view().row(7)[5] = 0x000080FF; // red 128
    canvas->mBitmapRep->view().row(9)[6] = 0x00004080; // red 64 of alpha 128: half transparent
    canvas->setTool(7);
    press(5.5f, 7.9f);
    EXPECT_NEAR(canvas->mColor.red, 128 / 255.0, 1e-6);
    drag(6, 9);
    EXPECT_NEAR(canvas->mColor.red, 128 / 255.0, 0.003);
    EXPECT_NEAR(canvas->mColor.alpha, 128 / 255.0, 1e-6);
    drag(-5, 5);
    drag(200, 5);
    EXPECT_NEAR(canvas->mColor.alpha, 128 / 255.0, 1e-6);
    release(200, 5);
}

TEST_F(Mouse, PencilStrokesItsPathInTheColour)
{
    canvas->mColor = {1, 0, 0, 1};
    canvas->setBrushSize(6);
    canvas->setTool(4);
    const int before = canvas->mUndoIndex;
    press(20, 30);
    ASSERT_TRUE(canvas->mPencilPath);
    EXPECT_EQ(canvas->mPencilPath->lineWidth(), 6);
    drag(60, 30);
    drag(60, 60);
    EXPECT_EQ(countWords(kWhiteWord), 20'000u); // only the release writes pixels
    release(60, 60);
    EXPECT_FALSE(canvas->mPencilPath);
    settle();
    EXPECT_EQ(word(40, 30), kRedWord);
    EXPECT_EQ(word(60, 45), kRedWord);
    EXPECT_EQ(word(40, 45), kWhiteWord);
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
}

TEST_F(Mouse, ShiftPencilDrawsOneStraightLine)
{
    canvas->mColor = {1, 0, 0, 1};
    canvas->setBrushSize(4);
    canvas->setTool(4);
    hold(kShiftKey);
    press(20, 20);
    EXPECT_FALSE(canvas->mPencilPath);
    drag(60, 90);
    hold(0);
    drag(100, 20);
    release(100, 20);
    settle();
    EXPECT_EQ(word(60, 20), kRedWord);
    EXPECT_EQ(word(60, 80), kWhiteWord);
    EXPECT_EQ(word(40, 55), kWhiteWord);
}

TEST_F(Mouse, PencilStaysInTheSelection)
{
    select(makeRect(0, 0, 50, 100));
    canvas->mColor = {1, 0, 0, 1};
    canvas->setBrushSize(4);
    canvas->setTool(4);
    press(20, 20);
    drag(90, 20);
    release(90, 20);
    settle();
    EXPECT_EQ(word(49, 20), kRedWord);
    EXPECT_EQ(word(50, 20), kWhiteWord);
}

TEST_F(Mouse, EraserClearsExactlyTheStrokedPixels)
{
    canvas->setBrushSize(6);
    canvas->setTool(5);
    press(20, 30);
    drag(60, 30);
    release(60, 30);
    settle();
    EXPECT_EQ(word(40, 30), 0u);
    EXPECT_EQ(word(40, 28), 0u);
    EXPECT_EQ(word(40, 34), kWhiteWord);
    EXPECT_EQ(word(10, 30), kWhiteWord);
    hold(kShiftKey);
    press(100, 80);
    drag(150, 80);
    release(150, 80);
    hold(0);
    settle();
    EXPECT_EQ(word(120, 80), 0u);
}

TEST_F(Mouse, EraserBeyondThePictureIsCut)
{
    canvas->setBrushSize(30);
    canvas->setTool(5);
    press(-1000, -1000);
    drag(5, 5);
    drag(90'000, 70'000);
    release(90'000, 70'000);
    settle();
    EXPECT_EQ(word(5, 5), 0u);
    press(-500, 40);
    release(-500, 40);
    settle();
}

TEST_F(Mouse, CloneStampCopiesFromItsReference)
{
    for (int y = 20; y < 40; ++y)
        for (int x = 20; x < 40; ++x) canvas->mBitmapRep->view().row(y)[x] = kBlackWord;
    canvas->setBrushSize(10);
    canvas->setTool(9);
    hold(kOptionKey);
    press(30, 30);
    drag(31, 31);
    release(31, 31);
    EXPECT_EQ(canvas->mCloneStampRefPt, (Point{30, 30}));
    EXPECT_EQ(countWords(kBlackWord), 400u); // a reference click paints nothing, even with an unsteady hand
    hold(0);
    const int before = canvas->mUndoIndex;
    press(130, 60);
    drag(130, 60);
    release(130, 60);
    settle();
    EXPECT_EQ(word(130, 60), kBlackWord);
    EXPECT_EQ(word(127, 60), kBlackWord);
    EXPECT_EQ(word(136, 60), kWhiteWord);
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
}

TEST_F(Mouse, UnknownToolBeepsAndDoesNothing)
{
    canvas->mTool = 10;
    press(10, 10);
    EXPECT_EQ(takeSounds(), std::vector<std::string>{"beep"});
    drag(20, 20);
    release(20, 20);
    EXPECT_EQ(countWords(kWhiteWord), 20'000u);
    EXPECT_FALSE(canvas->mSelectionPath);
}

TEST_F(Mouse, NothingIsAcceptedWhileASnapshotIsWritten)
{
    canvas->setTool(0);
    press(10, 10);
    canvas->mUndoThreadRunning = true;
    drag(30, 30);
    release(40, 40);
    EXPECT_EQ(takeSounds(), (std::vector<std::string>{"beep", "beep"}));
    EXPECT_EQ(canvas->mIsMouseDown, 1); // an ignored release is no release
    canvas->mUndoThreadRunning = false;
    release(40, 40);
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    canvas->mUndoThreadRunning = true;
    press(10, 10);
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    canvas->mUndoThreadRunning = false;
    release(10, 10);
}

TEST_F(Mouse, ATrailingDragOfARefusedPressPaintsNothing)
{
    canvas->mColor = {1, 0, 0, 1};
    canvas->setTool(4);
    canvas->mUndoThreadRunning = true;
    press(10, 10);
    canvas->mUndoThreadRunning = false;
    drag(50, 50);
    release(50, 50);
    EXPECT_EQ(countWords(kWhiteWord), 20'000u);
}

TEST_F(Mouse, AToolChosenInMidDragEndsTheGesture)
{
    canvas->mColor = {1, 0, 0, 1};
    canvas->setBrushSize(4);
    canvas->setTool(4);
    press(20, 20);
    drag(60, 20);
    key(Qt::Key_1, "1");
    EXPECT_EQ(canvas->mTool, 0);
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    settle();
    EXPECT_EQ(word(40, 20), kRedWord);
    drag(60, 90);
    release(60, 90);
    settle();
    EXPECT_EQ(word(60, 60), kWhiteWord);
    EXPECT_FALSE(canvas->mSelectionPath);
}

TEST_F(Mouse, ALostReleaseIsNoticedAtTheNextMove)
{
    canvas->mColor = {1, 0, 0, 1};
    canvas->setTool(4);
    press(20, 20);
    drag(60, 20);
    move(80, 20); // no button: somebody else got the release
    EXPECT_EQ(canvas->mIsMouseDown, 0);
    settle();
    EXPECT_EQ(word(40, 20), kRedWord);
}

TEST_F(Mouse, EventsAreTakenInImageCoordinatesAtAnyZoom)
{
    for (const float zoom : {0.25f, 1.0f, 4.0f}) {
        canvas->setZoom(zoom);
        canvas->setTool(0);
        press(12, 20);
        drag(60, 52);
        release(60, 52);
        ASSERT_TRUE(canvas->mSelectionPath);
        EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(12, 20, 48, 32)) << zoom;
        canvas->selectNone();
    }
}

TEST_F(Mouse, StrokeAndFillPaintTheSelectionAndBeepWithoutOne)
{
    const int before = canvas->mUndoIndex;
    canvas->stroke();
    canvas->fill();
    EXPECT_EQ(takeSounds(), (std::vector<std::string>{"beep", "beep"}));
    EXPECT_EQ(canvas->mUndoIndex, before);
    canvas->mColor = {1, 0, 0, 1};
    BezierPath ring = BezierPath::withRect(makeRect(10, 10, 40, 40));
    ring.appendRect(makeRect(20, 20, 20, 20));
    canvas->mSelectionPath = ring;
    canvas->fill();
    settle();
    EXPECT_EQ(word(15, 30), kRedWord);
    EXPECT_EQ(word(30, 30), kWhiteWord); // the hole stays open
    EXPECT_EQ(canvas->mSelectionPath->windingRule(), WindingRule::EvenOdd);
    EXPECT_EQ(canvas->mUndoIndex, before + 1);
}

TEST_F(Mouse, StrokeGivesTheOutlineItsLookBack)
{
    canvas->setZoom(2);
    canvas->mColor = {1, 0, 0, 1};
    canvas->mSize = 1;
    canvas->mSelectionPhase = 5;
    canvas->mSelectionPath = BezierPath::withRect(makeRect(10.5f, 10.5f, 40, 40));
    canvas->mSelectionPath->setLineWidth(2.75f);
    canvas->stroke();
    settle();
    EXPECT_EQ(word(30, 10), kRedWord);
    EXPECT_EQ(word(30, 30), kWhiteWord);
    EXPECT_EQ(canvas->mSelectionPath->lineWidth(), 2);
    EXPECT_EQ(canvas->mSelectionPath->lineDash(), (std::vector<float>{2.5f, 2.5f}));
    EXPECT_EQ(canvas->mSelectionPath->dashPhase(), 2.5f);
}

TEST_F(Mouse, WithoutAnImageNoToolDoesHarm)
{
    canvas = std::make_unique<ZPCanvas>();
    for (int tool = 0; tool < 10; ++tool) {
        if (tool == 8) continue; // opens a window
        canvas->setTool(tool);
        press(10, 10);
        drag(30, 40);
        release(30, 40);
        settle();
    }
    canvas->setTool(0);
    for (const int code : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Up}) key(code);
    canvas->fill();
    canvas->stroke();
    settle();
    EXPECT_FALSE(canvas->imageLoaded());
    EXPECT_EQ(canvas->mDrawFinishedFlag, 1);
}

TEST_F(Mouse, DragsBeyondTheViewScrollItForTheToolsThatAskForIt)
{
    QScrollArea view;
    ZPCanvas* inside = canvas.release();
    view.setWidget(inside);
    view.resize(80, 60);
    view.show();
    inside->setTool(0);
    canvas.reset(inside); // only for the helpers below
    press(10, 10);
    drag(190, 95);
    EXPECT_GT(view.horizontalScrollBar()->value(), 100);
    EXPECT_GT(view.verticalScrollBar()->value(), 30);
    drag(-40, -40);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
    release(-40, -40);
    inside->setTool(4);
    press(10, 10);
    drag(190, 95);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
    release(190, 95);
    settle();
    view.takeWidget();
}

} // namespace
