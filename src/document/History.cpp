// SPDX-License-Identifier: GPL-3.0-or-later
/// Steps written on a thread of their own and read back by number.
#include "document/History.h"
#include "base/Log.h"
#include "base/WorkPool.h"
#include "desktop/SystemProbes.h"
#include "undo/AlphaRLE.h"
#include "undo/AlphaRows.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotNumbers.h"
#include <new>
#include <span>
#include <system_error>

namespace zp
{

namespace
{

using Clock = std::chrono::steady_clock;
using Half = SnapshotStore::Half;

constexpr int kFirstSnapshotDelay = 300; ///< milliseconds after an open, so that the picture is on screen first
constexpr int kRowsAWorker = 256;        ///< rows from which another core is worth waking

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

} // namespace

/// One step being written, from the first file to the last; on the writer's thread it touches no widget.
class History::Writing
{
public:
    Writing(History& history, Request request) : mHistory(history), mRequest(std::move(request))
    {
        if (!SnapshotStore::shared().begin(mRequest.number)) logLine("takeSnapshot: there is no undo folder");
    }
    ~Writing()
    {
        SnapshotStore& store = SnapshotStore::shared();
        if (store.commit(mRequest.number) && mRequest.bitmap)
            store.record({mRequest.imagePath, mRequest.bitmap->pixelsWide(), mRequest.bitmap->pixelsHigh(),
                          mRequest.number, mRequest.number});
        mRequest.bitmap.reset();
        mHistory.mUndoThreadRunning.store(false, std::memory_order_release);
        mHistory.mWritten.wake();
    }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

    Clock::time_point start() const { return mRequest.start; }
    /// The colours as if alpha were 255 everywhere. The alpha bytes are not touched: the screen may be drawn meanwhile.
    void writeColour() { write(Half::Colour, mHistory.mSnapshotEncoder->encode(pixels())); }
    void writeAlpha()
    try {
        write(Half::Alpha, encodeAlphaRLE(pixels()));
    } catch (const std::bad_alloc&) {
        logLine("takeSnapshot: not enough memory");
    }

private:
    ConstBitmapView pixels() const { return mRequest.bitmap ? mRequest.bitmap->view() : ConstBitmapView{}; }
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

