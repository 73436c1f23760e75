// SPDX-License-Identifier: GPL-3.0-or-later
/// Wheel, touchpad and fingers over a document larger than its view.
#include "desktop/ScrollView.h"
#include <QApplication>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace
{

class ScrollViewTest : public testing::Test
{
protected:
    ScrollViewTest()
    {
        view.setWidget(new QWidget);
        view.widget()->setFixedSize(3000, 2000);
        view.resize(300, 200);
        view.show();
        view.placeDocumentPoint({1000, 1000}, {0, 0});
    }
    QPoint position() const { return {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()}; }
    void turn(QPoint pixels, QPoint angle, Qt::KeyboardModifiers held)
    {
        QWheelEvent event({50, 50}, view.viewport()->mapToGlobal(QPointF(50, 50)), pixels, angle, Qt::NoButton, held,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
    }

    ScrollView view;
};

TEST_F(ScrollViewTest, TheWheelScrollsAndWithShiftSideways)
{
    struct Case {
        QPoint pixels, angle;
        Qt::KeyboardModifiers held;
        int x, y; ///< signs of the movement
    };
    for (const Case& c : std::initializer_list<Case>{{{}, {0, -120}, Qt::NoModifier, 0, 1},
                                                     {{}, {0, 120}, Qt::NoModifier, 0, -1},
                                                     {{}, {0, -120}, Qt::ShiftModifier, 1, 0},
                                                     {{}, {-120, 0}, Qt::NoModifier, 1, 0},
                                                     {{}, {-120, 0}, Qt::ShiftModifier, 1, 0},
                                                     {{-30, -40}, {-30, -40}, Qt::NoModifier, 1, 1}}) {
        const QPoint before = position();
        turn(c.pixels, c.angle, c.held);
        const QPoint moved = position() - before;
        const auto sign = [](int v) { return (v > 0) - (v < 0); };
        EXPECT_EQ(sign(moved.x()), c.x) << c.angle.x() << " " << c.angle.y();
        EXPECT_EQ(sign(moved.y()), c.y) << c.angle.x() << " " << c.angle.y();
        if (!c.pixels.isNull()) {
            EXPECT_EQ(moved, -c.pixels) << "as far as the fingers";
        }
    }
}

TEST_F(ScrollViewTest, PartsOfANotchAddUp)
{
    const int before = position().y();
    turn({}, {0, -120}, Qt::NoModifier);
    const int notch = position().y() - before;
    for (int i = 0; i < 12; ++i) turn({}, {0, -10}, Qt::NoModifier);
    EXPECT_EQ(position().y() - before, 2 * notch);
}

TEST_F(ScrollViewTest, TwoFingersZoomAboutTheirMiddle)
{
    QSignalSpy scales(&view, &ScrollView::scaleRequested);
    const QPointF local(40, 30);
    QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, local, local,
                              view.viewport()->mapToGlobal(local), 0.25, {});
    QApplication::sendEvent(view.viewport(), &event);
    ASSERT_EQ(scales.count(), 1);
    EXPECT_DOUBLE_EQ(scales[0][0].toDouble(), 1.25);
    EXPECT_EQ(scales[0][1].toPointF(), QPointF(1040, 1030));
}

TEST_F(ScrollViewTest, ASpaceThatIsHeldShowsAHand)
{
    const auto send = [this](QEvent::Type type) {
        QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, " ");
        QApplication::sendEvent(view.widget(), &event);
    };
    ASSERT_FALSE(QApplication::overrideCursor());
    send(QEvent::KeyPress);
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::OpenHandCursor);
    send(QEvent::KeyRelease);
    EXPECT_FALSE(QApplication::overrideCursor());
    send(QEvent::KeyPress);
    QEvent away(QEvent::WindowDeactivate);
    QApplication::sendEvent(&view, &away);
    EXPECT_FALSE(QApplication::overrideCursor()) << "the window that saw the press may never see the release";
}

} // namespace
