// SPDX-License-Identifier: GPL-3.0-or-later
/// Steps handed to a thread that writes them, and brought back by number.
#include "document/History.h"
#include "base/Log.h"
#include "base/WorkPool.h"
#include "desktop/SystemProbes.h"
#include "undo/AlphaRLE.h"
#include "undo/AlphaRows.h"
#include "undo/SnapshotNumbers.h"
#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <unistd.h>

namespace zp
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr int kFirstSnapshotDelay = 300; ///< milliseconds after an open, so that the picture is on screen first
constexpr int kRowsAWorker = 256;        ///< rows from which another core is worth waking

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

std::int64_t now()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

/// The colour file is lossy: beside an edge of transparency it may bring back more colour than the alpha allows, which
/// every blend after it would carry on beyond white.
void limitToAlpha(BitmapView pixels)
{
    parallelBands(pixels.height, kRowsAWorker, [&pixels](int first, int last) {
        for (int y = first; y < last; ++y) limitColourToAlpha(pixels.row(y), pixels.width);
    });
}

SnapshotStore& store() { return SnapshotStore::shared(); }

std::shared_ptr<ExactSteps> exactStepsInFolder()
{
    auto exact = std::make_shared<ExactSteps>();
    const int folder = store().duplicateHandle();
    exact->reset(folder);
    if (folder >= 0) ::close(folder);
    return exact;
}

} // namespace

History::History(std::function<void()> changed, std::function<void(const QString&)> trouble)
    : mChangedSignal(std::move(changed)),
      mTrouble(std::move(trouble)),
      mWritten([this] { takeResults(); }),
      mWriter(store(), [this] { mWritten.wake(); })
{
    mFirstSnapshotTimer.setSingleShot(true);
    QObject::connect(&mFirstSnapshotTimer, &QTimer::timeout, &mFirstSnapshotTimer, [this] {
        logLine("takeSnapshot invoked with timer");
        if (const auto record = std::exchange(mFirstSnapshot, nullptr)) record();
    });
}

History::~History() = default;

// ---- what has changed -----------------------------------------------------------------------------------------------

void History::noteChanged(PixelBox box)
{
    mTouchedTiles.add(box);
    mStale.add(box);
    mLoose = true;
}

void History::pictureReplaced(int width, int height)
{
    const TileGrid grid{width, height};
    if (mTouchedTiles.grid() != grid) {
        mBase.reset();
        mWriterKnows = false;
        mTouchedTiles = TileSet(grid);
        mStale = TileSet(grid);
    }
    mTouchedTiles.addAll();
    mStale.addAll();
    mLoose = true;
}

void History::lostTrack()
{
    mBase.reset();
    mWriterKnows = false;
}

// ---- writing --------------------------------------------------------------------------------------------------------

void History::reset()
{
    waitForWriter();
    // A step that was to be the first of the picture before this one has lost its picture.
    mFirstSnapshotTimer.stop();
    mFirstSnapshot = nullptr;
    if (!store().reset()) logLine("takeSnapshot: there is no undo folder");
    mExact = exactStepsInFolder();
    SnapshotNumbers(mUndoIndex, mUndoRedoIndex).reset();
    mSteps.clear();
    lostTrack();
    mSaved = 0;
    mLoose = false;
    mChangedSignal();
}

void History::waitForWriter()
{
    mWriter.wait();
    takeResults();
}

StepJob History::makeJob(const Picture& picture, std::int32_t number, const StepNote& note)
{
    StepJob job;
    job.number = number;
    job.exact = mExact;
    job.alphaFirst = !isLeopardExactly();
    job.note = note;
    job.position = {picture.path(), picture.width(), picture.height(), number, number, note.time, number != mSaved};
    if (!picture.bitmap()) return job;
    const TileGrid grid{picture.width(), picture.height()};
    if (mTouchedTiles.grid() != grid) pictureReplaced(grid.width, grid.height);
    job.changed = mTouchedTiles;
    job.parent = mBase;
    if (!mBase) job.changed.addAll();
    TileSet tiles = mWriterKnows ? mStale : job.changed;
    tiles.add(job.changed);
    if (!mWriterKnows) tiles.addAll();
    job.capture = std::make_shared<PixelCapture>(picture.bitmap(), tiles.wholeRows(), job.changed);
    return job;
}

