// SPDX-License-Identifier: GPL-3.0-or-later
/// One brush stroke at a time: a capture thread that stores where the pointer is, and a drawing thread that stamps
/// along behind it.
#pragma once
#include "base/BitmapRep.h"
#include "base/Color.h"
#include "desktop/MainThreadWake.h"
#include "document/Paint.h"
#include "tools/BrushTip.h"
#include "tools/PointerFeed.h"
#include "undo/TileJournal.h"
#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace zp
{

/// A point of a stroke as the capture thread stores it: y upwards from the picture's bottom. Without initialisers, so
/// that the array of millions of them costs no memory until a stroke is drawn.
struct StrokePoint {
    float x, y;
};

/// Area of the stroke being drawn: four 16-bit numbers.
struct UndoRect {
    std::int16_t top = 0, left = 0, bottom = 0, right = 0;
};

/// Life of a stroke: begin() starts both threads. push() feeds positions; the capture thread alone writes _ptArray and
/// publishes _ptIndex; the drawing thread reads points below it, stamps under the picture's lock and says what it
/// touched. close() ends the capture when the queue is drained, then the drawing thread when it has drawn the points
/// left, and the end is posted to the main thread, whose handler calls join(). isDrawn() is false from begin() until
/// then, so that no other stroke slips in between.
///
/// Main thread, except where noted.
class BrushStroke
{
public:
    /// What a stroke needs of the document while it is painted; the picture and the selection stand still meanwhile.
    struct Start {
        std::shared_ptr<BitmapRep> bitmap;
        std::mutex* pixelLock = nullptr;
        std::function<void(PixelBox)> beforeWrite; ///< drawing thread: pixels there are about to change
        std::shared_ptr<const BrushTip> tip;
        float size = 0;
        Color color;
        /// What a pen's pressure changes, and how a smaller tip is made; drawing thread.
        PenPressure pressure = PenPressure::Nothing;
        std::function<BrushTip(float size)> tipOfSize = {};
        ConstMaskView clip; ///< 0 paints, 255 does not; empty: everywhere
    };
    static constexpr std::uint32_t kCapacity = 3'200'000;
    /// As many sizes or opacities a pen's pressure makes: a difference of less than two pixels of a tip of 128, and
    /// of four grey levels of a stamp.
    static constexpr int kPressureLevels = 64;

    /// @param capacity  points a stroke can have; then its capture ends, though the button is still down
    /// @param painted   any thread: this part of the picture shows something new
    /// @param ended     main thread, from the event loop: both threads have nothing left to do
    BrushStroke(std::uint32_t capacity, std::function<void(Rect)> painted, std::function<void()> ended);
    ~BrushStroke();
    BrushStroke(const BrushStroke&) = delete;
    BrushStroke& operator=(const BrushStroke&) = delete;

    bool isOpen() const { return mStrokeOpen; }                                             ///< begun and not joined
    bool isDrawn() const { return mDrawFinishedFlag.load(std::memory_order_acquire) != 0; } ///< any thread
    std::uint32_t pointCount() const { return _ptIndex.load(std::memory_order_acquire); }
    Point pointAt(std::uint32_t index) const
    {
        return {_ptArray[index].x, _ptArray[index].y};
    } ///< from 1 to pointCount()
    std::uint32_t capacity() const { return mCapacity; }
    const UndoRect& undoRect() const { return mUndoRect; } ///< steady when the stroke is joined
    std::uint32_t segmentsDrawn() const { return mSegmentsDrawn.load(std::memory_order_acquire); }
    /// Whether there were stamps, and the clip let none of them through. After join(), before forgetBefore().
    bool wasClippedAway() const { return mStamped && !mFailed && mJournal.isEmpty(); }
    /// Whether memory ran out while it was drawn. After join(); takeBack() then leaves nothing of it.
    bool hasFailed() const { return mFailed; }

    // ---- transitions ---------------------------------------------------------------------------------------------

    /// @throws std::system_error when there are no threads: nothing has begun then
    void begin(Start start, Point first);
    void push(Point position); ///< the pointer is here now; nothing when no stroke is open
    /// Of the positions from here on, 0 to 1.
    void setPressure(float pressure);
    void close(); ///< the button went up
    /// Waits until all points are painted, and lets go of the picture. Nothing when no stroke is open.
    void join();
    /// What the stroke has written, and how it was before; after join().
    const TileJournal& before() const { return mJournal; }
    /// After join(): what was there before is not needed any more.
    void forgetBefore() { mJournal = {}; }

private:
    void pollThread(); ///< body of the capture thread
    void drawThread(); ///< body of the drawing thread
    void drawPoints();
    /// The stamp of a pressure, made when it is first asked for.
    const BrushStamp& stampOf(std::uint8_t pressure);
    void announce(PixelBox box, BitmapView pixels);
    void stamp(const BrushStamp& stamp, BitmapView pixels, PixelPoint corner, BitmapView scratch);

    const std::uint32_t mCapacity;
    std::unique_ptr<StrokePoint[]> _ptArray;    ///< slots 1 to _ptIndex; slot 0 is never written
    std::unique_ptr<std::uint8_t[]> mPressures; ///< the same slots, written only for a stroke that heeds them
    std::uint8_t mPressureNow = 255;            ///< main thread
    /// By level of pressure; the drawing thread's.
    std::array<std::unique_ptr<const BrushStamp>, kPressureLevels + 1> mStamps;
    std::atomic<std::uint32_t> _ptIndex{0};
    std::atomic<std::uint8_t> mDrawFinishedFlag{1};
    UndoRect mUndoRect;
    Rect mRect1, mRect2, mRect3, mRect4, mRect5; ///< refresh queue of the alternative refresh modes
    std::shared_ptr<const BrushTip> mBrushImage;
    std::unique_ptr<PointerFeed> mPointerFeed; ///< lock-free: mouse events in, capture thread out
    std::thread mPollWorker, mDrawWorker;

    Start mStrokeStart;                       ///< written before the threads start; they read it
    std::shared_ptr<BitmapRep> mStampScratch; ///< where a clipped stamp is drawn first
    TileJournal mJournal;
    bool mStamped = false;                   ///< a stamp fell on the picture; the drawing thread's until the join
    bool mFailed = false;                    ///< the same
    std::atomic<bool> mDrawWorkerDone{true}; ///< the drawing thread has nothing left to do
    bool mStrokeOpen = false;
    std::atomic<std::uint32_t> mSegmentsDrawn{0}; ///< painted, and their redisplay asked for
    std::atomic<bool> mCaptureDone{true};         ///< the capture thread stores no more points
    Wakeup mPointNews;                            ///< capture thread to drawing thread: another point, or the end
    std::function<void(Rect)> mPainted;
    MainThreadWake mEnded; ///< drawing thread to main thread: that it has
};

} // namespace zp
