// SPDX-License-Identifier: GPL-3.0-or-later
/// Panning with the middle button or Space, the wheel, and the fingers on a touchpad or a screen.
#include "desktop/ScrollView.h"
#include <QApplication>
#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QScrollBar>
#include <QWheelEvent>

namespace
{

/// What a notch of a wheel counts in its events.
constexpr int kWheelNotch = 120;

} // namespace

ScrollView::ScrollView(QWidget* parent) : QScrollArea(parent)
{
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(false);
    viewport()->setAutoFillBackground(true);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->grabGesture(Qt::PinchGesture);
    qApp->installEventFilter(this);
}

QRect ScrollView::documentVisibleRect() const
{
    if (!widget()) return {};
    return viewport()->rect().translated(-widget()->pos()).intersected(widget()->rect());
}

void ScrollView::placeDocumentPoint(QPointF documentPoint, QPointF viewportPoint)
{
    if (!widget()) return;
    horizontalScrollBar()->setValue(qRound(documentPoint.x() - viewportPoint.x()));
    verticalScrollBar()->setValue(qRound(documentPoint.y() - viewportPoint.y()));
}

void ScrollView::holdSpace(bool held)
{
    if (held == mSpaceHeld) return;
    mSpaceHeld = held;
    // The open hand says what the next drag will do; while it pans, the closed one lies over it.
    if (held)
        QApplication::setOverrideCursor(Qt::OpenHandCursor);
    else
        QApplication::restoreOverrideCursor();
}

bool ScrollView::handlePan(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Space || key->modifiers() != Qt::NoModifier) return false;
        if (!key->isAutoRepeat()) holdSpace(event->type() == QEvent::KeyPress);
        return true;
    }
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const bool pans = mouse->button() == Qt::MiddleButton || (mSpaceHeld && mouse->button() == Qt::LeftButton);
        if (!pans) return false;
        mPanning = true;
        mPanStart = mouse->globalPosition().toPoint();
        mScrollStart = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
        if (mSpaceHeld)
            QApplication::changeOverrideCursor(Qt::ClosedHandCursor);
        else
            QApplication::setOverrideCursor(Qt::ClosedHandCursor);
        return true;
    }
    case QEvent::MouseMove: {
        if (!mPanning) return false;
        const QPoint moved = static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - mPanStart;
        horizontalScrollBar()->setValue(mScrollStart.x() - moved.x());
        verticalScrollBar()->setValue(mScrollStart.y() - moved.y());
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (!mPanning) return false;
        mPanning = false;
        if (mSpaceHeld)
            QApplication::changeOverrideCursor(Qt::OpenHandCursor);
        else
            QApplication::restoreOverrideCursor();
        return true;
    default:
        return false;
    }
}

bool ScrollView::eventFilter(QObject* watched, QEvent* event)
{
    // The program outlives a window that never saw the key's release.
    if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::ApplicationDeactivate) holdSpace(false);
    if (watched == widget() && event->type() == QEvent::NativeGesture && viewportEvent(event)) return true;
    if (widget() && (watched == widget() || watched == viewport()) && handlePan(event)) return true;
    return QScrollArea::eventFilter(watched, event);
}

void ScrollView::scrollBy(QPoint distance)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - distance.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - distance.y());
}

void ScrollView::wheelEvent(QWheelEvent* event)
{
    if (!widget()) return QScrollArea::wheelEvent(event);
    if (event->modifiers() & Qt::ControlModifier) {
        mWheelRest += event->angleDelta().y();
        const int steps = mWheelRest / kWheelNotch;
        mWheelRest -= steps * kWheelNotch;
        if (steps != 0) emit zoomRequested(steps, event->position() - QPointF(widget()->pos()));
        event->accept();
        return;
    }
    const bool sideways = event->modifiers() & Qt::ShiftModifier;
    // A touchpad says how far in pixels, in both directions at once; a wheel turns in notches.
    QPoint distance = event->pixelDelta();
    if (distance.isNull()) {
        const int notch = QApplication::wheelScrollLines() * verticalScrollBar()->singleStep();
        mNotchRest += event->angleDelta() * notch;
        distance = mNotchRest / kWheelNotch;
        mNotchRest -= distance * kWheelNotch;
    }
    scrollBy(sideways && distance.x() == 0 ? distance.transposed() : distance);
    event->accept();
}

void ScrollView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    emit roomChanged(size()); // with scroll bars or without, there is that much
}

void ScrollView::pinch(double factor, QPointF globalPoint)
{
    if (widget() && factor > 0) emit scaleRequested(factor, widget()->mapFromGlobal(globalPoint));
}

bool ScrollView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() != Qt::ZoomNativeGesture) return false;
        pinch(1 + gesture->value(), gesture->globalPosition());
        return true;
    }
    if (event->type() == QEvent::Gesture) {
        const auto* gestures = static_cast<QGestureEvent*>(event);
        const auto* fingers = static_cast<QPinchGesture*>(gestures->gesture(Qt::PinchGesture));
        if (!fingers) return false;
        scrollBy((fingers->centerPoint() - fingers->lastCenterPoint()).toPoint());
        pinch(fingers->scaleFactor(), fingers->centerPoint());
        return true;
    }
    return QScrollArea::viewportEvent(event);
}