void History::handOver(const Picture& picture, std::int32_t number, const StepNote& note)
{
    mWriter.add(makeJob(picture, number, note));
    mBase.reset();
    if (picture.bitmap()) mBase = number;
    mTouchedTiles.clear();
    mStale.clear();
    mWriterKnows = true;
}

void History::record(const Picture& picture, const char* name)
{
    // Without a picture there is nothing to come back to, and numbers without steps would be in the way of redo.
    if (mDontTakeSnapshot || !picture.bitmap()) return;
    // Until the writer has what it needs to tell old pixels from new ones, nobody may write any.
    mUndoThreadRunning.store(true, std::memory_order_release);
    const std::int32_t number = SnapshotNumbers(mUndoIndex, mUndoRedoIndex).advance();
    if (mSaved >= number && number > 0) mSaved = kNeverSaved; // that step is gone
    const StepNote note{name ? name : "", now()};
    while (!mSteps.empty() && mSteps.back().number >= number) mSteps.pop_back();
    mSteps.push_back({number, note.name, note.time});
    handOver(picture, number, note);
    mLoose = false;
    mUndoThreadRunning.store(false, std::memory_order_release);
    mChangedSignal();
}

void History::recordOwed(const Picture& picture, const char* name)
{
    recordPending();
    if (!owesStep() || !picture.bitmap()) return;
    const bool suppressed = std::exchange(mDontTakeSnapshot, false);
    record(picture, name);
    mDontTakeSnapshot = suppressed;
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

void History::takeResults()
{
    const std::vector<WrittenStep> results = mWriter.takeWritten();
    if (results.empty()) return;
    for (const WrittenStep& result : results) {
        if (!result.exact && mBase == result.number) mBase.reset();
        if (!result.pair) mWriterKnows = false;
        const QString why = QString::fromStdString(result.error);
        if (!result.pair && result.exact)
            say(tr("Undo steps cannot be written to the disk (%1). They are kept in memory until the program ends.")
                    .arg(why));
        else if (!result.pair)
            say(tr("The last change could not be kept as a step of its own (%1).").arg(why));
        else if (!result.exact && !why.isEmpty())
            say(tr("The very pixels of the last change could not be kept (%1). Undo brings them back from a JPEG copy: "
                   "colours may differ a little.")
                    .arg(why));
        else if (store().place() == SnapshotStore::Place::Runtime)
            say(tr("There is no place for undo steps among the temporary files. A private folder of this session "
                   "serves instead."));
        else
            mSaid.clear();
    }
    mChangedSignal();
}

void History::say(const QString& trouble)
{
    if (trouble == mSaid) return;
    mSaid = trouble;
    mTrouble(trouble);
}

// ---- bringing back --------------------------------------------------------------------------------------------------

History::Kept History::kept(std::int32_t number) const
{
    if (mExact->isExact(number)) return Kept::Exact;
    if (store().has(number)) return Kept::Approximately;
    return mWriter.isIdle() ? Kept::Nowhere : Kept::BeingWritten;
}

bool History::keepsPresent(const Picture& picture)
{
    const auto isKept = [this] { return mExact->isThere(mUndoRedoIndex) || store().has(mUndoRedoIndex); };
    if (!picture.bitmap() || isKept()) return true;
    // Its writing failed: perhaps there is room by now, on the disk or in memory.
    const auto step =
        std::find_if(mSteps.begin(), mSteps.end(), [this](const Step& each) { return each.number == mUndoRedoIndex; });
    if (step == mSteps.end()) return true; // there was none to begin with
    lostTrack();
    handOver(picture, mUndoRedoIndex, {step->name, step->time});
    waitForWriter();
    if (isKept()) return true;
    say(tr("Nothing was undone: what is on screen could be kept neither on the disk nor in memory."));
    return false;
}

bool History::undo(Picture& picture, const Resize& resize)
{
    waitForWriter();
    const std::int32_t from = mUndoRedoIndex;
    if (!SnapshotNumbers(mUndoIndex, mUndoRedoIndex).undo()) return false;
    mUndoRedoIndex = from;
    if (!keepsPresent(picture)) return false;
    for (std::int32_t number = from - 1; number >= 0; --number)
        if (goTo(number, picture, resize)) return true;
    return false;
}

bool History::redo(Picture& picture, const Resize& resize)
{
    waitForWriter();
    const std::int32_t from = mUndoRedoIndex;
    if (!SnapshotNumbers(mUndoIndex, mUndoRedoIndex).redo()) return false;
    mUndoRedoIndex = from;
    for (std::int32_t number = from + 1; number <= mUndoIndex; ++number)
        if (goTo(number, picture, resize)) return true;
    return false;
}

bool History::goTo(std::int32_t number, Picture& picture, const Resize& resize)
{
    waitForWriter();
    if (number < 0 || number > mUndoIndex || (number < mUndoRedoIndex && !keepsPresent(picture))) return false;
    if (!restore(number, picture, resize)) return false;
    mUndoRedoIndex = number;
    mLoose = false;
    mChangedSignal();
    return true;
}

bool History::takeBack(Picture& picture, const Resize& resize)
try {
    waitForWriter();
    return mUndoRedoIndex >= 0 && restore(mUndoRedoIndex, picture, resize);
} catch (const std::bad_alloc&) {
    return false; // whoever takes back has said already that memory is short
}

bool History::restore(std::int32_t number, Picture& picture, const Resize& resize)
{
    const auto start = Clock::now();
    const bool hasExact = mExact->gridOf(number).has_value();
    const bool exact = restoreExact(number, picture, resize);
    if (!exact && !restoreWholePair(number, picture, resize)) return false;
    picture.restored();
    if (hasExact && !exact)
        mTrouble(tr("The very pixels of this step could not be read. What is shown comes from its JPEG copy: colours "
                    "may differ a little."));
    logLine("restoreSnapshot: %s: %f", exact ? "exact" : "JPG+RLE", secondsSince(start));
    return true;
}

bool History::restoreExact(std::int32_t number, Picture& picture, const Resize& resize)
{
    const auto grid = mExact->gridOf(number);
    if (!grid) return false;
    const bool sameSize = mTouchedTiles.grid() == *grid && picture.width() == grid->width &&
                          picture.height() == grid->height && picture.bitmap();
    if (sameSize && mBase && mExact->shareTiles(*mBase, number)) {
        const auto written = mExact->restore(number, mBase, mTouchedTiles, picture.writablePixels());
        if (!written) return false;
        mStale.add(*written);
    } else {
        const auto pixels = pixelsOfExact(number);
        if (!pixels) return false;
        put(pixels, picture, resize);
    }
    mBase = number;
    mTouchedTiles.clear();
    return true;
}

bool History::restoreWholePair(std::int32_t number, Picture& picture, const Resize& resize)
{
    const std::shared_ptr<BitmapRep> pixels = pixelsOfPair(number);
    if (!pixels) return false;
    put(pixels, picture, resize);
    lostTrack();
    return true;
}

std::shared_ptr<BitmapRep> History::pixelsOfPair(std::int32_t number) const
{
    const auto colour = store().read(number, StepHalf::Colour), alpha = store().read(number, StepHalf::Alpha);
    const auto size = colour && alpha ? inspectSnapshotJPEG(*colour) : std::nullopt;
    if (!size) return nullptr;
    auto pixels = BitmapRep::createUninitialized(size->width, size->height);
    if (!pixels) throw std::bad_alloc();
    if (!decodeSnapshotJPEG(*colour, pixels->view())) return nullptr;
    decodeAlphaRLE(*alpha, pixels->view());
    limitToAlpha(pixels->view());
    return pixels;
}

std::shared_ptr<BitmapRep> History::pixelsOfExact(std::int32_t number) const
{
    const auto grid = mExact->gridOf(number);
    if (!grid) return nullptr;
    auto pixels = BitmapRep::createUninitialized(grid->width, grid->height);
    if (!pixels) throw std::bad_alloc();
    return mExact->restore(number, std::nullopt, {}, pixels->view()) ? pixels : nullptr;
}

std::shared_ptr<BitmapRep> History::pixelsOf(std::int32_t number) const
{
    auto exact = pixelsOfExact(number);
    return exact ? exact : pixelsOfPair(number);
}

void History::put(std::shared_ptr<BitmapRep> pixels, Picture& picture, const Resize& resize)
{
    const int width = pixels->pixelsWide(), height = pixels->pixelsHigh();
    if (picture.width() == width && picture.height() == height)
        copyPixels(std::as_const(*pixels).view(), picture.writablePixels());
    else
        resize(std::move(pixels));
    pictureReplaced(width, height);
}

void History::restorePair(std::int32_t number, Picture& picture, const Resize& resize)
{
    waitForWriter();
    auto start = Clock::now();
    if (store().damaged(number, StepHalf::Colour) || store().damaged(number, StepHalf::Alpha)) {
        logLine("restoreSnapshot: step %d is damaged", int(number));
        return;
    }
    const auto colour = store().read(number, StepHalf::Colour);
    const auto size = colour ? inspectSnapshotJPEG(*colour) : std::nullopt;
    bool decoded = false;
    if (size) {
        const auto pixels = BitmapRep::createUninitialized(size->width, size->height);
        if (!pixels) throw std::bad_alloc();
        decoded = decodeSnapshotJPEG(*colour, pixels->view());
        if (decoded) put(pixels, picture, resize);
    }
    logLine("restoreSnapshot: JPG: %f", secondsSince(start));

    start = Clock::now();
    const auto alpha = store().read(number, StepHalf::Alpha);
    if (alpha && picture.bitmap() && (decoded || !colour)) {
        decodeAlphaRLE(*alpha, picture.writablePixels());
        if (decoded) limitToAlpha(picture.writablePixels());
    }
    lostTrack();
    picture.restored();
    logLine("restoreSnapshot: RLE: %f", secondsSince(start));
}

void History::noteSaved(const Picture& picture)
{
    mSaved = std::max(mUndoRedoIndex, 0);
    mLoose = false;
    waitForWriter();
    notePosition(picture);
}

void History::notePosition(const Picture& picture)
{
    if (picture.bitmap() && mUndoRedoIndex >= 0)
        store().record(
            {picture.path(), picture.width(), picture.height(), mUndoRedoIndex, mUndoIndex, now(), isModified()});
}

// ---- other pictures -------------------------------------------------------------------------------------------------

History::Aside History::putAside()
{
    waitForWriter();
    Aside aside{store().putAside(), mUndoIndex, mUndoRedoIndex, mSaved, std::exchange(mSteps, {}), mExact};
    reset();
    return aside;
}

bool History::bringBack(Aside aside)
{
    reset();
    if (aside.folder && !store().bringBack(*aside.folder)) return false;
    mExact = aside.exact;
    mSteps = std::move(aside.steps);
    mUndoIndex = aside.newest;
    mUndoRedoIndex = aside.position;
    mSaved = aside.saved;
    mChangedSignal();
    return true;
}

History::Aside History::readAside(int folder, const RecoverableWork& work)
{
    Aside aside{folder, work.newest, work.number, work.changed ? kNeverSaved : work.number, {}, exactStepsInFolder()};
    const int handle = store().duplicateHandleOf(folder);
    aside.exact->adopt(handle, work.newest);
    for (std::int32_t number = 0; number <= work.newest; ++number) {
        const auto note = readStepNote(handle, number);
        if (note || hasPair(handle, number))
            aside.steps.push_back({number, note ? note->name : std::string(), note ? note->time : 0});
    }
    if (handle >= 0) ::close(handle);
    return aside;
}

void History::drop(const Aside& aside)
{
    if (aside.folder) store().dropAside(*aside.folder);
}

bool History::leaveBehind(const Aside& aside) { return aside.folder && store().leaveBehind(*aside.folder); }

bool History::isThere(const Aside& aside)
{
    if (!aside.folder) return true; // in memory
    const int handle = store().duplicateHandleOf(*aside.folder);
    if (handle < 0) return false;
    ::close(handle);
    return true;
}

void History::close()
{
    waitForWriter();
    store().remove();
}

} // namespace zp
