// SPDX-License-Identifier: GPL-3.0-or-later
/// Whole pairs in a locked, private folder, and the record that outlives a crash.
#include "undo/SnapshotStore.h"
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "undo/FolderFiles.h"
#include "undo/SnapshotJPEG.h"
#include "undo/SnapshotNumbers.h"
#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{

namespace
{

constexpr const char* kFolderName = "Zelpane Undo Support";
constexpr const char* kRecordName = ".recovery";
constexpr const char* kRecordHead = "Zelpane recovery 1";
constexpr std::uint64_t kLargestFile = std::uint64_t{4} << 30;
/// How many programs of one user keep a folder at the same time; the others do without undo.
constexpr int kNamesBeside = 64;
/// A history is never longer than this between two new pictures; keeps a damaged record from sending us searching.
constexpr std::int32_t kSearchedBack = 100000;

std::string partName(const std::string& name) { return "." + name + ".part"; }
std::string crashedName(const std::string& name) { return name + ".crashed"; }

bool pairIsWhole(int handle, std::int32_t number)
{
    return folder::isFile(handle, SnapshotStore::fileName(number, SnapshotStore::Half::Colour)) &&
           folder::isFile(handle, SnapshotStore::fileName(number, SnapshotStore::Half::Alpha));
}

/// "key number..." lines and last the path, with its length before it because a path may hold anything.
std::string recordText(const RecoverableWork& work)
{
    std::string text = kRecordHead;
    text += "\nsize " + std::to_string(work.width) + " " + std::to_string(work.height);
    text += "\nnumber " + std::to_string(work.number) + "\nnewest " + std::to_string(work.newest);
    return text + "\npath " + std::to_string(work.imagePath.size()) + "\n" + work.imagePath + "\n";
}

/// Takes @p word and the number behind it off the front.
template <class Number>
bool take(std::string_view& text, std::string_view word, Number& number)
{
    if (!text.starts_with(word)) return false;
    text.remove_prefix(word.size());
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{}) return false;
    text.remove_prefix(std::size_t(end - text.data()));
    return true;
}

std::optional<RecoverableWork> readRecord(int handle)
{
    const auto bytes = folder::readFile(handle, kRecordName, 1 << 20);
    if (!bytes) return std::nullopt;
    std::string_view text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    if (!text.starts_with(kRecordHead)) return std::nullopt;
    text.remove_prefix(std::string_view(kRecordHead).size());
    RecoverableWork work;
    std::size_t length = 0;
    if (!take(text, "\nsize ", work.width) || !take(text, " ", work.height) || !take(text, "\nnumber ", work.number) ||
        !take(text, "\nnewest ", work.newest) || !take(text, "\npath ", length) || !text.starts_with("\n"))
        return std::nullopt;
    text.remove_prefix(1);
    if (text.size() < length + 1 || !isSensibleImageSize(work.width, work.height) || work.number < 0)
        return std::nullopt;
    work.imagePath = text.substr(0, length);
    return work;
}

bool canBeRestored(int handle, std::int32_t number)
{
    if (!pairIsWhole(handle, number)) return false;
    const auto file =
        folder::readFile(handle, SnapshotStore::fileName(number, SnapshotStore::Half::Colour), kLargestFile);
    return file && inspectSnapshotJPEG(*file);
}

/// The record's work as far as its snapshots are there: a crash in the midst of writing one leaves the ones before it.
std::optional<RecoverableWork> restorableWork(int handle)
{
    auto work = readRecord(handle);
    if (!work) return std::nullopt;
    const std::int32_t lowest = std::max(0, work->number - kSearchedBack);
    while (work->number >= lowest && !canBeRestored(handle, work->number)) --work->number;
    if (work->number < lowest) return std::nullopt;
    std::int32_t last = work->number;
    while (last < work->newest && pairIsWhole(handle, last + 1)) ++last;
    work->newest = last;
    return work;
}

} // namespace

std::string SnapshotStore::fileName(std::int32_t number, Half half)
{
    return "C_" + std::to_string(number) + (half == Half::Colour ? ".jpg" : ".rle");
}

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

void SnapshotStore::close()
{
    for (int* handle : {&mFolder, &mParent})
        if (*handle >= 0) {
            ::close(*handle);
            *handle = -1;
        }
    mName.clear();
}

bool SnapshotStore::wasLeftByCrash() const { return folder::isFile(mFolder, kRecordName); }

