// SPDX-License-Identifier: GPL-3.0-or-later
/// The two threads of a brush stroke.
#include "document/BrushStroke.h"
#include "base/Log.h"
#include "desktop/KeyModifiers.h"
#include "desktop/Sounds.h"
#include "drawing/BitmapContext.h"
#include "tools/MaskMix.h"
#include "tools/StrokeGeometry.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <exception>
#include <limits>
#include <new>

namespace zp
{

namespace
{

using namespace std::chrono_literals;

/// Beyond the refresh margin, for the smooth edges of the undo area.
constexpr int kUndoMargin = 10;
constexpr int kSegmentsPerUnion = 5;
/// How long the capture thread sleeps at most without looking whether the button is up.
constexpr auto kCaptureNap = 2ms;
/// Side of the tips that are kept for every pressure; all of them take 35 MB then.
constexpr int kLargestKeptTip = 256;
/// The brush never paints fuller than this in one stamp.
constexpr float kStampOpacity = 0.7f;

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

} // namespace

BrushStroke::BrushStroke(std::uint32_t capacity, std::function<void(Rect)> painted, std::function<void()> ended)
    : mCapacity(capacity),
      _ptArray(new StrokePoint[std::size_t(capacity) +
                               2]), // undefined on purpose: pages that no stroke reaches cost nothing
      mPressures(new std::uint8_t[std::size_t(capacity) + 2]), // the same
      mPainted(std::move(painted)),
      mEnded([this, ended = std::move(ended)] {
          // A late call may find the stroke joined already, or another one in progress.
          if (mStrokeOpen && mDrawWorkerDone.load(std::memory_order_acquire)) ended();
      })
{
}

BrushStroke::~BrushStroke()
{
    close();
    join();
}

void BrushStroke::begin(Start start, Point first)
{
    mStampScratch.reset();
    if (!start.clip.isEmpty() && start.tip->side() > 0) {
        mStampScratch = BitmapRep::createUninitialized(start.tip->side(), start.tip->side());
        if (!mStampScratch) throw std::bad_alloc();
    }
    mStrokeStart = std::move(start);
    mBrushImage = mStrokeStart.tip;
    mJournal = TileJournal(std::as_const(*mStrokeStart.bitmap).view());
    mStamped = false;
    mFailed = false;
    mCaptureDone = false;
    mDrawWorkerDone = false;
    mSegmentsDrawn = 0;
    _ptIndex = 0; // before either thread runs: the drawing thread must not see the last stroke's points
    mPointerFeed = std::make_unique<PointerFeed>();
    mPointerFeed->push(first, mPressureNow);
    mDrawFinishedFlag = 0;
    mStrokeOpen = true;
    try {
        mPollWorker = std::thread([this] { pollThread(); });
        mDrawWorker = std::thread([this] { drawThread(); });
    } catch (...) {
        close();
        mCaptureDone = true; // in case there is not even a capture thread to say so
        join();
        throw;
    }
}

void BrushStroke::push(Point position)
{
    if (mStrokeOpen) mPointerFeed->push(position, mPressureNow);
}

void BrushStroke::setPressure(float pressure)
{
    mPressureNow = std::uint8_t(std::lround(std::clamp(pressure, 0.0f, 1.0f) * 255));
}

void BrushStroke::close()
{
    if (mStrokeOpen) mPointerFeed->close();
}

void BrushStroke::join()
{
    if (!mStrokeOpen) return;
    for (std::thread* worker : {&mPollWorker, &mDrawWorker})
        if (worker->joinable()) worker->join();
    mStrokeOpen = false;
    mStrokeStart.bitmap.reset();
    mStrokeStart.clip = {};
    mStamps = {};
    mDrawFinishedFlag = 1;
}

void BrushStroke::pollThread()
{
    PointerFeed& feed = *mPointerFeed;
    const auto height = float(mStrokeStart.bitmap->pixelsHigh());
    std::uint32_t count = 0;
    Point last{-1000, std::numeric_limits<float>::quiet_NaN()};
    while (count < mCapacity) {
        // Looked at before the queue: what was pushed before the button went up is in it.
        const bool ending = feed.isClosed();
        Point position;
        std::uint8_t pressure = 255;
        if (!feed.pop(position, pressure)) {
            if (ending) break;
            feed.waitForNews(kCaptureNap);
            continue;
        }
        const Point stored{position.x, height - position.y};
        if (stored == last) continue;
        ++count;
        _ptArray[count] = {stored.x, stored.y};
        if (mStrokeStart.pressure != PenPressure::Nothing) mPressures[count] = pressure;
        _ptIndex.store(count, std::memory_order_release);
        mPointNews.notify();
        logLine("pollThread         %i", int(count));
        last = stored;
    }
    feed.abandon();
    logLine("pollThread finish");
    mCaptureDone.store(true, std::memory_order_release);
    mPointNews.notify();
}

const BrushStamp& BrushStroke::stampOf(std::uint8_t pressure)
{
    const int level = (pressure * kPressureLevels + 127) / 255;
    std::unique_ptr<const BrushStamp>& made = mStamps[std::size_t(level)];
    if (made) return *made;
    // Of large tips only the one in use is kept: each takes tens of megabytes.
    if (mBrushImage->side() > kLargestKeptTip)
        for (std::unique_ptr<const BrushStamp>& other : mStamps) other.reset();
    const float fraction = float(level) / kPressureLevels, opacity = mStrokeStart.color.alpha * kStampOpacity;
    if (mStrokeStart.pressure == PenPressure::Opacity)
        made = std::make_unique<const BrushStamp>(*mBrushImage, opacity * fraction);
    else if (level == kPressureLevels)
        made = std::make_unique<const BrushStamp>(*mBrushImage, opacity);
    else
        made = std::make_unique<const BrushStamp>(mStrokeStart.tipOfSize(mStrokeStart.size * fraction), opacity);
    return *made;
}

void BrushStroke::announce(PixelBox box, BitmapView pixels)
{
    if (mStrokeStart.beforeWrite) mStrokeStart.beforeWrite(box);
    if (!mJournal.keep(pixels, box)) throw std::bad_alloc();
}

void BrushStroke::stamp(const BrushStamp& stamp, BitmapView pixels, PixelPoint corner, BitmapView scratch)
{
    const PixelBox box =
        PixelBox{corner.x, corner.y, corner.x + stamp.side(), corner.y + stamp.side()}.intersected(pixels.box());
    if (box.isEmpty()) return;
    mStamped = true;
    if (mStrokeStart.clip.isEmpty()) {
        announce(box, pixels);
        return stamp.drawAt(pixels, corner.x, corner.y);
    }
    if (!maskReaches(mStrokeStart.clip, box)) return;
    announce(box, pixels);
    // Stamped beside the picture, and mixed in as far as the selection lets it through.
    scratch.width = box.width(), scratch.height = box.height();
    for (int y = 0; y < scratch.height; ++y)
        std::memcpy(scratch.rowData(y), pixels.pixel(box.x0, box.y0 + y), std::size_t(scratch.width) * 4);
    stamp.drawAt(scratch, corner.x - box.x0, corner.y - box.y0);
    mixThroughMask(pixels, scratch, mStrokeStart.clip, box);
}

void BrushStroke::drawThread()
{
    try {
        drawPoints();
    } catch (const std::exception& error) {
        logLine("drawThread: %s", error.what());
        mFailed = true;
    }
    // The flag is set where the step is recorded, on the main thread: between the two no press may come.
    mDrawWorkerDone.store(true, std::memory_order_release);
    mEnded.wake();
}

void BrushStroke::drawPoints()
{
    mRect1 = mRect2 = mRect3 = mRect4 = mRect5 = Rect{};
    const StrokeMeasures measures(mStrokeStart.size);
    logLine("w=%i h=%i", measures.tip, measures.tip);
    const BitmapView pixels = mStrokeStart.bitmap->view();
    const auto height = float(pixels.height);
    const BrushStamp tip(*mBrushImage, mStrokeStart.color.alpha * kStampOpacity);
    // Corners from where a stamp may touch the picture.
    const PixelBox reach =
        measures.spacing > 0 ? PixelBox{-tip.side(), -tip.side(), pixels.width + tip.side(), pixels.height + tip.side()}
                             : PixelBox{}; // a brush this small leaves no stamp

    const bool heedsPressure = mStrokeStart.pressure != PenPressure::Nothing;
    // By how far the walk has come between two samples.
    const auto pressureBetween = [this](std::uint32_t index, PixelPoint begin, PixelPoint end, PixelPoint at) {
        const int way = std::max(std::abs(end.x - begin.x), std::abs(end.y - begin.y));
        const int gone = std::max(std::abs(at.x - begin.x), std::abs(at.y - begin.y));
        const float share = way > 0 ? std::min(1.0f, float(gone) / float(way)) : 1.0f;
        return std::uint8_t(std::lround(std::lerp(float(mPressures[index]), float(mPressures[index + 1]), share)));
    };
    const auto available = [&](std::uint32_t i) { return i < _ptIndex.load(std::memory_order_acquire); };
    std::uint32_t i = 1;
    int steps = 0, segmentsInUnion = 0;
    bool drained = false;
    while (i < mCapacity) {
        // A new point, or the end of the capture, cuts the waiting short.
        const auto news = [&] { return mCaptureDone.load(std::memory_order_acquire) || available(i); };
        if (!available(i)) {
            logLine("waiting... 0.05");
            mPointNews.wait(50ms, news);
            while (!available(i) && !drained) {
                logLine("waiting... 0.1");
                mPointNews.wait(100ms, news);
                drained = mCaptureDone.load(std::memory_order_acquire) && !available(i);
            }
            if (drained) break;
        }
        logLine("drawThread %i %i", int(i), int(_ptIndex.load(std::memory_order_relaxed)));
        const Point from = pointAt(i), to = pointAt(i + 1);
        {
            const std::lock_guard lock(*mStrokeStart.pixelLock);
            const PixelPoint begin = measures.corner(from), end = measures.corner(to);
            walkLine(
                begin, end, reach,
                [&](PixelPoint corner) {
                    const BrushStamp* now = &tip;
                    int spacing = measures.spacing, inset = 0;
                    if (heedsPressure) {
                        now = &stampOf(pressureBetween(i, begin, end, corner));
                        inset = (tip.side() - now->side()) / 2; // about the same middle
                        if (mStrokeStart.pressure == PenPressure::Size)
                            spacing = std::max(1, StrokeMeasures(float(now->side())).spacing);
                    }
                    if (++steps < spacing) return;
                    steps = 0;
                    stamp(*now, pixels, {corner.x + inset, pixels.height - corner.y - tip.side() + inset},
                          mStampScratch ? mStampScratch->view() : BitmapView{});
                },
                [&](std::int64_t pixelsSkipped) {
                    if (measures.spacing > 0) steps = int((steps + pixelsSkipped) % measures.spacing);
                });
        }
        ++i;
        const Rect segment = flippedRect(SegmentRect(from, to, measures.margin), height);
        const std::uint32_t keys = currentKeyModifiers();
        if (keys & kControlKey) {
            // A trace of what is refreshed, to be seen in the picture.
            const std::lock_guard lock(*mStrokeStart.pixelLock);
            announce(pixelBoxOf(segment.inset(-1), pixels.width, pixels.height), pixels);
            BitmapContext context(pixels);
            context.setColor({0, 0, 1, 1});
            context.frameRect(segment);
        }
        growUndoArea(mUndoRect, i == 2, from, to, measures.margin + kUndoMargin);

        if (keys & kOptionKey) {
            mRect1 = unionRect(mRect1, segment);
            if (++segmentsInUnion == kSegmentsPerUnion) {
                mPainted(std::exchange(mRect1, Rect{}));
                segmentsInUnion = 0;
            }
        } else if (keys & kControlKey) {
            if (from == to) {
                beep();
                logLine("equal points");
            } else {
                // Each area is redrawn five segments after it was painted.
                mPainted(mRect1);
                mRect1 = mRect2, mRect2 = mRect3, mRect3 = mRect4, mRect4 = mRect5, mRect5 = segment;
            }
        } else {
            mPainted(segment);
        }
        mSegmentsDrawn.store(i - 1, std::memory_order_release);
    }
    if (drained) logLine("draw thread finish");
}

} // namespace zp
