// SPDX-License-Identifier: GPL-3.0-or-later
/// Drags held still beyond the view's edge, with the pointer that the platform reports.
#include "desktop/ScrollView.h"
#include "operations/ToolActions.h"
#include "support/ToolFixture.h"
#include <QDialog>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace zp;

namespace
{

/// A view of 200 x 150 in the middle of a larger window, on a picture much larger than both.
class Autoscroll : public zp::test::ToolTest
{
protected:
    void SetUp() override
    {
        ToolTest::SetUp();
        newImage(3000, 2000);
        window.resize(400, 300);
        view = new ScrollView(&window);
        view->setGeometry(100, 75, 200, 150);
        view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view->setWidget(canvas.get());
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        canvas->setTool(0);
    }
    void TearDown() override
    {
        if (QGuiApplication::mouseButtons() & Qt::LeftButton) release();
        settle();
        view->takeWidget();
        ToolTest::TearDown();
    }

    /// Where the pointer is, in the view's own coordinates: 0 to 199, 0 to 149 are inside.
    void press(int x, int y)
    {
        hand = {x + 100, y + 75};
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, hand);
    }
    void moveTo(int x, int y)
    {
        hand = {x + 100, y + 75};
        QTest::mouseMove(window.windowHandle(), hand);
    }
    void release() { QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, hand); }

    int scrolledX() const { return view->horizontalScrollBar()->value(); }
    int scrolledY() const { return view->verticalScrollBar()->value(); }
    bool isRepeating() const
    {
        const QTimer* timer = toolState(*canvas).restTimer.get();
        return timer && timer->isActive();
    }
    /// The image point below the pointer now.
    Point below() const
    {
        const QPoint point = canvas->mapFrom(&window, hand);
        return {float(point.x()) / canvas->effectiveZoom(), float(point.y()) / canvas->effectiveZoom()};
    }
    bool scrollsOnFrom(int from) const
    {
        return QTest::qWaitFor([&] { return scrolledX() > from; }, 20'000);
    }
    /// Time for several steps, of which there must not be any.
    void expectRest()
    {
        const int x = scrolledX(), y = scrolledY();
        QTest::qWait(150);
        EXPECT_EQ(scrolledX(), x);
        EXPECT_EQ(scrolledY(), y);
        EXPECT_FALSE(isRepeating());
    }

    QWidget window;
    ScrollView* view = nullptr;
    QPoint hand;
};

TEST_F(Autoscroll, AMarqueeHeldBeyondTheEdgeGrowsWithTheView)
{
    press(10, 10);
    moveTo(219, 100);
    const int first = scrolledX();
    EXPECT_EQ(first, 20); // one movement: the point below the pointer becomes the last visible one
    ASSERT_TRUE(scrollsOnFrom(first + 100));
    EXPECT_EQ(scrolledX() % 20, 0); // each repetition goes as far as the movement went
    EXPECT_EQ(scrolledY(), 0);
    // The view follows the corner and is one step ahead of it, as after a movement.
    EXPECT_EQ(canvas->mPt2, (Point{below().x - 20, below().y}));
    EXPECT_EQ(canvas->mPt1, (Point{10, 10}));
    release();
    ASSERT_TRUE(canvas->mSelectionPath);
    EXPECT_EQ(canvas->mSelectionPath->bounds(), makeRect(10, 10, below().x - 10, below().y - 10));
}

TEST_F(Autoscroll, TheFartherThePointerTheFaster)
{
    press(10, 10);
    moveTo(249, 179);
    const int first = scrolledX();
    ASSERT_TRUE(scrollsOnFrom(first + 100));
    EXPECT_EQ(first, 50);
    EXPECT_EQ(scrolledX() % 50, 0);
    EXPECT_EQ(scrolledY() * 50, scrolledX() * 30);
    release();
}

TEST_F(Autoscroll, AMovedSelectionGoesWithTheView)
{
    for (const int tool : {0, 1}) {
        SCOPED_TRACE(tool);
        view->horizontalScrollBar()->setValue(0);
        canvas->setTool(tool);
        select(makeRect(20, 20, 60, 40));
        press(30, 30);
        moveTo(229, 30);
        ASSERT_TRUE(scrollsOnFrom(scrolledX() + 90));
        release();
        // Held by the same place: the pointer's distance from the outline's corner never changed but for the last step.
        EXPECT_NEAR(canvas->mSelectionPath->bounds().origin.x, below().x - 10, 30);
        EXPECT_EQ(canvas->mSelectionPath->bounds().origin.y, 20);
        EXPECT_GT(canvas->mSelectionPath->bounds().origin.x, 290);
    }
}

