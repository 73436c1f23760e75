// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas's mouse: one table of tools, what all of them share at press, drag and release, and the platform's
/// events.
#include "canvas/ZPCanvas.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include "operations/ToolActions.h"
#include <QApplication>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <chrono>

using namespace zp;

namespace
{

using Actions = ZPToolActions;

/// What the mouse does with one tool. Nothing for an action: the event has no effect of its own.
struct ToolRow {
    Actions::Action* press;
    Actions::Action* drag = nullptr;
    Actions::Action* release = nullptr;
    bool combines = false; ///< Shift and Option at the press set the old outline aside, to be joined at the release
    bool scrolls = false;  ///< the view follows a drag beyond its edge
};

constexpr ToolRow kToolRows[] = {
    /* 0 rectangle   */ {Actions::pressRectangle, Actions::dragRectangle, Actions::releaseRectangle, true, true},
    /* 1 lasso       */ {Actions::pressLasso, Actions::dragLasso, Actions::releaseLasso, true, true},
    /* 2 wand        */ {Actions::pressWand, Actions::moveSelection, nullptr, true},
    /* 3 brush       */ {Actions::pressBrush},
    /* 4 pencil      */ {Actions::pressPencil, Actions::dragPencil, Actions::releasePencil},
    /* 5 eraser      */ {Actions::pressPencil, Actions::dragPencil, Actions::releaseEraser},
    /* 6 bucket      */ {Actions::pressBucket},
    /* 7 eyedropper  */ {Actions::pickColor, Actions::pickColor, nullptr, false, true},
    /* 8 text        */ {Actions::pressText, Actions::moveSelection},
    /* 9 clone stamp */ {Actions::pressCloneStamp, Actions::dragCloneStamp, Actions::releaseCloneStamp},
};

const ToolRow* rowOf(int tool) { return tool >= 0 && tool < int(std::size(kToolRows)) ? &kToolRows[tool] : nullptr; }

Point imagePoint(const ZPCanvas& canvas, QPointF position)
{
    const double zoom = canvas.effectiveZoom();
    return {float(position.x() / zoom), float(position.y() / zoom)};
}

void samplePointer(ZPCanvas& canvas, Point point)
{
    if (toolState(canvas).strokeOpen && canvas.mPointerFeed) canvas.mPointerFeed->push(point);
}

QScrollArea* enclosingView(const ZPCanvas& canvas)
{
    QWidget* ancestor = canvas.parentWidget();
    while (ancestor && !qobject_cast<QScrollArea*>(ancestor)) ancestor = ancestor->parentWidget();
    return qobject_cast<QScrollArea*>(ancestor);
}

// ---- a drag that rests beyond the view's edge -----------------------------------------------------------------------

/// A hand that rests sends no movements. From then on the drag is repeated on the spot this often, so that the view
/// scrolls on below the pointer and what is dragged goes with it.
constexpr std::chrono::milliseconds kRestInterval{33};

void stopRepeating(ZPCanvas& canvas)
{
    if (QTimer* timer = toolState(canvas).restTimer.get()) timer->stop();
}

void repeatDrag(ZPCanvas& canvas)
{
    const ToolState& state = toolState(canvas);
    const ToolRow* row = rowOf(state.gestureTool);
    // The tool may have been changed, the window closed, a question asked, or the release given to somebody else.
    const bool held = state.buttonDown && QGuiApplication::mouseButtons() & Qt::LeftButton;
    if (!held || !row || !row->scrolls || !canvas.isVisible() || QApplication::activeModalWidget())
        return stopRepeating(canvas);
    if (canvas.mUndoThreadRunning) return;
    const QPoint before = canvas.pos();
    canvas.mLastPointer = imagePoint(canvas, canvas.mapFromGlobal(state.restingPointer));
    emit canvas.pointerMoved(QPointF(canvas.mLastPointer.x, canvas.mLastPointer.y));
    canvas.mouseDragged(canvas.mLastPointer);
    if (canvas.pos() == before) stopRepeating(canvas); // the end of the picture
}

/// After a movement that scrolled the view; @p pointer is on the screen.
void repeatWhileResting(ZPCanvas& canvas, QPointF pointer)
{
    ToolState& state = toolState(canvas);
    state.restingPointer = pointer;
    if (!state.restTimer) {
        state.restTimer = std::make_unique<QTimer>();
        QObject::connect(state.restTimer.get(), &QTimer::timeout, &canvas, [&canvas] { repeatDrag(canvas); });
    }
    state.restTimer->start(kRestInterval);
}

} // namespace

ToolState& zp::toolState(ZPCanvas& canvas)
{
    if (!canvas.mToolState) canvas.mToolState = std::make_shared<ToolState>();
    return *static_cast<ToolState*>(canvas.mToolState.get());
}

