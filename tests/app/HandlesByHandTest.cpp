// SPDX-License-Identifier: GPL-3.0-or-later
/// Real mouse events on the handles of what floats, also beside the picture, and on what lies around them.
#include "app/MainWindow.h"
#include "canvas/HandlesOverlay.h"
#include "desktop/ScrollView.h"
#include "operations/FloatHandles.h"
#include "support/DocumentFixture.h"
#include <QTest>

using namespace zp;
using namespace zp::test;

namespace
{

class HandlesByHand : public DocumentTest
{
protected:
    HandlesByHand()
    {
        window.resize(900, 700);
        window.show();
        makeImage(300, 200);
        document->setZoom(1);
        perform("selectAll:");
        perform("floatSelection");
        QApplication::processEvents();
    }
    QWidget* viewport() { return window.findChild<ScrollView*>()->viewport(); }
    /// Where an image point is in the view.
    QPoint inView(Point p) { return window.canvas()->pos() + QPoint(int(std::lround(p.x)), int(std::lround(p.y))); }
    void drag(QPoint from, QPoint to)
    {
        QWidget* target = viewport()->childAt(from) == window.canvas() ? window.canvas() : viewport();
        const QPoint shift = target == viewport() ? QPoint() : window.canvas()->pos();
        QTest::mousePress(target, Qt::LeftButton, {}, from - shift);
        QMouseEvent move(QEvent::MouseMove, to - shift, target->mapToGlobal(to - shift), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(target, &move);
        QTest::mouseRelease(target, Qt::LeftButton, {}, to - shift);
    }

    MainWindow window{*document};
};

TEST_F(HandlesByHand, ACornerBesideThePictureScales)
{
    const Point corner = floatHandlePlaces(selection(), 1)[std::size_t(FloatHandle::BottomRight)].center;
    ASSERT_GT(corner.x, 300) << "outside the picture";
    const Point c = record().position;
    drag(inView(corner), inView({c.x + (corner.x - c.x) / 2, c.y + (corner.y - c.y) / 2}));
    EXPECT_NEAR(record().scale, 0.5f, 0.02f);
    EXPECT_NE(floating(), nullptr);
}

TEST_F(HandlesByHand, ACornerAtTheViewsEdgeHasItsHandleInside)
{
    document->setZoom(16); // the picture fills the view and more
    QApplication::processEvents();
    ASSERT_GE(window.canvas()->pos().x(), -1) << "its upper left corner is seen";
    const QPoint inside = window.canvas()->pos() + QPoint(6, 6);
    drag(inside, inside + QPoint(160, 0)); // ten pixels to the middle
    EXPECT_LT(record().scale, 0.999f);
    EXPECT_EQ(record().position, (Point{150, 100})) << "it was scaled, not moved";
    const float scaled = record().scale;
    drag(window.canvas()->pos() + QPoint(800, 300), window.canvas()->pos() + QPoint(832, 300));
    EXPECT_EQ(record().scale, scaled);
    EXPECT_EQ(record().position, (Point{152, 100})) << "elsewhere a press moves it";
}

TEST_F(HandlesByHand, APressInsideMoves)
{
    drag(inView({150, 100}), inView({170, 110}));
    EXPECT_EQ(record().scale, 1);
    EXPECT_EQ(record().position, (Point{170, 110}));
}

TEST_F(HandlesByHand, WhatAScriptPressesPassesTheHandlesBy)
{
    performNumbers("transform_set:", {0.5, 0}); // now they lie over the picture
    const Point corner = floatHandlePlaces(selection(), 1)[std::size_t(FloatHandle::BottomRight)].center;
    window.canvas()->setExactPointer(corner);
    drag(inView(corner), inView(corner));
    EXPECT_EQ(floating(), nullptr) << "the press begins a new selection, as it does at every zoom";
}

} // namespace
