// SPDX-License-Identifier: GPL-3.0-or-later
/// The library's second pair of eyes: looks for moved pictures and for duplicates while the table is used.
#pragma once
#include "desktop/MainThreadWake.h"
#include "library/LibraryExamination.h"
#include <QObject>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Main thread only; a worker reads the files and leaves its findings under a lock. It changes nothing but the
/// library's index.
class LibraryHealth : public QObject
{
    Q_OBJECT

public:
    explicit LibraryHealth(QObject* parent);
    ~LibraryHealth() override;

    /// Searches for the pictures of broken links among these entries; searched() follows.
    void findMoved(const std::vector<std::string>& names);
    /// Compares these entries; progressed() and compared() follow.
    void findDuplicates(const std::vector<std::string>& names);
    /// No more duplicates are wanted.
    void endDuplicates();
    /// The picture of this entry is being shown.
    void remember(const std::string& name);
    /// Ends what is being done; nothing follows.
    void stop();

    bool isSearching() const { return mSearching; }
    bool isComparing() const { return mComparing; }
    /// How many entries are compared, and of how many; 0 of 0 when none.
    std::pair<int, int> progress() const { return mShownProgress; }
    const zp::MovedPictures& moved() const { return mMoved; }
    const zp::DuplicateGroups& duplicates() const { return mDuplicates; }

signals:
    void searched();
    void compared();
    void progressed();

private:
    using Names = std::vector<std::string>;
    void work(const std::stop_token& stop);
    void take();

    zp::MovedPictures mMoved;
    zp::DuplicateGroups mDuplicates;
    bool mSearching = false, mComparing = false;
    std::pair<int, int> mShownProgress;

    std::mutex mGuard;
    std::condition_variable_any mWake;
    // Under mGuard: what is wanted (the search first), what was found, and how the present task is stopped.
    std::optional<Names> mWantedMoved, mWantedDuplicates;
    std::optional<std::string> mWantedMemory;
    std::optional<zp::MovedPictures> mDoneMoved;
    std::optional<zp::DuplicateGroups> mDoneDuplicates;
    std::optional<std::pair<int, int>> mProgress;
    std::stop_source mTask;
    zp::MainThreadWake mTap;
    std::jthread mWorker; ///< last: started after, and joined before, what it uses
};
