// SPDX-License-Identifier: GPL-3.0-or-later
/// Undo of the canvas: snapshots written on a worker, restored by number, and the alpha file operations.
#include "base/Folders.h"
#include "base/Log.h"
#include "base/WorkPool.h"
#include "canvas/ZPCanvas.h"
#include "desktop/MainThreadWake.h"
#include "desktop/Sounds.h"
#include "desktop/SystemProbes.h"
#include "undo/AlphaRLE.h"
#include "undo/AlphaRows.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotNumbers.h"
#include "undo/SnapshotStore.h"
#include <QProgressBar>
#include <QThread>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <new>
#include <system_error>

using namespace zp;

namespace
{

using Clock = std::chrono::steady_clock;
using Half = SnapshotStore::Half;

constexpr int kFirstSnapshotDelay = 300; ///< milliseconds after an open, so that the picture is on screen first
/// Paths of the alpha file operations go through a buffer of this size, its closing zero included.
constexpr std::size_t kPathBuffer = 512;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

/// Handed to the worker when it starts: all it may look at while the main thread goes on.
struct SnapshotRequest {
    std::int32_t number = -1;
    std::shared_ptr<BitmapRep> bitmap;
    std::string imagePath;
    Clock::time_point start;
};

struct UndoState {
    explicit UndoState(ZPCanvas& canvas)
        : written([&canvas] { sayWritten(canvas); }), requested([&canvas] { canvas.takeSnapshot(); })
    {
    }
    static void sayWritten(ZPCanvas& canvas)
    {
        // Another snapshot may have been started since; it will say itself when it is done.
        if (canvas.mUndoThreadRunning.load(std::memory_order_acquire)) return;
        if (canvas.mBusyIndicator) canvas.mBusyIndicator->hide();
        emit canvas.busyChanged(false);
    }

    std::optional<SnapshotRequest> request; ///< set by the main thread before the worker starts, taken by the worker
    MainThreadWake written;                 ///< the worker's last word
    MainThreadWake requested;               ///< another thread asks for a snapshot
};

UndoState& undoState(ZPCanvas& canvas)
{
    if (!canvas.mUndoState) canvas.mUndoState = std::make_shared<UndoState>(canvas);
    return *static_cast<UndoState*>(canvas.mUndoState.get());
}

/// The numbers move and the flag is set on the main thread, before the worker exists: nothing can slip in between, and
/// the menu may look at the numbers at any time.
void announceSnapshot(ZPCanvas& canvas)
{
    canvas.mUndoThreadRunning.store(true, std::memory_order_release);
    if (!canvas.mSnapshotEncoder) canvas.mSnapshotEncoder = std::make_shared<SnapshotEncoder>();
    SnapshotNumbers numbers(canvas.mUndoIndex, canvas.mUndoRedoIndex);
    undoState(canvas).request = {numbers.advance(), canvas.mBitmapRep, canvas.mImagePath, Clock::now()};
    if (canvas.mBusyIndicator) canvas.mBusyIndicator->show();
    emit canvas.busyChanged(true);
}

/// One snapshot being written, from the first step to the last; on the worker it touches no widget.
class SnapshotWriting
{
public:
    explicit SnapshotWriting(ZPCanvas& canvas) : mCanvas(canvas)
    {
        // The thread bodies may also be called directly, on the main thread: then nothing was announced yet.
        if (!undoState(canvas).request) announceSnapshot(canvas);
        mRequest = *std::exchange(undoState(canvas).request, std::nullopt);
        if (!SnapshotStore::shared().begin(mRequest.number)) logLine("takeSnapshot: there is no undo folder");
    }
    ~SnapshotWriting()
    {
        SnapshotStore& store = SnapshotStore::shared();
        if (store.commit(mRequest.number) && mRequest.bitmap)
            store.record({mRequest.imagePath, mRequest.bitmap->pixelsWide(), mRequest.bitmap->pixelsHigh(),
                          mRequest.number, mRequest.number});
        mRequest.bitmap.reset();
        mCanvas.mUndoThreadRunning.store(false, std::memory_order_release);
        undoState(mCanvas).written.wake();
    }
    SnapshotWriting(const SnapshotWriting&) = delete;
    SnapshotWriting& operator=(const SnapshotWriting&) = delete;

