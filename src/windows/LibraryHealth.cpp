// SPDX-License-Identifier: GPL-3.0-or-later
/// The worker behind the library's offers.
#include "windows/LibraryHealth.h"
#include <system_error>
#include <utility>

using namespace zp;

LibraryHealth::LibraryHealth(QObject* parent) : QObject(parent), mTap([this] { take(); })
{
    try {
        mWorker = std::jthread([this](const std::stop_token& stop) { work(stop); });
    } catch (const std::system_error&) {
        // no thread to be had: the list goes without offers
    }
}

LibraryHealth::~LibraryHealth() { stop(); }

void LibraryHealth::findMoved(const std::vector<std::string>& names)
{
    if (!mWorker.joinable()) return;
    mSearching = true;
    {
        const std::lock_guard hold(mGuard);
        mWantedMoved = names;
        mDoneMoved.reset();
    }
    mWake.notify_one();
}

void LibraryHealth::findDuplicates(const std::vector<std::string>& names)
{
    if (!mWorker.joinable()) return;
    endDuplicates();
    mComparing = true;
    {
        const std::lock_guard hold(mGuard);
        mWantedDuplicates = names;
    }
    mWake.notify_one();
}

void LibraryHealth::endDuplicates()
{
    const std::lock_guard hold(mGuard);
    if (mComparing && !mWantedDuplicates && !mDoneDuplicates) mTask.request_stop();
    mComparing = false;
    mShownProgress = {};
    mDuplicates.clear();
    mWantedDuplicates.reset();
    mDoneDuplicates.reset();
    mProgress.reset();
}

void LibraryHealth::remember(const std::string& name)
{
    {
        const std::lock_guard hold(mGuard);
        mWantedMemory = name;
    }
    mWake.notify_one();
}

void LibraryHealth::stop()
{
    endDuplicates();
    const std::lock_guard hold(mGuard);
    mTask.request_stop();
    mSearching = false;
    mWantedMoved.reset();
    mWantedMemory.reset();
    mDoneMoved.reset();
}

void LibraryHealth::work(const std::stop_token& stop)
{
    LibraryExaminer examiner(libraryFolder(), libraryIndexPath());
    while (!stop.stop_requested()) {
        std::optional<Names> moved, duplicates;
        std::optional<std::string> memory;
        std::stop_token task;
        {
            std::unique_lock hold(mGuard);
            if (!mWake.wait(hold, stop, [this] { return mWantedMoved || mWantedMemory || mWantedDuplicates; })) return;
            if (mWantedMoved)
                moved = std::exchange(mWantedMoved, std::nullopt);
            else if (mWantedMemory)
                memory = std::exchange(mWantedMemory, std::nullopt);
            else
                duplicates = std::exchange(mWantedDuplicates, std::nullopt);
            mTask = std::stop_source();
            task = mTask.get_token();
        }
        if (moved) {
            MovedPictures found = examiner.findMoved(*moved, {}, task);
            const std::lock_guard hold(mGuard);
            if (task.stop_requested() || mWantedMoved) continue; // given up, or to be done again
            mDoneMoved = std::move(found);
        } else if (memory) {
            examiner.remember(*memory, task);
            continue;
        } else {
            const auto progress = [&](int done) {
                const std::lock_guard hold(mGuard);
                if (!task.stop_requested()) mProgress = {done, int(duplicates->size())};
                mTap.wake();
            };
            DuplicateGroups found = examiner.findDuplicates(*duplicates, task, progress);
            const std::lock_guard hold(mGuard);
            if (task.stop_requested()) continue;
            mDoneDuplicates = std::move(found);
        }
        mTap.wake();
    }
}

void LibraryHealth::take()
{
    std::optional<MovedPictures> moved;
    std::optional<DuplicateGroups> duplicates;
    std::optional<std::pair<int, int>> progress;
    {
        const std::lock_guard hold(mGuard);
        moved = std::exchange(mDoneMoved, std::nullopt);
        duplicates = std::exchange(mDoneDuplicates, std::nullopt);
        progress = std::exchange(mProgress, std::nullopt);
    }
    if (moved) {
        mMoved = std::move(*moved);
        mSearching = false;
        emit searched();
    }
    if (progress && mComparing) {
        mShownProgress = *progress;
        emit progressed();
    }
    if (duplicates) {
        mDuplicates = std::move(*duplicates);
        mComparing = false;
        emit compared();
    }
}
