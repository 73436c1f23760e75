// SPDX-License-Identifier: GPL-3.0-or-later
/// The platform's mouse events as gestures, and scrolling along with a drag.
#include "canvas/ToolTable.h"
#include "canvas/ZPCanvas.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/View.h"
#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabletEvent>
#include <chrono>

using namespace zp;

namespace
{

/// A hand that rests sends no movements. From then on the drag is repeated on the spot this often, so that the view
/// scrolls on below the pointer and what is dragged goes with it.
constexpr std::chrono::milliseconds kRestInterval{33};

QScrollArea* enclosingView(const QWidget& canvas)
{
    QWidget* ancestor = canvas.parentWidget();
    while (ancestor && !qobject_cast<QScrollArea*>(ancestor)) ancestor = ancestor->parentWidget();
    return qobject_cast<QScrollArea*>(ancestor);
}

} // namespace

Point ZPCanvas::imagePoint(QPointF position)
{
    if (mExactPointer) return *std::exchange(mExactPointer, std::nullopt);
    const double zoom = mDocument.view().effectiveZoom();
    return {float(position.x() / zoom), float(position.y() / zoom)};
}

void ZPCanvas::tabletEvent(QTabletEvent* event)
{
    // Only the pressure is taken; the pen's movements follow as the mouse's. That of the release is nothing: the stroke
    // ends as hard as its last movement pressed.
    if (event->type() == QEvent::TabletPress || (event->type() == QEvent::TabletMove && event->buttons()))
        mDocument.setPressure(float(event->pressure()));
    event->ignore();
}

void ZPCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return event->ignore();
    mButtonDown = true;
    mDocument.setPointer(imagePoint(event->position()), true);
    mDocument.press(&row().actions, mDocument.view().pointer());
}

void ZPCanvas::mouseMoveEvent(QMouseEvent* event)
{
    mDocument.setPointer(imagePoint(event->position()), true);
    const Point point = mDocument.view().pointer();
    if (!mButtonDown) {
        mDocument.samplePointer(point); // a stroke whose release was refused goes on
        return mDocument.followPointer();
    }
    mRestTimer.stop();
    if (event->buttons() & Qt::LeftButton) {
        const QPoint before = pos();
        autoscroll(point);
        mDocument.drag(point);
        // Only a hand rests: a movement that the program itself sent is over when it has been handled.
        if (pos() != before && event->spontaneous()) repeatWhileResting(event->globalPosition());
        return;
    }
    // The button is up and nobody said so: a menu or another program took the release.
    mButtonDown = false;
    mDocument.release(point);
}

void ZPCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return event->ignore();
    mRestTimer.stop();
    mDocument.setPointer(imagePoint(event->position()), mDocument.view().pointerInside());
    if (std::exchange(mButtonDown, false) || mDocument.gesture().isMouseDown())
        mDocument.release(mDocument.view().pointer());
    mDocument.setPressure(1); // a mouse may come next
}

void ZPCanvas::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (!mButtonDown && !mDocument.gesture().isMouseDown()) emit menuRequested(event->globalPos());
}

void ZPCanvas::leaveEvent(QEvent* event)
{
    mDocument.setPointer(mDocument.view().pointer(), false); // the outline of the brush goes away
    QWidget::leaveEvent(event);
}

void ZPCanvas::pictureMovedUnderPointer()
{
    if (!mButtonDown && underMouse()) mDocument.setPointer(imagePoint(mapFromGlobal(QPointF(QCursor::pos()))), true);
}

// ---- scrolling along ------------------------------------------------------------------------------------------------

void ZPCanvas::autoscroll(Point point)
{
    const ToolActions* actions = mDocument.gesture().actions();
    QScrollArea* const view = enclosingView(*this);
    if (!view || !actions || !actions->scrolls) return;
    const double zoom = mDocument.view().effectiveZoom();
    const auto follow = [zoom](QScrollBar* bar, float position, int extent, int visible) {
        const int at = std::clamp(int(std::floor(position * zoom)), 0, std::max(0, extent - 1));
        if (at < bar->value())
            bar->setValue(at);
        else if (at >= bar->value() + visible)
            bar->setValue(at - visible + 1);
    };
    follow(view->horizontalScrollBar(), point.x, width(), view->viewport()->width());
    follow(view->verticalScrollBar(), point.y, height(), view->viewport()->height());
}

void ZPCanvas::repeatWhileResting(QPointF pointer)
{
    mRestingPointer = pointer;
    mRestTimer.start(kRestInterval);
}

void ZPCanvas::repeatDrag()
{
    const ToolActions* actions = mDocument.gesture().actions();
    // The tool may have been changed, the window closed, a question asked, or the release given to somebody else.
    const bool held = mButtonDown && QGuiApplication::mouseButtons() & Qt::LeftButton;
    if (!held || !actions || !actions->scrolls || !isVisible() || QApplication::activeModalWidget())
        return mRestTimer.stop();
    const QPoint before = pos();
    mDocument.setPointer(imagePoint(mapFromGlobal(mRestingPointer)), mDocument.view().pointerInside());
    autoscroll(mDocument.view().pointer());
    mDocument.drag(mDocument.view().pointer());
    if (pos() == before) mRestTimer.stop(); // the end of the picture
}