TEST_F(Autoscroll, ALassoGrowsByOnePointAStep)
{
    canvas->setTool(1);
    press(10, 10);
    moveTo(239, 80);
    ASSERT_TRUE(scrollsOnFrom(200));
    const BezierPath& outline = *canvas->mSelectionPath;
    EXPECT_EQ(outline.elementCount(), 1 + scrolledX() / 40);
    release();
}

TEST_F(Autoscroll, ReleaseStopsIt)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    EXPECT_TRUE(isRepeating());
    release();
    EXPECT_FALSE(isRepeating());
    expectRest();
}

TEST_F(Autoscroll, ComingBackStopsIt)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    moveTo(150, 100);
    EXPECT_FALSE(isRepeating());
    expectRest();
    EXPECT_EQ(canvas->mPt2, below());
    moveTo(-30, 100); // and out again at the other side
    const int from = scrolledX();
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrolledX() < from - 50 || scrolledX() == 0; }, 20'000));
    release();
}

TEST_F(Autoscroll, TheEndOfThePictureStopsIt)
{
    newImage(300, 150);
    canvas->setTool(1);
    press(10, 10);
    moveTo(289, 80);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isRepeating(); }, 20'000));
    EXPECT_EQ(scrolledX(), 100); // to the last column
    EXPECT_EQ(canvas->mPt2, below());
    const std::ptrdiff_t elements = canvas->mSelectionPath->elementCount();
    QTest::qWait(150);
    EXPECT_EQ(canvas->mSelectionPath->elementCount(), elements); // not one point more on the spot
    release();
}

TEST_F(Autoscroll, WhereNothingCanScrollNothingIsRepeated)
{
    newImage(100, 80);
    canvas->setTool(1);
    press(90, 70);
    moveTo(300, 100);
    EXPECT_FALSE(isRepeating());
    EXPECT_EQ(canvas->mSelectionPath->elementCount(), 2);
    release();
}

TEST_F(Autoscroll, OtherToolsDoNotScroll)
{
    canvas->setTool(4);
    press(10, 10);
    moveTo(219, 100);
    expectRest();
    EXPECT_EQ(scrolledX(), 0);
    release();
}

TEST_F(Autoscroll, AnotherToolInMidDragStopsIt)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    const int from = scrolledX();
    key(Qt::Key_4, "4");
    EXPECT_NE(canvas->mTool, 0);
    QTest::qWait(150);
    EXPECT_EQ(scrolledX(), from);
    EXPECT_FALSE(isRepeating());
    release();
}

TEST_F(Autoscroll, AClosedWindowStopsIt)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    window.close();
    expectRest();
    window.show();
    expectRest();
}

TEST_F(Autoscroll, AQuestionStopsIt)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    QDialog question(&window);
    question.setModal(true);
    question.show();
    expectRest();
}

TEST_F(Autoscroll, ASnapshotBeingWrittenIsWaitedForInSilence)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    takeSounds();
    canvas->mUndoThreadRunning = 1;
    const int from = scrolledX();
    QTest::qWait(150);
    EXPECT_EQ(scrolledX(), from);
    EXPECT_TRUE(takeSounds().empty());
    canvas->mUndoThreadRunning = 0;
    EXPECT_TRUE(scrollsOnFrom(from));
    release();
}

TEST_F(Autoscroll, AMovementThatTheProgramSentIsNotRepeated)
{
    ToolTest::press(10, 10);
    ToolTest::drag(259, 100);
    EXPECT_EQ(scrolledX(), 60);
    expectRest();
    ToolTest::release(259, 100);
}

TEST_F(Autoscroll, ItFollowsAtOtherZooms)
{
    canvas->setZoom(2);
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX() + 60));
    EXPECT_EQ(canvas->mPt2, (Point{below().x - 10, below().y}));
    release();
}

} // namespace
