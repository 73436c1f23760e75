// SPDX-License-Identifier: GPL-3.0-or-later
/// The library's second pair of eyes: looks for moved pictures and for duplicates while the table is used.
#pragma once
#include "desktop/LatestWish.h"
#include "library/LibraryExamination.h"
#include <QObject>

/// Main thread only; a worker reads the files. It changes nothing but the library's index.
class LibraryHealth : public QObject
{
    Q_OBJECT

public:
    explicit LibraryHealth(QObject* parent);
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
    struct Task {
        enum Kind { Search, Remember, Compare } kind{};
        Names names;
    };
    struct Findings {
        zp::MovedPictures moved;
        zp::DuplicateGroups duplicates;
        std::pair<int, int> progress;
    };
    using Worker = zp::LatestWish<Task, Findings>;
    Findings examine(const Task& task, const Worker::Turn& turn);
    void next();
    void take(Findings findings);

    zp::MovedPictures mMoved;
    zp::DuplicateGroups mDuplicates;
    bool mSearching = false, mComparing = false;
    std::pair<int, int> mShownProgress;
    std::optional<Names> mWaiting[Task::Compare + 1]; ///< what is still to be done, the first first
    Task::Kind mDoing{};                              ///< while the worker is not idle
    std::optional<zp::LibraryExaminer> mExaminer;     ///< the worker's
    Worker mWorker;
};
