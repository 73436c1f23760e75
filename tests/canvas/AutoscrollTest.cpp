// SPDX-License-Identifier: GPL-3.0-or-later
/// Drags held still beyond the view's edge, with the pointer that the platform reports.
#include "desktop/ScrollView.h"
#include "support/ToolFixture.h"
#include <QDialog>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
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
        choose(Tool::Rectangle);
    }
    void TearDown() override
    {
        if (QGuiApplication::mouseButtons() & Qt::LeftButton) release();
        settle();
        view->takeWidget();
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
    /// Whether the drag is repeated on the spot, by what it tells the document in the time for several repetitions.
    bool isRepeating() const
    {
        QSignalSpy moves(document.get(), &Document::pointerMoved);
        QTest::qWait(150);
        return moves.count() > 0;
    }
    /// The image point below the pointer now.
    Point below() const
    {
        const QPoint point = canvas->mapFrom(&window, hand);
        const float zoom = document->view().effectiveZoom();
        return {float(point.x()) / zoom, float(point.y()) / zoom};
    }
    bool scrollsOnFrom(int from) const
    {
        return QTest::qWaitFor([&] { return scrolledX() > from; }, 20'000);
    }
    /// Time for several steps, of which there must not be any.
    void expectRest()
    {
        const int x = scrolledX(), y = scrolledY();
        EXPECT_FALSE(isRepeating());
        EXPECT_EQ(scrolledX(), x);
        EXPECT_EQ(scrolledY(), y);
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
    EXPECT_EQ(gesture().pt2(), (Point{below().x - 20, below().y}));
    EXPECT_EQ(gesture().pt1(), (Point{10, 10}));
    release();
    EXPECT_EQ(outlineBounds(), makeRect(10, 10, below().x - 10, below().y - 10));
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
    for (const Tool tool : {Tool::Rectangle, Tool::Lasso}) {
        SCOPED_TRACE(int(tool));
        view->horizontalScrollBar()->setValue(0);
        choose(tool);
        select(makeRect(20, 20, 60, 40));
        press(30, 30);
        moveTo(229, 30);
        ASSERT_TRUE(scrollsOnFrom(scrolledX() + 90));
        release();
        // Held by the same place: the pointer's distance from the outline's corner never changed but for the last step.
        EXPECT_NEAR(outlineBounds().origin.x, below().x - 10, 30);
        EXPECT_EQ(outlineBounds().origin.y, 20);
        EXPECT_GT(outlineBounds().origin.x, 290);
    }
}

TEST_F(Autoscroll, ALassoGrowsByOnePointAStep)
{
    choose(Tool::Lasso);
    press(10, 10);
    moveTo(239, 80);
    ASSERT_TRUE(scrollsOnFrom(200));
    EXPECT_EQ(outline()->elementCount(), 1 + scrolledX() / 40);
    release();
}

TEST_F(Autoscroll, ReleaseStopsIt)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    EXPECT_TRUE(isRepeating());
    release();
    expectRest();
}

TEST_F(Autoscroll, ComingBackStopsIt)
{
    press(10, 10);
    moveTo(219, 100);
    ASSERT_TRUE(scrollsOnFrom(scrolledX()));
    moveTo(150, 100);
    expectRest();
    EXPECT_EQ(gesture().pt2(), below());
    moveTo(-30, 100); // and out again at the other side
    const int from = scrolledX();
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrolledX() < from - 50 || scrolledX() == 0; }, 20'000));
    release();
}

TEST_F(Autoscroll, TheEndOfThePictureStopsIt)
{
    newImage(300, 150);
    choose(Tool::Lasso);
    press(10, 10);
    moveTo(289, 80);
    ASSERT_TRUE(QTest::qWaitFor([&] { return scrolledX() == 100 && !isRepeating(); }, 20'000));
    EXPECT_EQ(scrolledX(), 100); // to the last column
    EXPECT_EQ(gesture().pt2(), below());
    const int elements = outline()->elementCount();
    EXPECT_FALSE(isRepeating());
    EXPECT_EQ(outline()->elementCount(), elements); // not one point more on the spot
    release();
}

TEST_F(Autoscroll, WhereNothingCanScrollNothingIsRepeated)
{
    newImage(100, 80);
    choose(Tool::Lasso);
    press(90, 70);
    moveTo(300, 100);
    EXPECT_FALSE(isRepeating());
    EXPECT_EQ(outline()->elementCount(), 2);
    release();
}

TEST_F(Autoscroll, OtherToolsDoNotScroll)
{
    choose(Tool::Pencil);
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
    EXPECT_EQ(gesture().tool(), Tool::Brush);
    EXPECT_FALSE(isRepeating());
    EXPECT_EQ(scrolledX(), from);
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
    EXPECT_EQ(gesture().pt2(), (Point{below().x - 10, below().y}));
    release();
}

} // namespace
