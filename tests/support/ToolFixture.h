// SPDX-License-Identifier: GPL-3.0-or-later
/// A white picture of 200 x 100 under real mouse and key events to the canvas.
#pragma once
#include "support/DocumentFixture.h"
#include <QKeyEvent>
#include <QMouseEvent>
#include <QThread>

namespace zp::test
{

class ToolTest : public DocumentTest
{
protected:
    using DocumentTest::DocumentTest;

    void SetUp() override
    {
        document->setToleranceSetting(10);
        newImage(200, 100);
        takeSounds();
        takeLogLines();
    }

    void newImage(int width, int height)
    {
        makeImage(width, height);
        fillImage(kWhiteWord);
    }

    /// Image coordinates, whatever the zoom.
    void send(QEvent::Type type, float x, float y, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        const double zoom = document->view().effectiveZoom();
        const QPointF at(x * zoom, y * zoom);
        QMouseEvent event(type, at, at, button, buttons, Qt::NoModifier);
        QApplication::sendEvent(canvas.get(), &event);
    }
    void press(float x, float y) { send(QEvent::MouseButtonPress, x, y, Qt::LeftButton, Qt::LeftButton); }
    void drag(float x, float y) { send(QEvent::MouseMove, x, y, Qt::NoButton, Qt::LeftButton); }
    void move(float x, float y) { send(QEvent::MouseMove, x, y, Qt::NoButton, Qt::NoButton); }
    void release(float x, float y) { send(QEvent::MouseButtonRelease, x, y, Qt::LeftButton, Qt::NoButton); }
    /// Press, drags to each further point, release at the last.
    void gestureThrough(std::initializer_list<Point> points)
    {
        press(points.begin()->x, points.begin()->y);
        for (const Point* p = points.begin() + 1; p < points.end(); ++p) drag(p->x, p->y);
        release((points.end() - 1)->x, (points.end() - 1)->y);
    }
    void key(int code, const QString& text = {})
    {
        QKeyEvent down(QEvent::KeyPress, code, Qt::NoModifier, text);
        QApplication::sendEvent(canvas.get(), &down);
    }
    void choose(Tool tool) { canvas->setTool(int(tool)); }
};

} // namespace zp::test