std::shared_ptr<BitmapRep> zp::drawingBitmap(const ZPCanvas& canvas)
{
    if (canvas.mImage && !canvas.mImage->representations().empty()) return canvas.mImage->representations()[0].bitmap;
    return canvas.mBitmapRep;
}

bool ZPToolActions::hitsSelection(const ZPCanvas& canvas, Point point)
{
    return canvas.mSelectionPath && canvas.mSelectionPath->contains(point);
}

void ZPCanvas::mouseDown(Point point)
{
    ToolState& state = toolState(*this);
    // The brush and the lasso wait for the last stroke by refusing; any other tool would work on pixels still being
    // painted, so what is left of the stroke is finished first.
    if (mTool != 1 && mTool != 3) finishStroke();
    if (mUndoThreadRunning) return beep();

    mIsMouseDown = 1;
    stopSelectionTimer();
    mAuxSelectionPath.reset();
    state.lastPoint = point;
    state.gestureTool = -1;
    const ToolRow* row = rowOf(mTool);
    if (!row) return beep();

    const bool joining = currentKeyModifiers() & (kShiftKey | kOptionKey);
    if (joining && mSelectionPath && row->combines && !(mTool == 1 && mPolygonLasso)) {
        mAuxSelectionPath = std::exchange(mSelectionPath, BezierPath());
        ++mSelectionPathVersion;
    }
    state.gestureTool = mTool;
    row->press(*this, point);
}

void ZPCanvas::mouseDragged(Point point)
{
    ToolState& state = toolState(*this);
    samplePointer(*this, point);
    if (mUndoThreadRunning) return beep();
    const ToolRow* row = rowOf(state.gestureTool);
    if (row && row->scrolls) autoscroll(point);
    state.lastPoint = point;
    state.previousPt2 = std::exchange(mPt2, point);
    if (row && row->drag) row->drag(*this, point);
    showSelectionInfo("?");
}

void ZPCanvas::mouseUp(Point point)
{
    ToolState& state = toolState(*this);
    samplePointer(*this, point);
    if (mUndoThreadRunning) return beep();
    mPt2 = point;
    // The release is a position like any other: the marquee ends here even when no drag event came before.
    if (state.gestureTool == 0 && mPt1 != mPt2) updateGestureOutlines();
    mIsMouseDown = 0;
    if (mPointerFeed) mPointerFeed->close();

    if (mAuxSelectionPath && !mPolygonLasso) {
        combineWithAuxSelection();
        mAuxSelectionPath.reset();
        ++mSelectionPathVersion;
    }
    const ToolRow* row = rowOf(std::exchange(state.gestureTool, -1));
    if (row && row->release) row->release(*this, point);

    if (mSelectionPath) restartSelectionTimer();
    mMove = false;
    showSelectionInfo("?");
    setNeedsDisplay();
}

void ZPCanvas::autoscroll(Point point)
{
    QScrollArea* const view = enclosingView(*this);
    if (!view) return;
    const double zoom = effectiveZoom();
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

// ---- the platform's events ------------------------------------------------------------------------------------------

void ZPCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return event->ignore();
    toolState(*this).buttonDown = true;
    mPointerInside = true;
    mLastPointer = imagePoint(*this, event->position());
    emit pointerMoved(QPointF(mLastPointer.x, mLastPointer.y));
    mouseDown(mLastPointer);
}

void ZPCanvas::mouseMoveEvent(QMouseEvent* event)
{
    ToolState& state = toolState(*this);
    mPointerInside = true;
    mLastPointer = imagePoint(*this, event->position());
    emit pointerMoved(QPointF(mLastPointer.x, mLastPointer.y));
    if (!state.buttonDown) return samplePointer(*this, mLastPointer); // a stroke whose release was refused goes on
    stopRepeating(*this);
    if (event->buttons() & Qt::LeftButton) {
        const QPoint before = pos();
        mouseDragged(mLastPointer);
        // Only a hand rests: a movement that the program itself sent is over when it has been handled.
        if (pos() != before && event->spontaneous()) repeatWhileResting(*this, event->globalPosition());
        return;
    }
    // The button is up and nobody said so: a menu or another program took the release.
    state.buttonDown = false;
    mouseUp(mLastPointer);
}

void ZPCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return event->ignore();
    ToolState& state = toolState(*this);
    stopRepeating(*this);
    mLastPointer = imagePoint(*this, event->position());
    emit pointerMoved(QPointF(mLastPointer.x, mLastPointer.y));
    if (std::exchange(state.buttonDown, false) || mIsMouseDown) mouseUp(mLastPointer);
}

void ZPCanvas::leaveEvent(QEvent* event)
{
    mPointerInside = false;
    emit pointerMoved(QPointF(mLastPointer.x, mLastPointer.y)); // the outline of the brush goes away
    QWidget::leaveEvent(event);
}
