// SPDX-License-Identifier: GPL-3.0-or-later
/// The gate for gestures: what all tools share at press, drag and release.
#include "base/Log.h"
#include "base/LongWait.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "undo/TileJournal.h"
#include <cmath>
#include <new>
#include <system_error>

namespace zp
{

namespace
{

/// What Shift and Option ask of a new shape; Shift wins.
SetOperation operationOfKeys(std::uint32_t keys)
{
    if (keys & kShiftKey) return SetOperation::Union;
    return keys & kOptionKey ? SetOperation::Difference : SetOperation::None;
}

} // namespace

void Document::handle(const char* stepName, const std::function<void(Edit&)>& body)
{
    Edit edit(*this);
    mGateOpen = true;
    bool failed = true, stopped = false;
    try {
        body(edit);
        failed = false;
    } catch (const Stopped&) {
        stopped = true;
    } catch (const std::bad_alloc&) {
    } catch (const std::system_error& error) {
        logLine("a gesture: %s", error.what());
    }
    mGateOpen = false;
    if (failed) {
        cancelGesture(); // as before the press
        if (!stopped) runAlert(tr("There is not enough memory."), {}, {tr("OK")});
        return;
    }
    mOwesStep |= edit.mWrote;
    // One step for the whole gesture: when its tool asks for it, else when it ends and pixels were written.
    const bool ended = !mGesture.isMouseDown() && !strokeIsOpen();
    edit.wantStep((edit.mStepDecided && edit.mStepWanted) || (ended && mOwesStep));
    if (edit.mStepWanted) mOwesStep = false;
    closeEdit(edit, stepName, StepRule::IfChanged);
    sayAfterwards(edit);
}

void Document::press(const ToolActions* actions, Point point)
{
    if (mGateOpen) return;
    emit handMoved(Hand::Press, point, actions);
    if (!message().isEmpty()) say({}); // what was done before is over
    const bool refused = strokeIsOpen() && actions && actions->refusesOpenStroke;
    // The brush and the lasso wait for the last stroke by refusing; any other tool would work on pixels still being
    // painted, so what is left of the stroke is finished first.
    if (strokeIsOpen() && !refused) finishStroke();
    if (mGesture.actions()) endGesture(); // whose release was lost
    const std::uint32_t keys = currentKeyModifiers();
    const bool paints = actions && actions->paints && !(keys & actions->readsWithKey);
    if (paints) mHistory.recordPending();
    mColorBefore = mPaint.color();
    handle(actions ? actions->name : nullptr, [&](Edit& edit) {
        const bool changesSelection = actions && (actions->combines || actions->moves || mSelection.floating());
        mGesture.begin(actions, point, changesSelection ? mSelection.remember() : nullptr);
        mSelection.restAnts();
        mView.setInfoWithoutSelection("?");
        if (!actions) return beep();
        if (refused || (paints && !mSelection.reaches(mPicture.bounds()))) {
            mGesture.refuse();
            return beep();
        }
        if (paints && actions->onFloat == OnFloat::Settle && mSelection.floating()) {
            edit.keepBefore(pixelBoxOf(mSelection.bounds().inset(-1), mPicture.width(), mPicture.height()));
            edit.settleFloat();
        }
        const bool polygon = mGesture.polygonIsOpen() && mGesture.tool() == Tool::Lasso;
        if (!polygon) mSelection.forgetParked();
        const SetOperation operation = operationOfKeys(keys);
        const bool lifts = keys & kCommandKey && actions->moves && mSelection.contains(point);
        if (operation != SetOperation::None && actions->combines && !mSelection.isNil() && !polygon && !lifts)
            mSelection.park(operation);
        actions->press(edit, point);
    });
}

void Document::drag(Point point)
{
    if (mGateOpen) return;
    emit handMoved(Hand::Drag, point);
    mGesture.stroke().push(point);
    handle(mGesture.stepName(), [&](Edit& edit) {
        mGesture.moveTo(point);
        mView.setInfoWithoutSelection("?");
        if (mGesture.actions() && mGesture.actions()->drag) mGesture.actions()->drag(edit, point);
    });
}

void Document::release(Point point)
{
    if (mGateOpen) return;
    mGesture.stroke().push(point);
    releaseOpenGesture(point);
    emit handMoved(Hand::Release, point);
    runRequests();
}

void Document::releaseOpenGesture(Point point)
{
    if (mGesture.actions()) mPaint.keepColor(mColorBefore, mPaint.color());
    handle(mGesture.stepName(), [&](Edit& edit) {
        const ToolActions* actions = mGesture.actions();
        mGesture.release(point);
        mView.setInfoWithoutSelection("?");
        // The release is a position like any other: the marquee ends here even when no drag event came before.
        if (actions && mGesture.tool() == Tool::Rectangle && mGesture.pt1() != mGesture.pt2()) shapeMarquee();
        if (mSelection.parked() && !mGesture.polygonIsOpen())
            mSelection.combine(operationOfKeys(currentKeyModifiers()));
        if (actions && actions->release) actions->release(edit, point);
        if (mGesture.hasLiftedHole()) edit.wantStep(true);
        if (!mSelection.isNil()) mSelection.marchAnts();
        mGesture.end();
        edit.redraw();
    });
}

void Document::endGesture()
{
    if (mGateOpen) return;
    if (mGesture.actions()) releaseOpenGesture(mGesture.lastPoint());
    finishStroke();
}

void Document::bringBack(const TileJournal& before)
{
    before.forEach([this](PixelBox box) {
        mHistory.beforeWrite(box);
        mHistory.noteChanged(box);
    });
    if (mPicture.bitmap()) before.restore(mPicture.writablePixels());
}

bool Document::cancelGesture()
{
    if (mGateOpen || !mGesture.actions()) return false;
    BrushStroke& stroke = mGesture.stroke();
    stroke.close();
    stroke.join();
    bringBack(stroke.before());
    stroke.forgetBefore();
    bringBack(mGesture.journal());
    if (mGesture.before()) mSelection.bringBack(*mGesture.before());
    const std::optional<int> toleranceBefore = mGesture.toleranceBefore();
    mGesture.takeBack();
    mOwesStep = false;
    if (mPaint.color() != mColorBefore) movePaintColor(mColorBefore);
    if (toleranceBefore) setToleranceSetting(*toleranceBefore);
    emit handMoved(Hand::TakenBack, mGesture.lastPoint());
    emit touched(mPicture.bounds());
    emit changed();
    runRequests();
    return true;
}

void Document::followPointer()
{
    if (mGateOpen) return;
    if (mGesture.tool() == Tool::Lasso && mGesture.polygonIsOpen() && !mGesture.isMouseDown()) {
        mSelection.moveLastCorner(mView.pointer());
        emit touched(mPicture.bounds());
    } else if (mGesture.actions() && mGesture.tool() == Tool::Rectangle && mGesture.isMouseDown() &&
               !mGesture.isMoving() && mGesture.pt1() != mGesture.pt2()) {
        shapeMarquee();
        emit touched(mPicture.bounds());
    }
}

void Document::setMarqueeRule(const MarqueeRule& rule)
{
    if (rule.width > 0 && rule.height > 0 && std::isfinite(rule.width) && std::isfinite(rule.height))
        mGesture.setMarqueeRule(rule);
}

void Document::shapeMarquee()
{
    if (mGesture.isMoving()) return;
    const Point from = mGesture.pt1(), to = mGesture.pt2();
    Rect marquee = rectFromCorners(from, to);
    const std::uint32_t keys = currentKeyModifiers();
    if (const MarqueeRule& rule = mGesture.marqueeRule(); rule.kind != MarqueeRule::Free) {
        // From the press towards the pointer; of a ratio the smallest that reaches the pointer in one direction and
        // beyond it in the other.
        const float unit = rule.kind == MarqueeRule::FixedSize
                               ? 1
                               : std::max(std::abs(to.x - from.x) / rule.width, std::abs(to.y - from.y) / rule.height);
        const float width = rule.width * unit, height = rule.height * unit;
        marquee =
            makeRect(to.x < from.x ? from.x - width : from.x, to.y < from.y ? from.y - height : from.y, width, height);
    } else if (keys & kCommandKey) {
        // A square of the smaller extent, growing from the press towards the pointer.
        const float side = float(std::min(std::abs(int(to.x - from.x)), std::abs(int(to.y - from.y))));
        marquee = makeRect(to.x > from.x ? from.x : from.x - side, to.y > from.y ? from.y : from.y - side, side, side);
    }
    BezierPath outline = keys & kControlKey ? BezierPath::withOvalInRect(marquee) : BezierPath::withRect(marquee);
    outline.setLineWidth(1 / mView.effectiveZoom());
    mSelection.shape(std::move(outline));
}

} // namespace zp