    Clock::time_point start() const { return mRequest.start; }
    /// The colours as if alpha were 255 everywhere. The alpha bytes are not touched: the screen may be drawn meanwhile.
    void writeColour()
    {
        const auto bytes = mCanvas.mSnapshotEncoder->encode(pixels());
        write(Half::Colour, bytes);
    }
    void writeAlpha()
    try {
        write(Half::Alpha, encodeAlphaRLE(pixels()));
    } catch (const std::bad_alloc&) {
        logLine("takeSnapshot: not enough memory");
    }

private:
    ConstBitmapView pixels() const
    {
        return mRequest.bitmap ? std::as_const(*mRequest.bitmap).view() : ConstBitmapView{};
    }
    void write(Half half, std::span<const std::uint8_t> bytes)
    {
        std::string error;
        if (bytes.empty() && half == Half::Colour)
            error = "the picture could not be encoded";
        else if (SnapshotStore::shared().stage(mRequest.number, half, bytes, error))
            return;
        logLine("takeSnapshot: %s was not written: %s", SnapshotStore::fileName(mRequest.number, half).c_str(),
                error.c_str());
    }

    ZPCanvas& mCanvas;
    SnapshotRequest mRequest;
};

void joinSnapshotWorker(ZPCanvas& canvas)
{
    if (canvas.mSnapshotWorker.joinable() && canvas.mSnapshotWorker.get_id() != std::this_thread::get_id())
        canvas.mSnapshotWorker.join();
}

/// After a step of undo or redo: a crash shall bring back what was on screen.
void recordPosition(ZPCanvas& canvas)
{
    if (!canvas.mBitmapRep) return;
    SnapshotStore::shared().record({canvas.mImagePath, canvas.mBitmapRep->pixelsWide(), canvas.mBitmapRep->pixelsHigh(),
                                    canvas.mUndoRedoIndex, canvas.mUndoIndex});
}

/// The process-wide state of one byte cursor. The picture is held weakly: a cursor left standing in a picture that was
/// replaced meanwhile finds the rows exhausted.
struct ProcessCursor {
    AlphaCursor cursor;
    std::weak_ptr<BitmapRep> picture;

    void reset(const std::shared_ptr<BitmapRep>& bitmap)
    {
        cursor = bitmap ? AlphaCursor(bitmap->view()) : AlphaCursor();
        picture = bitmap;
    }
};
ProcessCursor gReadCursor;  ///< getc; whoever encodes
ProcessCursor gWriteCursor; ///< putc; the main thread

/// What the path becomes when it is printed as a format with the one argument 0: "%%" is a per-cent sign and a
/// conversion of an integer is "0". Others would read arguments that are not there; they stay as they are.
/// @return nothing when the result does not fit the buffer
std::optional<std::string> formattedPath(const std::string& path)
{
    std::string result;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const std::size_t letter =
            path[i] == '%' ? path.find_first_not_of("0123456789+- #.hlqjzt", i + 1) : std::string::npos;
        if (letter == std::string::npos) {
            result += path[i];
            continue;
        }
        const bool plain = letter == i + 1;
        if (path[letter] == '%' && plain) {
            result += '%';
            i = letter;
        } else if (plain && std::string_view("diuoxX").find(path[letter]) != std::string_view::npos) {
            result += '0';
            i = letter;
        } else {
            result += '%';
        }
    }
    if (result.size() >= kPathBuffer) return std::nullopt;
    return result;
}

} // namespace

void ZPCanvas::takeSnapshot()
{
    if (QThread::currentThread() != thread()) {
        // Requests come from the main thread; a stroke's drawing thread asks through it. There is a state as soon as
        // there was a picture; before that there is nothing to take.
        if (mUndoState) undoState(*this).requested.wake();
        return;
    }
    if (mDontTakeSnapshot || mUndoThreadRunning.load(std::memory_order_acquire)) return;
    joinSnapshotWorker(*this);
    const bool leopard = isLeopardExactly();
    announceSnapshot(*this);
    try {
        mSnapshotWorker =
            std::thread([this, leopard] { leopard ? takeSnapshotThreadLeopard() : takeSnapshotThread(); });
    } catch (const std::system_error& error) {
        logLine("takeSnapshot: no thread to write it on (%s)", error.what());
        leopard ? takeSnapshotThreadLeopard() : takeSnapshotThread();
    }
}

void ZPCanvas::takeSnapshotT()
{
    logLine("takeSnapshot invoked with timer");
    takeSnapshot();
}

void ZPCanvas::takeSnapshotThreadLeopard()
{
    SnapshotWriting writing(*this);
    writing.writeColour();
    logLine("takeSnapshot: JPG: %f", secondsSince(writing.start()));
    const auto start = Clock::now();
    writing.writeAlpha();
    logLine("takeSnapshot: RLE: %f", secondsSince(start));
}

void ZPCanvas::takeSnapshotThread()
{
    SnapshotWriting writing(*this);
    writing.writeAlpha();
    writing.writeColour();
    logLine("takeSnapshot: JPEG+RLE: %f", secondsSince(writing.start()));
}

