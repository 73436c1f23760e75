// SPDX-License-Identifier: GPL-3.0-or-later
/// Whole pairs in a locked, private folder.
#include "undo/SnapshotStore.h"
#include "base/Folders.h"
#include "base/Translation.h"
#include "undo/FolderFiles.h"
#include "undo/LeftWork.h"
#include "undo/PicturesAside.h"
#include "undo/SnapshotNumbers.h"
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace zp
{

namespace
{

/// How many programs of one user keep a folder at the same time; the others do with memory.
constexpr int kNamesBeside = 64;

std::string partName(const std::string& name) { return "." + name + ".part"; }

} // namespace

SnapshotStore& SnapshotStore::shared()
{
    static SnapshotStore store;
    return store;
}

SnapshotStore::SnapshotStore()
{
    // A limit on the size of files shall end in an error that is handled, not in the end of the program.
    struct sigaction action {
    };
    if (sigaction(SIGXFSZ, nullptr, &action) == 0 && action.sa_handler == SIG_DFL) std::signal(SIGXFSZ, SIG_IGN);
}

SnapshotStore::~SnapshotStore() { close(); }

// ---- the folder -----------------------------------------------------------------------------------------------------

void SnapshotStore::close()
{
    for (int* handle : {&mFolder, &mParent})
        if (*handle >= 0) {
            ::close(*handle);
            *handle = -1;
        }
    mName.clear();
    mPlace = Place::None;
}

bool SnapshotStore::openIn(const std::string& parent)
{
    mParentPath = parent;
    mParent = ::open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (mParent < 0) return false;
    const std::string beside = std::string(kUndoFolderName) + "-" + std::to_string(geteuid());
    for (int i = 0; i <= kNamesBeside && mFolder < 0; ++i) {
        mName = i == 0 ? kUndoFolderName : i == 1 ? beside : beside + "-" + std::to_string(i);
        mFolder = folder::openPrivate(mParent, mName);
        if (mFolder < 0 || !hasLeftWork(mFolder)) continue;
        const bool moved = !mLeavesWorkAlone && moveLeftFolderAside(mParent, mName);
        ::close(mFolder);
        mFolder = moved ? folder::openPrivate(mParent, mName) : -1;
    }
    if (mFolder >= 0) return true;
    close();
    return false;
}

bool SnapshotStore::open()
{
    if (mFolder >= 0 && mTemporary == temporaryFolder()) return true;
    close();
    mTemporary = temporaryFolder();
    createFolder(mTemporary);
    if (openIn(mTemporary)) {
        mPlace = Place::Temporary;
    } else if (const std::string runtime = runtimeUndoParent(); !runtime.empty() && openIn(runtime)) {
        mPlace = Place::Runtime;
    } else {
        return false;
    }
    folder::removeContents(mFolder);
    ++mTimesOpened;
    return true;
}

bool SnapshotStore::reopenIfVanished()
{
    if (mFolder >= 0 && !folder::isStillThere(mParent, mName, mFolder)) close();
    return open();
}

void SnapshotStore::empty()
{
    folder::removeContents(mFolder, [](const std::string& name) { return aside::numberOf(name).has_value(); });
}

bool SnapshotStore::reset()
{
    const std::lock_guard lock(mMutex);
    if (!reopenIfVanished()) return false;
    empty();
    return true;
}

void SnapshotStore::remove()
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return;
    folder::removeContents(mFolder);
    if (folder::isStillThere(mParent, mName, mFolder)) unlinkat(mParent, mName.c_str(), AT_REMOVEDIR);
    close();
}

std::string SnapshotStore::folder()
{
    const std::lock_guard lock(mMutex);
    return mFolder < 0 ? std::string() : pathByAppending(mParentPath, mName);
}

SnapshotStore::Place SnapshotStore::place()
{
    const std::lock_guard lock(mMutex);
    return mPlace;
}

std::uint64_t SnapshotStore::timesOpened()
{
    const std::lock_guard lock(mMutex);
    return mTimesOpened;
}

int SnapshotStore::duplicateHandle()
{
    const std::lock_guard lock(mMutex);
    return mFolder < 0 ? -1 : fcntl(mFolder, F_DUPFD_CLOEXEC, 0);
}

// ---- steps ----------------------------------------------------------------------------------------------------------

