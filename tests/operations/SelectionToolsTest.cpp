// SPDX-License-Identifier: GPL-3.0-or-later
/// The tools that select under the mouse: rectangle, lasso, wand, and moving what is selected.
#include "selection/PlanarClip.h"
#include "support/AlertWatch.h"
#include "support/ToolFixture.h"
#include <array>

namespace
{

using namespace zp;
using namespace zp::test;

class SelectionTools : public ToolTest
{
};

TEST_F(SelectionTools, DragWithTheRectangleSelectsAndFillsTheMask)
{
    choose(Tool::Rectangle);
    press(10, 20);
    drag(30, 40);
    drag(60, 50);
    release(60, 50);
    EXPECT_EQ(outlineBounds(), makeRect(10, 20, 50, 30));
    EXPECT_EQ(mask(10, 20), 0);
    EXPECT_EQ(mask(59, 49), 0);
    EXPECT_EQ(mask(60, 50), 255);
    EXPECT_TRUE(selection().antsMarch());
    EXPECT_EQ(document->infoText(), "{{10, 20}, {50, 30}}");
    EXPECT_TRUE(has(takeLogLines(), "60.000000  50.000000"));
}

TEST_F(SelectionTools, ReleaseAwayFromThePressIsADragEvenWithoutOne)
{
    choose(Tool::Rectangle);
    press(10, 20);
    release(60, 50);
    EXPECT_EQ(outlineBounds(), makeRect(10, 20, 50, 30));
}

TEST_F(SelectionTools, CommandMakesASquareAndControlAnOval)
{
    choose(Tool::Rectangle);
    hold(kCommandKey);
    press(10, 10);
    drag(4, 30);
    release(4, 30);
    EXPECT_EQ(outlineBounds(), makeRect(4, 10, 6, 6));
    hold(kControlKey);
    press(50, 10);
    drag(90, 40);
    release(90, 40);
    ASSERT_TRUE(outline());
    EXPECT_FALSE(outline()->contains({51, 11}));
    EXPECT_TRUE(outline()->contains({70, 25}));
}

TEST_F(SelectionTools, ClickWithTheRectangleDropsTheSelectionWithACue)
{
    select(makeRect(100, 50, 20, 20));
    choose(Tool::Rectangle);
    press(10, 10);
    release(10, 10);
    EXPECT_FALSE(outline());
    EXPECT_EQ(takeSounds(), Lines{"Frog"});
    EXPECT_EQ(mask(110, 60), 255);
    EXPECT_EQ(document->infoText(), "?");
}

TEST_F(SelectionTools, ShiftWithoutASelectionStartsAPlainOne)
{
    choose(Tool::Rectangle);
    hold(kShiftKey);
    press(10, 10);
    EXPECT_FALSE(selection().parked());
    drag(20, 20);
    release(20, 20);
    EXPECT_EQ(outlineBounds(), makeRect(10, 10, 10, 10));
}

TEST_F(SelectionTools, ShiftAddsAndOptionSubtracts)
{
    select(makeRect(10, 10, 20, 20));
    choose(Tool::Rectangle);
    hold(kShiftKey);
    press(50, 10);
    EXPECT_TRUE(selection().parked());
    drag(60, 20);
    release(60, 20);
    EXPECT_FALSE(selection().parked());
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

TEST_F(SelectionTools, PressInsideTheSelectionMovesIt)
{
    for (const Tool tool : {Tool::Rectangle, Tool::Lasso, Tool::Wand, Tool::Text}) {
        SCOPED_TRACE(int(tool));
        select(makeRect(10, 10, 20, 20));
        const Point before = record().position;
        choose(tool);
        press(15, 15);
        EXPECT_TRUE(gesture().isMoving());
        drag(18, 25);
        drag(20, 30);
        release(20, 30);
        EXPECT_FALSE(gesture().isMoving());
        EXPECT_EQ(outlineBounds(), makeRect(15, 25, 20, 20));
        EXPECT_EQ(record().position - before, (Point{5, 15}));
    }
}

TEST_F(SelectionTools, CommandPressInsideTheSelectionFloatsIt)
{
    select(makeRect(10, 10, 20, 20));
    choose(Tool::Wand);
    hold(kCommandKey);
    press(15, 15);
    ASSERT_TRUE(floating());
    EXPECT_EQ(takeSounds(), Lines{"Pop"});
    release(15, 15);
    // Once more it only moves: lifting again would take what lies under the piece.
    const Floating* const piece = floating();
    press(15, 15);
    drag(25, 15);
    release(25, 15);
    EXPECT_EQ(floating(), piece);
    EXPECT_TRUE(takeSounds().empty());
    EXPECT_EQ(outlineBounds(), makeRect(20, 10, 20, 20));
}

TEST_F(SelectionTools, CommandAndShiftInsideLeaveAHoleInOneStep)
{
    for (const Tool tool : {Tool::Rectangle, Tool::Lasso, Tool::Wand, Tool::Text}) {
        SCOPED_TRACE(int(tool));
        newImage(200, 100);
        select(makeRect(10, 10, 20, 20));
        choose(tool);
        hold(kCommandKey | kShiftKey);
        press(15, 15);
        EXPECT_FALSE(selection().parked());
        drag(65, 15);
        release(65, 15);
        hold(0);
        settle();
        EXPECT_EQ(countPixels(0), 400u);
        EXPECT_EQ(pixel(10, 10), 0u);
        EXPECT_EQ(outlineBounds(), makeRect(60, 10, 20, 20));
        EXPECT_TRUE(floating());
        expectNumbers(1, 1);
    }
}

TEST_F(SelectionTools, LassoClosesAndFillsTheMask)
{
    choose(Tool::Lasso);
    press(10, 10);
    drag(60, 10);
    drag(60, 60);
    drag(10, 60);
    release(10, 60);
    ASSERT_TRUE(outline());
    EXPECT_EQ(outline()->elementCount(), 5);
    EXPECT_EQ(outline()->elementAt(4), PathElement::ClosePath);
    EXPECT_EQ(mask(30, 30), 0);
    EXPECT_EQ(mask(70, 30), 255);
    EXPECT_TRUE(has(takeLogLines(), "5"));
}

TEST_F(SelectionTools, ClickWithTheLassoSelectsNothing)
{
    choose(Tool::Lasso);
    press(10, 10);
    release(10, 10);
    EXPECT_FALSE(outline());
    EXPECT_EQ(takeSounds(), Lines{"Frog"});
    EXPECT_TRUE(has(takeLogLines(), "2"));
}

TEST_F(SelectionTools, ALassoOfFewerThanFourElementsDropsTheSelection)
{
    struct Case {
        std::initializer_list<Point> points;
        bool selects;
    };
    for (const Case& c :
         {Case{{{50, 50}}, false}, {{{50, 50}, {60, 50}}, false}, {{{50, 50}, {60, 50}, {60, 60}}, true}}) {
        SCOPED_TRACE(c.points.size());
        select(makeRect(10, 10, 20, 20));
        renderMask();
        choose(Tool::Lasso);
        gestureThrough(c.points);
        EXPECT_EQ(outline() != nullptr, c.selects);
        EXPECT_EQ(mask(15, 15), 255);
        EXPECT_EQ(takeSounds(), c.selects ? Lines{} : Lines{"Frog"});
        dropSelection();
    }
}

TEST_F(SelectionTools, WhatLiftsAPolygonClosesIt)
{
    for (const char* command : {"floatSelection", "transform", "adjust", "copy:", "cut:"}) {
        SCOPED_TRACE(command);
        choose(Tool::Lasso);
        for (const Point corner : {Point{10, 10}, {60, 10}, {60, 60}}) {
            hold(corner == Point{10, 10} ? kControlKey : 0);
            press(corner.x, corner.y);
            release(corner.x, corner.y);
        }
        ASSERT_TRUE(gesture().polygonIsOpen());
        perform(command);
        EXPECT_FALSE(gesture().polygonIsOpen()) << "a later click would be a corner of what is copied already";
        dropSelection();
    }
}

TEST_F(SelectionTools, PolygonLassoGrowsByClicksAndEndsWithReturn)
{
    choose(Tool::Lasso);
    hold(kControlKey);
    press(10, 10);
    release(10, 10);
    EXPECT_TRUE(gesture().polygonIsOpen());
    ASSERT_TRUE(outline());
    ASSERT_EQ(outline()->elementCount(), 2);
    hold(0);
    // Every click is a corner, inside or outside of what was drawn so far; the press arms a move.
    for (const Point corner : {Point{60, 10}, {60, 60}, {5, 70}}) {
        press(corner.x, corner.y);
        EXPECT_TRUE(gesture().isMoving());
        EXPECT_EQ(outline()->currentPoint(), corner);
        release(corner.x, corner.y);
        EXPECT_TRUE(gesture().polygonIsOpen());
    }
    ASSERT_EQ(outline()->elementCount(), 5);
    key(Qt::Key_Return, "\r");
    EXPECT_FALSE(gesture().polygonIsOpen());
    ASSERT_EQ(outline()->elementCount(), 6);
    std::array<Point, 3> p;
    EXPECT_EQ(outline()->elementAt(4, p), PathElement::LineTo);
    EXPECT_EQ(p[0], (Point{10, 10})) << "the last corner goes onto the first";
    EXPECT_EQ(outline()->elementAt(5), PathElement::ClosePath);
    // A click that is no longer part of the polygon starts a new lasso.
    press(100, 80);
    EXPECT_FALSE(gesture().polygonIsOpen());
    ASSERT_EQ(outline()->elementCount(), 1);
    EXPECT_EQ(outline()->currentPoint(), (Point{100, 80}));
    release(100, 80);
}

TEST_F(SelectionTools, WandSelectsByColourAndTracesTheOutline)
{
    fillBox({30, 20, 70, 50}, kBlackWord);
    choose(Tool::Wand);
    press(40, 30);
    release(40, 30);
    EXPECT_EQ(outlineBounds(), makeRect(30, 20, 40, 30));
    EXPECT_EQ(mask(30, 20), 0);
    EXPECT_EQ(mask(29, 20), 255);
    EXPECT_FALSE(selection().mask().isClear());
    const Lines lines = takeLogLines();
    EXPECT_TRUE(has(lines, "magicWand done"));
    EXPECT_TRUE(has(lines, "ZPPathBuilder done"));
}

TEST_F(SelectionTools, WandOfAUniformPictureOutlinesItAll)
{
    document->setToleranceSetting(1);
    choose(Tool::Wand);
    press(199.7f, 99.7f); // at the far corner: rounded, it would lie outside
    release(199.7f, 99.7f);
    EXPECT_EQ(outlineBounds(), makeRect(0, 0, 200, 100));
}

TEST_F(SelectionTools, WandWithToleranceZeroOrOutsideSelectsNothing)
{
    choose(Tool::Wand);
    document->setToleranceSetting(0);
    press(10, 10);
    release(10, 10);
    ASSERT_TRUE(outline());
    EXPECT_TRUE(outline()->isEmpty());
    document->setToleranceSetting(10);
    press(-50, 5000);
    release(-50, 5000);
    EXPECT_TRUE(outline()->isEmpty());
}

TEST_F(SelectionTools, APolygonWithAddWaitsForReturnToBeCombined)
{
    for (const std::uint32_t key : {kShiftKey, kOptionKey}) {
        SCOPED_TRACE(key);
        select(makeRect(10, 10, 40, 40));
        choose(Tool::Lasso);
        hold(kControlKey | key);
        press(60, 30);
        release(60, 30);
        hold(0);
        ASSERT_TRUE(selection().parked());
        for (const Point corner : {Point{80, 30}, {80, 60}, {30, 60}, {30, 30}, {60, 31}}) {
            press(corner.x, corner.y);
            release(corner.x, corner.y);
            ASSERT_TRUE(selection().parked()) << "the old outline waits";
        }
        this->key(Qt::Key_Return, "\r");
        EXPECT_FALSE(selection().parked());
        EXPECT_TRUE(selection().contains({15, 15}));
        EXPECT_EQ(selection().contains({40, 45}), key == kShiftKey);
        EXPECT_EQ(selection().contains({70, 50}), key == kShiftKey);
        dropSelection();
    }
}

TEST_F(SelectionTools, CombiningThatWasStoppedLeavesTheOldOutline)
{
    struct Impatient : LongWait {
        bool goOn() override { return false; }
    };
    setClipWait([]() -> std::unique_ptr<LongWait> { return std::make_unique<Impatient>(); });
    AlertWatch watch;
    std::mt19937 random(29);
    for (const bool polygon : {false, true}) {
        SCOPED_TRACE(polygon);
        select(makeRect(10, 10, 40, 40));
        choose(Tool::Lasso);
        hold(polygon ? kControlKey | kShiftKey : kShiftKey);
        press(60, 30);
        hold(polygon ? 0 : kShiftKey);
        for (int i = 0; i < 4000; ++i) {
            const Point p{float(random() % 12000) / 100, float(random() % 8000) / 100};
            if (polygon)
                release(p.x, p.y), press(p.x, p.y);
            else
                drag(p.x, p.y);
        }
        release(60, 30);
        if (polygon) {
            ASSERT_TRUE(selection().parked());
            const Outcome outcome = document->perform("endPolygon");
            EXPECT_EQ(outcome.kind, Outcome::Failed);
            EXPECT_EQ(outcome.why, "It was stopped.");
        }
        EXPECT_FALSE(selection().parked());
        EXPECT_EQ(outlineBounds(), makeRect(10, 10, 40, 40));
        EXPECT_TRUE(watch.seen.empty()) << "who stopped it need not be told";
        EXPECT_FALSE(document->anyWorkerRunning());
        dropSelection();
    }
    setClipWait(nullptr);
}

TEST_F(SelectionTools, TheWandWithShiftAddsToWhereTheSelectionIsNow)
{
    fillBox({100, 20, 120, 40}, kBlackWord);
    select(makeRect(10, 10, 20, 20));
    renderMask();
    performNumbers("nudge", {30, 0});
    choose(Tool::Wand);
    hold(kShiftKey);
    gestureThrough({{110, 30}});
    EXPECT_EQ(countMask(0), 800u);
    EXPECT_EQ(mask(45, 15), 0);
    EXPECT_EQ(mask(15, 15), 255);
    EXPECT_EQ(mask(110, 30), 0);
}

TEST_F(SelectionTools, AClickMeansThePixelUnderThePointerAtEveryZoom)
{
    setPixel(50, 50, kBlackWord);
    choose(Tool::Wand);
    for (const float zoom : {1.0f, 4.0f, 16.0f}) {
        document->setZoom(zoom);
        gestureThrough({{50.75f, 50.75f}});
        EXPECT_EQ(outlineBounds(), makeRect(50, 50, 1, 1)) << zoom;
        dropSelection();
    }
}

} // namespace
