// SPDX-License-Identifier: GPL-3.0-or-later
/// The brush: a capture thread that stores where the pointer is, and a drawing thread that stamps along behind it.
///
/// Life of a stroke: the press prepares tip, colour and bitmap and starts both threads. Mouse events feed positions;
/// the capture thread alone writes _ptArray and publishes _ptIndex; the drawing thread reads points below it, stamps
/// under mPixelLock and asks for redisplay. The release closes the feed: the capture thread ends when it has drained
/// it, the drawing thread when it has drawn the points left, and posts the end to the main thread, which joins both and
/// takes the snapshot. mDrawFinishedFlag is 0 from the press until then, so that no other stroke slips in between.
#include "base/Folders.h"
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ImageImporter.h"
#include "desktop/Sounds.h"
#include "drawing/BitmapContext.h"
#include "operations/ToolActions.h"
#include "tools/BrushTip.h"
#include "tools/StrokeGeometry.h"
#include <QComboBox>
#include <QCoreApplication>
#include <limits>

using namespace zp;

namespace
{

using namespace std::chrono_literals;

/// Beyond the refresh margin, for the smooth edges of the undo area.
constexpr int kUndoMargin = 10;
constexpr int kSegmentsPerUnion = 5;
/// How long the capture thread sleeps at most without looking whether the button is up.
constexpr auto kCaptureNap = 2ms;

/// The picture of the chosen brush shape, read once; null when there is none.
ConstBitmapView brushShape(ZPCanvas& canvas)
{
    ToolState& state = toolState(canvas);
    const int index = canvas.mBrushPopUp ? std::max(0, canvas.mBrushPopUp->currentIndex()) : 0;
    if (index != state.brushShapeIndex) {
        const std::string name = QString("B%1.png").arg(index + 1).toStdString();
        ImportOptions options;
        options.properties = false;
        state.brushShape = importImageFile(readableResourcePath(name), options).bitmap;
        state.brushShapeIndex = index;
    }
    return state.brushShape ? state.brushShape->view() : ConstBitmapView{};
}

std::int16_t toShort(int v)
{
    return std::int16_t(
        std::clamp<int>(v, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

UndoRect areaAround(Point p, int margin)
{
    const auto m = float(margin);
    const auto cut = [](float v) { return toShort(int(std::clamp(v, -40000.0f, 40000.0f))); };
    return {cut(p.y - m), cut(p.x - m), cut(p.y + m), cut(p.x + m)};
}

/// After the first segment the area is that around its first point; later ones widen it by both their ends.
void growUndoArea(UndoRect& area, bool first, Point from, Point to, int margin)
{
    if (first) {
        area = areaAround(from, margin);
        logLine("takeSnapshot: mUndoRect: %i %i %i %i", area.left, area.top, area.right, area.bottom);
        return;
    }
    for (const Point p : {from, to}) {
        const UndoRect around = areaAround(p, margin);
        area.top = std::max<std::int16_t>(0, std::min(area.top, around.top));
        area.left = std::max<std::int16_t>(0, std::min(area.left, around.left));
        area.bottom = std::max(area.bottom, around.bottom);
        area.right = std::max(area.right, around.right);
    }
}

/// On the main thread, once per stroke: both threads have nothing left to do.
void endStroke(ZPCanvas& canvas)
{
    ToolState& state = toolState(canvas);
    for (std::thread* worker : {&canvas.mPollWorker, &canvas.mDrawWorker})
        if (worker->joinable()) worker->join();
    state.strokeOpen = false;
    state.strokeBitmap.reset();
    canvas.mDrawFinishedFlag = 1;
    canvas.takeSnapshot();
    canvas.setNeedsDisplay();
}

} // namespace

void ZPToolActions::pressBrush(ZPCanvas& canvas, Point point)
{
    ToolState& state = toolState(canvas);
    const std::shared_ptr<BitmapRep> bitmap = drawingBitmap(canvas);
    if (!canvas.mDrawFinishedFlag || !bitmap) {
        state.gestureTool = -1;
        return beep();
    }
    for (std::thread* worker : {&canvas.mPollWorker, &canvas.mDrawWorker})
        if (worker->joinable()) worker->join();
    canvas.mBrushImage = std::make_shared<BrushTip>(brushShape(canvas), canvas.mSize, canvas.mColor);
    state.strokeBitmap = bitmap;
    state.strokeSize = canvas.mSize;
    state.strokeColor = canvas.mColor;
    state.captureDone = false;
    state.segmentsDrawn = 0;
    state.strokeOpen = true;
    ++state.strokeNumber;
    if (!state.ended) {
        state.ended = std::make_unique<MainThreadWake>([&canvas, &state] {
            // A late call may find the stroke ended already, or another one in progress.
            if (state.strokeOpen && state.strokeDrawn.load(std::memory_order_acquire) == state.strokeNumber)
                endStroke(canvas);
        });
    }
    canvas._ptIndex = 0; // before either thread runs: the drawing thread must not see the last stroke's points
    canvas.mDrawFinishedFlag = 0;
    canvas.mPointerFeed = std::make_shared<PointerFeed>();
    canvas.mPointerFeed->push(point);
    canvas.mPollWorker = std::thread([&canvas] { canvas.pollThread(); });
    canvas.mDrawWorker = std::thread([&canvas] { canvas.drawThread(); });
}

void ZPCanvas::finishStroke()
{
    if (!toolState(*this).strokeOpen) return;
    mIsMouseDown = 0;
    mPointerFeed->close();
    endStroke(*this);
}

void ZPCanvas::pollThread()
{
    ToolState& state = *static_cast<ToolState*>(mToolState.get());
    PointerFeed& feed = *mPointerFeed;
    const auto height = float(state.strokeBitmap->pixelsHigh());
    std::uint32_t count = 0;
    Point last{-1000, std::numeric_limits<float>::quiet_NaN()};
    while (count < kStrokeCapacity) {
        // Looked at before the queue: what was pushed before the button went up is in it.
        const bool ending = !mIsMouseDown.load(std::memory_order_acquire) || feed.isClosed();
        Point position;
        if (!feed.pop(position)) {
            if (ending) break;
            feed.waitForNews(kCaptureNap);
            continue;
        }
        const Point stored{position.x, height - position.y};
        if (stored == last) continue;
        ++count;
        _ptArray[count] = {stored.x, stored.y};
        _ptIndex.store(count, std::memory_order_release);
        state.points.notify();
        logLine("pollThread         %i", int(count));
        last = stored;
    }
    feed.abandon();
    logLine("pollThread finish");
    state.captureDone.store(true, std::memory_order_release);
    state.points.notify();
}

void ZPCanvas::drawThread()
{
    ToolState& state = *static_cast<ToolState*>(mToolState.get());
    mDirtyRectsIndex = 0;
    mRect1 = mRect2 = mRect3 = mRect4 = mRect5 = Rect{};
    mDrawFinishedFlag.store(0, std::memory_order_release);
    const StrokeMeasures measures(state.strokeSize);
    logLine("w=%i h=%i", measures.tip, measures.tip);
    const BitmapView pixels = state.strokeBitmap->view();
    const auto height = float(pixels.height);
    const BrushStamp stamp(*mBrushImage, state.strokeColor.alpha * 0.7f);

    const auto available = [&](std::uint32_t i) { return i < _ptIndex.load(std::memory_order_acquire); };
    const auto pointAt = [&](std::uint32_t i) { return Point{_ptArray[i].x, _ptArray[i].y}; };
    std::uint32_t i = 1;
    int steps = 0, segmentsInUnion = 0;
    bool drained = false;
    while (i < kStrokeCapacity - 1) {
        // A new point, or the end of the capture, cuts the waiting short.
        const auto news = [&] { return state.captureDone.load(std::memory_order_acquire) || available(i); };
        if (!available(i)) {
            logLine("waiting... 0.05");
            state.points.wait(50ms, news);
            while (!available(i) && !drained) {
                logLine("waiting... 0.1");
                state.points.wait(100ms, news);
                drained = state.captureDone.load(std::memory_order_acquire) && !available(i);
            }
            if (drained) break;
        }
        logLine("drawThread %i %i", int(i), int(_ptIndex.load(std::memory_order_relaxed)));
        const Point from = pointAt(i), to = pointAt(i + 1);
        {
            const std::lock_guard lock(mPixelLock);
            walkLine(measures.corner(from), measures.corner(to), [&](PixelPoint corner) {
                if (++steps != measures.spacing) return;
                steps = 0;
                stamp.drawAt(pixels, corner.x, pixels.height - corner.y - stamp.side());
            });
        }
        ++i;
        const Rect segment = flippedRect(SegmentRect(from, to, measures.margin), height);
        const std::uint32_t keys = currentKeyModifiers();
        if (keys & kControlKey) {
            // A trace of what is refreshed, to be seen in the picture.
            const std::lock_guard lock(mPixelLock);
            BitmapContext context(pixels);
            context.setColor({0, 0, 1, 1});
            context.frameRect(segment);
        }
        growUndoArea(mUndoRect, i == 2, from, to, measures.margin + kUndoMargin);

        if (keys & kOptionKey) {
            mRect1 = unionRect(mRect1, segment);
            if (++segmentsInUnion == kSegmentsPerUnion) {
                setNeedsDisplayInRect(std::exchange(mRect1, Rect{}));
                segmentsInUnion = 0;
            }
        } else if (keys & kControlKey) {
            if (from == to) {
                beep();
                logLine("equal points");
            } else {
                // Each area is redrawn five segments after it was painted.
                setNeedsDisplayInRect(mRect1);
                mRect1 = mRect2, mRect2 = mRect3, mRect3 = mRect4, mRect4 = mRect5, mRect5 = segment;
            }
        } else {
            setNeedsDisplayInRect(segment);
        }
        state.segmentsDrawn.store(i - 1, std::memory_order_release);
    }
    if (drained) logLine("draw thread finish");
    // The flag is set where the snapshot is taken, on the main thread: between the two no press may come.
    state.strokeDrawn.store(state.strokeNumber, std::memory_order_release);
    state.ended->wake();
}