bool SnapshotStore::begin(std::int32_t number)
{
    const std::lock_guard lock(mMutex);
    mColourStaged = mAlphaStaged = false;
    if (!reopenIfVanished()) return false;
    removeStep(mFolder, number);
    for (std::int64_t k = std::int64_t{number} + 1; k <= std::int64_t{number} + SnapshotNumbers::kRedoTail; ++k)
        if (k <= INT32_MAX && folder::isFile(mFolder, stepFileName(std::int32_t(k), Half::Colour)))
            removeStep(mFolder, std::int32_t(k));
    return true;
}

bool SnapshotStore::stage(std::int32_t number, Half half, std::span<const std::uint8_t> bytes, std::string& error)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) {
        error = translated("History", "there is no undo folder");
        return false;
    }
    const bool written = folder::writeFile(mFolder, partName(stepFileName(number, half)), bytes, error);
    if (!written) mDiskIsFull = errno == ENOSPC || errno == EDQUOT;
    (half == Half::Colour ? mColourStaged : mAlphaStaged) = written;
    if (half == Half::Alpha) mAlphaSeal = sealOfAlpha(bytes);
    return written;
}

bool SnapshotStore::commit(std::int32_t number, const StepNote& note)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return false;
    const auto place = [&](Half half) {
        const std::string name = stepFileName(number, half);
        return renameat(mFolder, partName(name).c_str(), mFolder, name.c_str()) == 0;
    };
    const auto placeNote = [&] {
        const std::string text = stepNoteText(note, mAlphaSeal);
        std::string unused;
        return folder::writeFile(mFolder, stepNoteName(number),
                                 {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, unused);
    };
    if (mColourStaged && mAlphaStaged && placeNote() && place(Half::Alpha) && place(Half::Colour)) return true;
    removeStep(mFolder, number);
    for (const Half half : {Half::Colour, Half::Alpha})
        unlinkat(mFolder, partName(stepFileName(number, half)).c_str(), 0);
    return false;
}

std::optional<std::vector<std::uint8_t>> SnapshotStore::read(std::int32_t number, Half half)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return std::nullopt;
    return readHalf(mFolder, number, half);
}

bool SnapshotStore::damaged(std::int32_t number, Half half)
{
    const std::lock_guard lock(mMutex);
    return mFolder >= 0 && isDamaged(mFolder, number, half);
}

bool SnapshotStore::has(std::int32_t number)
{
    const std::lock_guard lock(mMutex);
    return mFolder >= 0 && hasPair(mFolder, number);
}

std::optional<StepNote> SnapshotStore::note(std::int32_t number)
{
    const std::lock_guard lock(mMutex);
    return mFolder < 0 ? std::nullopt : readStepNote(mFolder, number);
}

void SnapshotStore::record(const RecoverableWork& work)
{
    const std::lock_guard lock(mMutex);
    if (mFolder >= 0) writeRecoveryRecord(mFolder, work);
}

// ---- pictures that are not the current one --------------------------------------------------------------------------

std::optional<int> SnapshotStore::putAside()
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return std::nullopt;
    const auto number = aside::putAside(mFolder);
    if (number) empty();
    return number;
}

bool SnapshotStore::bringBack(int number)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return false;
    empty();
    return aside::bringBack(mFolder, number);
}

void SnapshotStore::dropAside(int number)
{
    const std::lock_guard lock(mMutex);
    if (mFolder >= 0) aside::drop(mFolder, number);
}

bool SnapshotStore::dropOldestAside()
{
    const std::lock_guard lock(mMutex);
    if (!std::exchange(mDiskIsFull, false) || mFolder < 0) return false;
    const std::vector<int> others = aside::numbers(mFolder);
    if (others.empty()) return false;
    aside::drop(mFolder, others.front());
    return true;
}

int SnapshotStore::duplicateHandleOf(int number)
{
    const std::lock_guard lock(mMutex);
    return mFolder < 0 ? -1 : folder::openExistingInner(mFolder, aside::folderName(number));
}

std::optional<int> SnapshotStore::takeOver(int parent, const std::string& name)
{
    const std::lock_guard lock(mMutex);
    if (!reopenIfVanished()) return std::nullopt;
    const std::vector<int> others = aside::numbers(mFolder);
    const int number = others.empty() ? 1 : others.back() + 1;
    if (renameat(parent, name.c_str(), mFolder, aside::folderName(number).c_str()) != 0) return std::nullopt;
    return number;
}

bool SnapshotStore::leaveBehind(int number)
{
    const std::lock_guard lock(mMutex);
    return mFolder >= 0 && zp::leaveBehind(mParent, mFolder, aside::folderName(number));
}

} // namespace zp