    History& mHistory;
    Request mRequest;
};

History::History(std::function<void(bool)> busyChanged)
    : mSnapshotEncoder(std::make_unique<SnapshotEncoder>()),
      mBusyChanged(std::move(busyChanged)),
      mWritten([this] { sayWritten(); })
{
    mFirstSnapshotTimer.setSingleShot(true);
    QObject::connect(&mFirstSnapshotTimer, &QTimer::timeout, &mFirstSnapshotTimer, [this] {
        logLine("takeSnapshot invoked with timer");
        if (const auto record = std::exchange(mFirstSnapshot, nullptr)) record();
    });
}

History::~History() { waitForWriter(); }

void History::sayWritten()
{
    // Another step may have been started since; it will say itself when it is done.
    if (!isWriting()) mBusyChanged(false);
}

void History::reset()
{
    waitForWriter();
    // A step that was to be the first of the picture before this one has lost its picture.
    mFirstSnapshotTimer.stop();
    mFirstSnapshot = nullptr;
    if (!SnapshotStore::shared().reset()) logLine("takeSnapshot: there is no undo folder");
    SnapshotNumbers(mUndoIndex, mUndoRedoIndex).reset();
    mSteps.clear();
}

void History::waitForWriter()
{
    if (mSnapshotWorker.joinable()) mSnapshotWorker.join();
}

void History::record(const Picture& picture, const char* name)
{
    if (mDontTakeSnapshot || isWriting()) return;
    waitForWriter();
    const bool leopard = isLeopardExactly();
    // The numbers move and the flag is set before the writer exists: nothing can slip in between.
    mUndoThreadRunning.store(true, std::memory_order_release);
    SnapshotNumbers numbers(mUndoIndex, mUndoRedoIndex);
    const Request request{numbers.advance(), picture.bitmap(), picture.path(), Clock::now()};
    std::erase_if(mSteps, [&request](const Step& step) { return step.number >= request.number; });
    mSteps.push_back({request.number, name ? name : "", std::chrono::system_clock::now()});
    mBusyChanged(true);
    const auto write = [this, leopard, request] {
        leopard ? takeSnapshotThreadLeopard(request) : takeSnapshotThread(request);
    };
    try {
        mSnapshotWorker = std::thread(write);
    } catch (const std::system_error& error) {
        logLine("takeSnapshot: no thread to write it on (%s)", error.what());
        write();
    }
}

void History::recordSoon(const Picture& picture, const char* name)
{
    mFirstSnapshot = [this, &picture, name] { record(picture, name); };
    mFirstSnapshotTimer.start(kFirstSnapshotDelay);
}

void History::recordPending()
{
    if (!firstStepPending()) return;
    mFirstSnapshotTimer.stop();
    if (const auto record = std::exchange(mFirstSnapshot, nullptr)) record();
}

void History::takeSnapshotThreadLeopard(Request request)
{
    Writing writing(*this, std::move(request));
    writing.writeColour();
    logLine("takeSnapshot: JPG: %f", secondsSince(writing.start()));
    const auto start = Clock::now();
    writing.writeAlpha();
    logLine("takeSnapshot: RLE: %f", secondsSince(start));
}

void History::takeSnapshotThread(Request request)
{
    Writing writing(*this, std::move(request));
    writing.writeAlpha();
    writing.writeColour();
    logLine("takeSnapshot: JPEG+RLE: %f", secondsSince(writing.start()));
}

std::optional<std::int32_t> History::stepBack() { return SnapshotNumbers(mUndoIndex, mUndoRedoIndex).undo(); }

std::optional<std::int32_t> History::stepOn() { return SnapshotNumbers(mUndoIndex, mUndoRedoIndex).redo(); }

void History::restore(std::int32_t number, Picture& picture, const std::function<void(int width, int height)>& resize)
{
    waitForWriter();
    auto start = Clock::now();
    bool decoded = false;
    const auto file = SnapshotStore::shared().read(number, Half::Colour);
    if (const auto size = file ? inspectSnapshotJPEG(*file) : std::nullopt) {
        if (picture.width() != size->width || picture.height() != size->height) resize(size->width, size->height);
        decoded = picture.bitmap() && decodeSnapshotJPEG(*file, picture.writablePixels());
        if (picture.bitmap() && !decoded)
            logLine("restoreSnapshot: %s cannot be decoded", SnapshotStore::fileName(number, Half::Colour).c_str());
    }
    logLine("restoreSnapshot: JPG: %f", secondsSince(start));

    start = Clock::now();
    const auto alpha = SnapshotStore::shared().read(number, Half::Alpha);
    if (alpha && picture.bitmap()) {
        const BitmapView pixels = picture.writablePixels();
        decodeAlphaRLE(*alpha, pixels);
        // The colour file is lossy: beside an edge of transparency it may bring back more colour than the alpha allows,
        // which every blend after it would carry on beyond white.
        const auto limitRows = [&pixels](int first, int last) {
            for (int y = first; y < last; ++y) limitColourToAlpha(pixels.row(y), pixels.width);
        };
        if (decoded) parallelBands(pixels.height, kRowsAWorker, limitRows);
    }
    picture.restored();
    mBusyChanged(false);
    logLine("restoreSnapshot: RLE: %f", secondsSince(start));
}

void History::notePosition(const Picture& picture)
{
    if (picture.bitmap())
        SnapshotStore::shared().record({picture.path(), picture.width(), picture.height(), mUndoRedoIndex, mUndoIndex});
}

bool History::adopt(const RecoverableWork& work)
{
    waitForWriter();
    if (!SnapshotStore::shared().adoptRecoverable()) return false;
    mFirstSnapshotTimer.stop();
    mFirstSnapshot = nullptr;
    mUndoIndex = work.newest;
    mUndoRedoIndex = work.number;
    mSteps.clear();
    for (std::int32_t number = 0; number <= work.newest; ++number) mSteps.push_back({number, "", {}});
    return true;
}

void History::close()
{
    waitForWriter();
    SnapshotStore::shared().remove();
}

} // namespace zp
