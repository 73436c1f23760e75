// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse over the canvas: coordinates, lost releases, scrolling along.
#include "support/ToolFixture.h"
#include <QPointingDevice>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabletEvent>

namespace
{

using namespace zp;
using namespace zp::test;

class Mouse : public ToolTest
{
};

TEST_F(Mouse, ALostReleaseIsNoticedAtTheNextMove)
{
    document->setPaintColor({1, 0, 0, 1});
    choose(Tool::Pencil);
    press(20, 20);
    drag(60, 20);
    move(80, 20); // no button: somebody else got the release
    EXPECT_EQ(gesture().isMouseDown(), 0);
    settle();
    EXPECT_EQ(pixel(40, 20), kRedWord);
}

TEST_F(Mouse, EventsAreTakenInImageCoordinatesAtAnyZoom)
{
    for (const float zoom : {0.25f, 1.0f, 4.0f}) {
        canvas->setZoom(zoom);
        choose(Tool::Rectangle);
        gestureThrough({{12, 20}, {60, 52}});
        EXPECT_EQ(outlineBounds(), makeRect(12, 20, 48, 32)) << zoom;
        dropSelection();
    }
}

TEST_F(Mouse, AnExactPointerHoldsForOneEvent)
{
    canvas->setZoom(0.0625f);
    choose(Tool::Rectangle);
    canvas->setExactPointer({10.5f, 20.25f});
    press(0, 0);
    EXPECT_EQ(gesture().pt1(), (Point{10.5f, 20.25f}));
    drag(64, 48);
    EXPECT_EQ(gesture().pt2(), (Point{64, 48}));
    release(64, 48);
}

TEST_F(Mouse, APenPressesAsHardAsItSaysUntilItIsLifted)
{
    choose(Tool::Brush);
    document->setPaintColor({1, 0, 0, 1});
    document->setBrushSize(20);
    document->setPenPressure(PenPressure::Size);
    const auto pen = [this](QEvent::Type type, double pressure, Qt::MouseButtons buttons) {
        QTabletEvent event(type, QPointingDevice::primaryPointingDevice(), {}, {}, pressure, 0, 0, 0, 0, 0,
                           Qt::NoModifier, Qt::LeftButton, buttons);
        QApplication::sendEvent(canvas.get(), &event);
        EXPECT_FALSE(event.isAccepted()) << "its movements come as the mouse's";
    };
    const auto heightAt = [this](int x) {
        int count = 0;
        for (int y = 0; y < picture().height(); ++y) count += pixel(x, y) != kWhiteWord;
        return count;
    };
    pen(QEvent::TabletPress, 0.5, Qt::LeftButton);
    press(20, 50);
    pen(QEvent::TabletMove, 0.5, Qt::LeftButton);
    drag(180, 50);
    pen(QEvent::TabletRelease, 0, Qt::NoButton);
    release(180, 50);
    settle();
    EXPECT_NEAR(heightAt(100), 10, 2);
    fillImage(kWhiteWord);
    gestureThrough({{20, 50}, {180, 50}});
    settle();
    EXPECT_NEAR(heightAt(100), 20, 2) << "a mouse after it";
}

TEST_F(Mouse, WithoutAnImageNoToolDoesHarm)
{
    canvas.reset();
    document = std::make_unique<Document>(commandTable());
    canvas = std::make_unique<ZPCanvas>(*document);
    for (int tool = 0; tool < kToolCount; ++tool) {
        if (Tool(tool) == Tool::Text) continue; // opens a window
        choose(Tool(tool));
        gestureThrough({{10, 10}, {30, 40}});
        settle();
    }
    choose(Tool::Rectangle);
    for (const int code : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Up}) key(code);
    perform("fill:");
    perform("stroke:");
    settle();
    EXPECT_FALSE(picture().isLoaded());
    EXPECT_TRUE(gesture().stroke().isDrawn());
}

TEST_F(Mouse, DragsBeyondTheViewScrollItForTheToolsThatAskForIt)
{
    QScrollArea view;
    view.setWidget(canvas.get());
    view.resize(80, 60);
    view.show();
    choose(Tool::Rectangle);
    press(10, 10);
    drag(190, 95);
    EXPECT_GT(view.horizontalScrollBar()->value(), 100);
    EXPECT_GT(view.verticalScrollBar()->value(), 30);
    drag(-40, -40);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
    release(-40, -40);
    choose(Tool::Pencil);
    press(10, 10);
    drag(190, 95);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
    release(190, 95);
    settle();
    view.takeWidget();
}

} // namespace