void ZPCanvas::restoreSnapshot(std::int32_t number)
{
    joinSnapshotWorker(*this);
    auto start = Clock::now();
    bool decoded = false;
    const auto file = SnapshotStore::shared().read(number, Half::Colour);
    if (const auto size = file ? inspectSnapshotJPEG(*file) : std::nullopt) {
        const Rect now = bounds();
        // Written so that a size that is no number counts as different.
        const bool same = mBitmapRep && now.size.width == float(size->width) && now.size.height == float(size->height);
        if (!same) {
            const ImageProperties properties = mBitmapRep ? mBitmapRep->properties : ImageProperties{};
            newImageForMeWithSize({float(size->width), float(size->height)});
            if (mBitmapRep) mBitmapRep->properties = properties;
        }
        decoded = mBitmapRep && decodeSnapshotJPEG(*file, mBitmapRep->view());
        if (mBitmapRep && !decoded)
            logLine("restoreSnapshot: %s cannot be decoded", SnapshotStore::fileName(number, Half::Colour).c_str());
    }
    logLine("restoreSnapshot: JPG: %f", secondsSince(start));

    start = Clock::now();
    const auto alpha = SnapshotStore::shared().read(number, Half::Alpha);
    if (alpha && mBitmapRep) {
        const BitmapView pixels = mBitmapRep->view();
        decodeAlphaRLE(*alpha, pixels);
        // The colour file is lossy: beside an edge of transparency it may bring back more colour than the alpha allows,
        // which every blend after it would carry on beyond white.
        const auto limitRows = [&pixels](int first, int last) {
            for (int y = first; y < last; ++y) limitColourToAlpha(pixels.row(y), pixels.width);
        };
        if (decoded) parallelBands(pixels.height, 256, limitRows);
    }
    setNeedsDisplay();
    if (mBusyIndicator) mBusyIndicator->hide();
    logLine("restoreSnapshot: RLE: %f", secondsSince(start));
}

void ZPCanvas::undo()
{
    const auto number = SnapshotNumbers(mUndoIndex, mUndoRedoIndex).undo();
    if (!number) return beep();
    restoreSnapshot(*number);
    recordPosition(*this);
}

void ZPCanvas::redo()
{
    const auto number = SnapshotNumbers(mUndoIndex, mUndoRedoIndex).redo();
    if (!number) return beep();
    restoreSnapshot(*number);
    recordPosition(*this);
}

int ZPCanvas::getc(bool reset)
{
    if (reset) {
        gReadCursor.reset(mBitmapRep);
        return -1;
    }
    const auto held = gReadCursor.picture.lock();
    return held ? gReadCursor.cursor.get() : -1;
}

void ZPCanvas::putc(int value)
{
    if (value == AlphaCursor::kPutReset) return gWriteCursor.reset(mBitmapRep);
    if (const auto held = gWriteCursor.picture.lock()) gWriteCursor.cursor.put(value);
}

void ZPCanvas::writeAlphaRLEToFile(const std::string& path)
try {
    const auto target = formattedPath(path);
    if (!target) return logLine("writeAlphaRLEToFile: the path is too long");
    const std::vector<std::uint8_t> bytes =
        encodeAlphaRLE(mBitmapRep ? std::as_const(*mBitmapRep).view() : ConstBitmapView{});
    std::string error;
    if (!writeFileSafely(*target, bytes.data(), bytes.size(), &error))
        logLine("writeAlphaRLEToFile: %s", error.c_str());
} catch (const std::bad_alloc&) {
    logLine("writeAlphaRLEToFile: not enough memory");
}

void ZPCanvas::readAlphaRLEFile(const std::string& path)
{
    const auto source = formattedPath(path);
    const auto bytes = source && mBitmapRep ? readWholeFile(*source) : std::nullopt;
    if (!bytes) return;
    joinSnapshotWorker(*this);
    decodeAlphaRLE({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()}, mBitmapRep->view());
}

void ZPCanvas::resetUndo()
{
    joinSnapshotWorker(*this);
    // A snapshot that was to be the first of the picture before this one has lost its picture.
    if (mFirstSnapshotTimer) mFirstSnapshotTimer->stop();
    if (!SnapshotStore::shared().reset()) logLine("takeSnapshot: there is no undo folder");
    SnapshotNumbers(mUndoIndex, mUndoRedoIndex).reset();
    undoState(*this); // from here on other threads may ask for snapshots
}

void ZPCanvas::scheduleFirstSnapshot()
{
    if (!mFirstSnapshotTimer) {
        mFirstSnapshotTimer = std::make_unique<QTimer>();
        mFirstSnapshotTimer->setSingleShot(true);
        connect(mFirstSnapshotTimer.get(), &QTimer::timeout, this, &ZPCanvas::takeSnapshotT);
    }
    mFirstSnapshotTimer->start(kFirstSnapshotDelay);
}

bool ZPCanvas::snapshotTimerPending() const { return mFirstSnapshotTimer && mFirstSnapshotTimer->isActive(); }
