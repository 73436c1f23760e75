// SPDX-License-Identifier: GPL-3.0-or-later
/// The thread that writes steps, one after the other, while the picture is already changed again.
#pragma once
#include "undo/ExactSteps.h"
#include "undo/PairEncoder.h"
#include "undo/RecoveryRecord.h"
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace zp
{

class SnapshotStore;

/// All that the writer may look at of a step.
struct StepJob {
    std::int32_t number = -1;
    std::shared_ptr<PixelCapture> capture; ///< whole rows of tiles; null for a step without a picture
    TileSet changed;                       ///< may differ from the step before
    std::optional<std::int32_t> parent;    ///< that step; without one the changed tiles are all
    std::shared_ptr<ExactSteps> exact;     ///< of the history that the step belongs to
    bool alphaFirst = true;                ///< the order in which the pair is written
    StepNote note;
    RecoverableWork position; ///< recorded when all files stand
};

/// What became of a step.
struct WrittenStep {
    std::int32_t number = -1;
    bool pair = false, exact = false;
    std::string error; ///< why there is no pair; beside a pair, why the exact pixels are lost
};

/// Any thread may call; each call is whole.
class SnapshotWriter
{
public:
    /// @param written  called on the writer's thread after each step
    SnapshotWriter(SnapshotStore& store, std::function<void()> written);
    ~SnapshotWriter(); ///< what was asked for is written first
    SnapshotWriter(const SnapshotWriter&) = delete;
    SnapshotWriter& operator=(const SnapshotWriter&) = delete;

    /// Without a thread to be had the step is written here and now. Blocks while more waits to be written than memory
    /// is sensibly spent on.
    void add(StepJob job);
    /// Before pixels of @p box are written: what is still to be read there is copied.
    void beforeWrite(PixelBox box);
    bool isIdle() const { return mLeft.load(std::memory_order_acquire) == 0; }
    /// Blocks until all is written.
    void wait();
    /// What has been written since the last call, in order.
    std::vector<WrittenStep> takeWritten();

private:
    void run();
    WrittenStep write(StepJob& job);
    std::string writePair(StepJob& job);
    void finished(WrittenStep result);

    SnapshotStore& mStore;
    std::function<void()> mSayWritten;
    PairEncoder mEncoder;           ///< the writing thread's
    std::uint64_t mTimesOpened = 0; ///< the writing thread's: of the store's folder, at the last step
    std::mutex mJobsLock;
    std::condition_variable mNews;
    std::deque<StepJob> mJobs;                            ///< the first is being written
    std::vector<std::shared_ptr<PixelCapture>> mCaptures; ///< of all that is not written yet
    std::vector<WrittenStep> mFinishedSteps;
    std::atomic<int> mLeft{0};
    bool mEnds = false;
    std::thread mThread;
};

} // namespace zp
