// SPDX-License-Identifier: GPL-3.0-or-later
/// Panning with the middle button or Space, and the wheel.
#include "desktop/ScrollView.h"
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

ScrollView::ScrollView(QWidget* parent) : QScrollArea(parent)
{
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(false);
    viewport()->setAutoFillBackground(true);
    viewport()->setBackgroundRole(QPalette::Mid);
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

bool ScrollView::handlePan(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Space || key->modifiers() != Qt::NoModifier) return false;
        mSpaceHeld = event->type() == QEvent::KeyPress;
        return true;
    }
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const bool pans = mouse->button() == Qt::MiddleButton || (mSpaceHeld && mouse->button() == Qt::LeftButton);
        if (!pans) return false;
        mPanning = true;
        mPanStart = mouse->globalPosition().toPoint();
        mScrollStart = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
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
        QApplication::restoreOverrideCursor();
        return true;
    default:
        return false;
    }
}

bool ScrollView::eventFilter(QObject* watched, QEvent* event)
{
    // The program outlives a window that never saw the key's release.
    if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::ApplicationDeactivate) mSpaceHeld = false;
    if (widget() && (watched == widget() || watched == viewport()) && handlePan(event)) return true;
    return QScrollArea::eventFilter(watched, event);
}

void ScrollView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier) || !widget()) {
        QScrollArea::wheelEvent(event);
        return;
    }
    mWheelRest += event->angleDelta().y();
    const int steps = mWheelRest / 120;
    mWheelRest -= steps * 120;
    if (steps != 0) emit zoomRequested(steps, event->position() - QPointF(widget()->pos()));
    event->accept();
}
