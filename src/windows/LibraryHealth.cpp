// SPDX-License-Identifier: GPL-3.0-or-later
/// The order of what is done behind the library's offers.
#include "windows/LibraryHealth.h"
#include <utility>

using namespace zp;

LibraryHealth::LibraryHealth(QObject* parent)
    : QObject(parent),
      mWorker([this](const Task& task, const Worker::Turn& turn) { return examine(task, turn); },
              [this](Findings findings) { take(std::move(findings)); })
{
}

void LibraryHealth::findMoved(const std::vector<std::string>& names)
{
    mSearching = true;
    mWaiting[Task::Search] = names;
    next();
}

void LibraryHealth::findDuplicates(const std::vector<std::string>& names)
{
    endDuplicates();
    mComparing = true;
    mWaiting[Task::Compare] = names;
    next();
}

void LibraryHealth::endDuplicates()
{
    if (!mWorker.isIdle() && mDoing == Task::Compare) mWorker.forget();
    mComparing = false;
    mShownProgress = {};
    mDuplicates.clear();
    mWaiting[Task::Compare].reset();
    next();
}

void LibraryHealth::remember(const std::string& name)
{
    mWaiting[Task::Remember] = {name};
    next();
}

void LibraryHealth::stop()
{
    for (auto& waiting : mWaiting) waiting.reset();
    mWorker.forget();
    mSearching = false;
    endDuplicates();
}

void LibraryHealth::next()
{
    for (const auto kind : {Task::Search, Task::Remember, Task::Compare}) {
        if (!mWorker.isIdle()) return;
        if (!mWaiting[kind]) continue;
        mDoing = kind;
        if (mWorker.ask({kind, *std::exchange(mWaiting[kind], std::nullopt)})) return;
        // no thread to be had: the list goes without offers
        if (kind == Task::Search) mSearching = false;
        if (kind == Task::Compare) mComparing = false;
    }
}

LibraryHealth::Findings LibraryHealth::examine(const Task& task, const Worker::Turn& turn)
{
    if (!mExaminer) mExaminer.emplace(libraryFolder(), libraryIndexPath());
    const auto progress = [&](int done) { turn.report({{}, {}, {done, int(task.names.size())}}); };
    switch (task.kind) {
    case Task::Search:
        return {mExaminer->findMoved(task.names, {}, turn.late), {}, {}};
    case Task::Compare:
        return {{}, mExaminer->findDuplicates(task.names, turn.late, progress), {}};
    case Task::Remember:
        mExaminer->remember(task.names.front(), turn.late);
    }
    return {};
}

void LibraryHealth::take(Findings findings)
{
    if (!mWorker.isIdle()) {
        mShownProgress = findings.progress;
        emit progressed();
        return;
    }
    const Task::Kind done = mDoing;
    const bool again = done == Task::Search && mWaiting[Task::Search];
    next();
    if (done == Task::Search && !again) {
        mMoved = std::move(findings.moved);
        mSearching = false;
        emit searched();
    }
    if (done == Task::Compare) {
        mDuplicates = std::move(findings.duplicates);
        mComparing = false;
        emit compared();
    }
}