bool SnapshotStore::open()
{
    if (mFolder >= 0 && mTemporary == temporaryFolder()) return true;
    close();
    mTemporary = temporaryFolder();
    createFolder(mTemporary);
    mParent = ::open(mTemporary.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (mParent < 0) return false;
    const std::string beside = std::string(kFolderName) + "-" + std::to_string(geteuid());
    for (int i = 0; i <= kNamesBeside && mFolder < 0; ++i) {
        mName = i == 0 ? kFolderName : i == 1 ? beside : beside + "-" + std::to_string(i);
        mFolder = folder::openPrivate(mParent, mName);
    }
    if (mFolder < 0) {
        close();
        return false;
    }
    if (wasLeftByCrash()) {
        // Moved, lock and all, so that this program's folder starts empty and the question can wait.
        folder::removeWithContents(mParent, crashedName(mName));
        if (renameat(mParent, mName.c_str(), mParent, crashedName(mName).c_str()) == 0) {
            ::close(mFolder);
            mFolder = folder::openPrivate(mParent, mName);
            if (mFolder < 0) {
                close();
                return false;
            }
        }
    }
    folder::removeContents(mFolder);
    return true;
}

bool SnapshotStore::reopenIfVanished()
{
    if (mFolder >= 0 && !folder::isStillThere(mParent, mName, mFolder)) close();
    return open();
}

bool SnapshotStore::reset()
{
    const std::lock_guard lock(mMutex);
    if (!reopenIfVanished()) return false;
    folder::removeContents(mFolder);
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
    return mFolder < 0 ? std::string() : pathByAppending(mTemporary, mName);
}

bool SnapshotStore::begin(std::int32_t number)
{
    const std::lock_guard lock(mMutex);
    mColourStaged = mAlphaStaged = false;
    if (!reopenIfVanished()) return false;
    const auto removePair = [&](std::int32_t n) {
        // Colour first: a pair without it is no snapshot any more.
        unlinkat(mFolder, fileName(n, Half::Colour).c_str(), 0);
        unlinkat(mFolder, fileName(n, Half::Alpha).c_str(), 0);
    };
    removePair(number);
    for (std::int64_t k = std::int64_t{number} + 1; k <= std::int64_t{number} + SnapshotNumbers::kRedoTail; ++k)
        if (k <= INT32_MAX && folder::isFile(mFolder, fileName(std::int32_t(k), Half::Colour)))
            removePair(std::int32_t(k));
    return true;
}

bool SnapshotStore::stage(std::int32_t number, Half half, std::span<const std::uint8_t> bytes, std::string& error)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) {
        error = "there is no undo folder";
        return false;
    }
    const bool written = folder::writeFile(mFolder, partName(fileName(number, half)), bytes, error);
    (half == Half::Colour ? mColourStaged : mAlphaStaged) = written;
    return written;
}

bool SnapshotStore::commit(std::int32_t number)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return false;
    const auto place = [&](Half half) {
        const std::string name = fileName(number, half);
        return renameat(mFolder, partName(name).c_str(), mFolder, name.c_str()) == 0;
    };
    if (mColourStaged && mAlphaStaged && place(Half::Alpha) && place(Half::Colour)) return true;
    for (const Half half : {Half::Colour, Half::Alpha}) {
        unlinkat(mFolder, fileName(number, half).c_str(), 0);
        unlinkat(mFolder, partName(fileName(number, half)).c_str(), 0);
    }
    return false;
}

std::optional<std::vector<std::uint8_t>> SnapshotStore::read(std::int32_t number, Half half)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return std::nullopt;
    return folder::readFile(mFolder, fileName(number, half), kLargestFile);
}

void SnapshotStore::record(const RecoverableWork& work)
{
    const std::lock_guard lock(mMutex);
    if (mFolder < 0) return;
    const std::string text = recordText(work);
    std::string unused;
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    if (folder::writeFile(mFolder, partName(kRecordName), {bytes, text.size()}, unused))
        renameat(mFolder, partName(kRecordName).c_str(), mFolder, kRecordName);
}

std::optional<RecoverableWork> SnapshotStore::recoverableWork()
{
    const std::lock_guard lock(mMutex);
    if (!open()) return std::nullopt;
    const int crashed = folder::openExisting(mParent, crashedName(mName));
    if (crashed < 0) return std::nullopt;
    auto work = restorableWork(crashed);
    ::close(crashed);
    if (!work) folder::removeWithContents(mParent, crashedName(mName));
    return work;
}

bool SnapshotStore::adoptRecoverable()
{
    const std::lock_guard lock(mMutex);
    if (!open()) return false;
    const int crashed = folder::openExisting(mParent, crashedName(mName));
    if (crashed < 0) return false;
    // A name that is free can be taken in one step: a crash at any point leaves one folder with the record in it.
    folder::removeContents(mFolder);
    unlinkat(mParent, mName.c_str(), AT_REMOVEDIR);
    if (renameat(mParent, crashedName(mName).c_str(), mParent, mName.c_str()) != 0) {
        ::close(crashed);
        return false;
    }
    ::close(mFolder);
    mFolder = crashed;
    return true;
}

void SnapshotStore::discardRecoverable()
{
    const std::lock_guard lock(mMutex);
    if (!open()) return;
    const int crashed = folder::openExisting(mParent, crashedName(mName));
    if (crashed < 0) return;
    ::close(crashed);
    folder::removeWithContents(mParent, crashedName(mName));
}

} // namespace zp
