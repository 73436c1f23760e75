// SPDX-License-Identifier: GPL-3.0-or-later
/// Step after step: the pair, the exact record, the note for the start after a crash.
#include "undo/SnapshotWriter.h"
#include "base/Log.h"
#include "base/Translation.h"
#include "undo/SnapshotStore.h"
#include <algorithm>
#include <chrono>
#include <new>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace zp
{

namespace
{

using Clock = std::chrono::steady_clock;
using Half = StepHalf;

/// Steps that may wait, and what the copies made for them may take, before whoever asks for another has to wait.
constexpr std::size_t kMostWaiting = 64;
constexpr std::uint64_t kMostCopied = std::uint64_t{384} << 20;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

} // namespace

SnapshotWriter::SnapshotWriter(SnapshotStore& store, std::function<void()> written)
    : mStore(store), mSayWritten(std::move(written))
{
}

SnapshotWriter::~SnapshotWriter()
{
    {
        const std::lock_guard lock(mJobsLock);
        mEnds = true;
    }
    mNews.notify_all();
    if (mThread.joinable()) mThread.join();
}

void SnapshotWriter::add(StepJob job)
{
    std::unique_lock lock(mJobsLock);
    mNews.wait(lock, [this] {
        std::uint64_t copied = 0;
        for (const auto& capture : mCaptures) copied += capture->bytesCopied();
        return mJobs.empty() || (mJobs.size() < kMostWaiting && copied < kMostCopied);
    });
    const bool startsThread = !mThread.joinable();
    if (job.capture) mCaptures.push_back(job.capture);
    mJobs.push_back(std::move(job));
    mLeft.store(int(mJobs.size()), std::memory_order_release);
    if (!startsThread) {
        lock.unlock();
        mNews.notify_all();
        return;
    }
    try {
        mThread = std::thread([this] { run(); });
    } catch (const std::system_error& error) {
        logLine("takeSnapshot: no thread to write it on (%s)", error.what());
        StepJob& first = mJobs.front();
        lock.unlock();
        finished(write(first));
    }
}

void SnapshotWriter::beforeWrite(PixelBox box)
{
    if (isIdle()) return;
    std::vector<std::shared_ptr<PixelCapture>> captures;
    {
        const std::lock_guard lock(mJobsLock);
        captures = mCaptures;
    }
    for (const auto& capture : captures) capture->beforeWrite(box);
}

void SnapshotWriter::wait()
{
    std::unique_lock lock(mJobsLock);
    mNews.wait(lock, [this] { return mJobs.empty(); });
}

std::vector<WrittenStep> SnapshotWriter::takeWritten()
{
    const std::lock_guard lock(mJobsLock);
    return std::exchange(mFinishedSteps, {});
}

void SnapshotWriter::run()
{
    std::unique_lock lock(mJobsLock);
    for (;;) {
        mNews.wait(lock, [this] { return mEnds || !mJobs.empty(); });
        if (mJobs.empty()) return;
        StepJob& job = mJobs.front();
        lock.unlock();
        finished(write(job));
        lock.lock();
    }
}

void SnapshotWriter::finished(WrittenStep result)
{
    {
        const std::lock_guard lock(mJobsLock);
        std::erase(mCaptures, mJobs.front().capture);
        mJobs.pop_front();
        mLeft.store(int(mJobs.size()), std::memory_order_release);
        mFinishedSteps.push_back(std::move(result));
    }
    mNews.notify_all();
    mSayWritten();
}

std::string SnapshotWriter::writePair(StepJob& job)
try {
    const auto start = Clock::now();
    if (!job.capture) return translated("History", "there is no image");
    if (!mEncoder.encode(*job.capture)) return translated("History", "the step before could not be encoded");
    std::string error;
    const auto stage = [&](Half half) {
        const auto bytes = half == Half::Colour ? mEncoder.colour() : mEncoder.alpha();
        const auto began = half == Half::Colour ? start : Clock::now();
        const bool staged = mStore.stage(job.number, half, bytes, error);
        if (!job.alphaFirst) logLine("takeSnapshot: %s: %f", half == Half::Colour ? "JPG" : "RLE", secondsSince(began));
        return staged;
    };
    const auto writeBoth = [&] {
        const bool staged =
            job.alphaFirst ? stage(Half::Alpha) && stage(Half::Colour) : stage(Half::Colour) && stage(Half::Alpha);
        return mStore.commit(job.number, job.note) && staged;
    };
    bool stands = writeBoth();
    // On a full disk the oldest pictures that are only kept go first.
    while (!stands && mStore.dropOldestAside()) stands = writeBoth();
    if (job.alphaFirst) logLine("takeSnapshot: JPEG+RLE: %f", secondsSince(start));
    if (stands) return {};
    return error.empty() ? translated("History", "the files could not be put in their places") : error;
} catch (const std::bad_alloc&) {
    return translated("History", "not enough memory");
}

WrittenStep SnapshotWriter::write(StepJob& job)
{
    WrittenStep result{job.number, false, false, {}};
    job.exact->dropAbove(job.number - 1);
    const bool folder = mStore.begin(job.number);
    if (mStore.timesOpened() != mTimesOpened) {
        // The folder went, and the records in it; there may be another one.
        const int handle = mStore.duplicateHandle();
        if (std::exchange(mTimesOpened, mStore.timesOpened()) != 0) job.exact->reset(handle);
        if (handle >= 0) ::close(handle);
    }
    result.error = folder ? writePair(job) : translated("History", "there is no undo folder");
    result.pair = result.error.empty();
    if (!result.pair) logLine("takeSnapshot: step %d was not written: %s", int(job.number), result.error.c_str());
    if (job.capture) {
        try {
            result.exact = job.exact->write(job.number, job.parent, *job.capture, job.changed);
        } catch (const std::bad_alloc&) {
            if (result.pair) result.error = "not enough memory";
            logLine("takeSnapshot: not enough memory for the exact pixels");
        } catch (const std::system_error& error) {
            if (result.pair) result.error = error.what();
            logLine("takeSnapshot: %s", error.what());
        }
        job.capture->abandon();
    }
    if (result.pair || result.exact) mStore.record(job.position);
    return result;
}

} // namespace zp
