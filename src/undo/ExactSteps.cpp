// SPDX-License-Identifier: GPL-3.0-or-later
/// Which record has a tile of a step, and how many records there is room for.
#include "undo/ExactSteps.h"
#include "base/PixelMemory.h"
#include "base/WorkPool.h"
#include "undo/TileCodec.h"
#include <algorithm>
#include <atomic>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <set>
#include <sys/statvfs.h>
#include <unistd.h>

namespace zp
{

namespace
{

constexpr std::uint64_t kMostOnDisk = std::uint64_t{4} << 30;
constexpr std::uint64_t kShareOfFree = 10; ///< a tenth of what is free
/// What records may take in memory when the disk takes no more.
constexpr std::uint64_t kMostInMemory = std::uint64_t{512} << 20;
/// Tiles that one worker unpacks from one opened file.
constexpr int kChunk = 48;

} // namespace

ExactSteps::~ExactSteps()
{
    if (mExactFolder >= 0) ::close(mExactFolder);
}

void ExactSteps::reset(int folder)
{
    const std::lock_guard lock(mExactMutex);
    forgetAll();
    if (mExactFolder >= 0) ::close(mExactFolder);
    mExactFolder = folder < 0 ? -1 : fcntl(folder, F_DUPFD_CLOEXEC, 0);
}

// ---- finding --------------------------------------------------------------------------------------------------------

const ExactSteps::Run* ExactSteps::runOf(std::int32_t number) const
{
    for (auto run = mRuns.rbegin(); run != mRuns.rend(); ++run)
        if (run->first <= number) return &*run;
    return nullptr;
}

bool ExactSteps::isExact(std::int32_t number) const
{
    const std::lock_guard lock(mExactMutex);
    return mRecords.contains(number);
}

bool ExactSteps::isThere(std::int32_t number) const
{
    const std::lock_guard lock(mExactMutex);
    if (!mRecords.contains(number)) return false;
    const Run& run = *runOf(number);
    std::set<std::int32_t> seen;
    for (int tile = 0; tile < run.grid.count(); ++tile) {
        const ExactRecord* const record = find(run, tile, number).record;
        if (!record) return false;
        if (record->inMemory || !seen.insert(record->number).second) continue;
        const std::string name = ExactRecord::fileName(record->number);
        if (faccessat(mExactFolder, name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) != 0) return false;
    }
    return true;
}

std::optional<TileGrid> ExactSteps::gridOf(std::int32_t number) const
{
    const std::lock_guard lock(mExactMutex);
    const auto record = mRecords.find(number);
    return record == mRecords.end() ? std::nullopt : std::optional(record->second.grid);
}

PackedTile ExactSteps::find(const Run& run, int tile, std::int32_t number) const
{
    const std::vector<std::int32_t>& steps = run.changedAt[std::size_t(tile)];
    const auto after = std::upper_bound(steps.begin(), steps.end(), number);
    if (after == steps.begin()) return {};
    const auto record = mRecords.find(*std::prev(after));
    if (record == mRecords.end()) return {};
    return {&record->second, record->second.find(tile)};
}

TileSet ExactSteps::differing(const Run& run, std::int32_t a, std::int32_t b) const
{
    TileSet tiles(run.grid);
    const auto first = mRecords.upper_bound(std::min(a, b)), last = mRecords.upper_bound(std::max(a, b));
    for (auto record = first; record != last; ++record)
        for (const ExactTile& tile : record->second.tiles) tiles.add(tile.tile);
    return tiles;
}

// ---- writing --------------------------------------------------------------------------------------------------------

void ExactSteps::enter(ExactRecord record)
{
    const std::int32_t number = record.number;
    if (record.parent < 0) {
        mRuns.push_back({number, record.grid, {}});
        mRuns.back().changedAt.resize(std::size_t(record.grid.count()));
    }
    for (const ExactTile& tile : record.tiles) mRuns.back().changedAt[std::size_t(tile.tile)].push_back(number);
    (record.inMemory ? mBytesInMemory : mBytesOnDisk) += record.bytes;
    mRecords.emplace(number, std::move(record));
}

bool ExactSteps::write(std::int32_t number, std::optional<std::int32_t> parent, PixelCapture& capture,
                       const TileSet& tiles)
{
    int folder = -1;
    std::vector<std::optional<Fingerprint>> before(std::size_t(tiles.grid().count()));
    {
        const std::lock_guard lock(mExactMutex);
        folder = mExactFolder;
        if (parent) {
            const Run* const run = runOf(*parent);
            if (mRecords.empty() || mRecords.rbegin()->first != *parent || !run || run->grid != tiles.grid())
                return false;
            for (const int tile : tiles.list())
                if (const PackedTile packed = find(*run, tile, *parent); packed.tile)
                    before[std::size_t(tile)] = packed.tile->pixels;
        }
    }
    ExactRecord record = writeExactRecord(folder, number, parent.value_or(-1), capture, tiles.list(),
                                          [&before](int tile) { return before[std::size_t(tile)]; });
    if (!record.isWhole) return false;
    const std::lock_guard lock(mExactMutex);
    enter(std::move(record));
    makeRoom();
    return mRecords.contains(number);
}

void ExactSteps::forget(std::int32_t number, bool removeFile)
{
    const auto record = mRecords.find(number);
    if (record == mRecords.end()) return;
    if (removeFile && !record->second.inMemory) unlinkat(mExactFolder, ExactRecord::fileName(number).c_str(), 0);
    (record->second.inMemory ? mBytesInMemory : mBytesOnDisk) -= record->second.bytes;
    mRecords.erase(record);
}

void ExactSteps::forgetAll()
{
    mRecords.clear();
    mRuns.clear();
    mBytesOnDisk = mBytesInMemory = 0;
}

void ExactSteps::dropAbove(std::int32_t number)
{
    const std::lock_guard lock(mExactMutex);
    while (!mRecords.empty() && mRecords.rbegin()->first > number) {
        const ExactRecord& last = mRecords.rbegin()->second;
        if (last.parent < 0)
            mRuns.pop_back();
        else
            for (const ExactTile& tile : last.tiles) mRuns.back().changedAt[std::size_t(tile.tile)].pop_back();
        forget(last.number, true);
    }
}

// ---- room -----------------------------------------------------------------------------------------------------------

std::uint64_t ExactSteps::bytesOnDisk() const
{
    const std::lock_guard lock(mExactMutex);
    return mBytesOnDisk;
}

std::uint64_t ExactSteps::limit() const
{
    if (mLimit) return *mLimit;
    struct statvfs disk {
    };
    if (mExactFolder < 0 || fstatvfs(mExactFolder, &disk) != 0) return kMostOnDisk;
    return std::min(kMostOnDisk, std::uint64_t(disk.f_bavail) * disk.f_frsize / kShareOfFree + mBytesOnDisk);
}

void ExactSteps::makeRoom()
{
    const std::uint64_t most = limit();
    if (mBytesOnDisk <= most && mBytesInMemory <= kMostInMemory) return;
    // A later step becomes one that has all its tiles, and everything before it goes. It is the earliest with which
    // half of the room is free again, so that this happens seldom.
    std::uint64_t after = mBytesOnDisk + mBytesInMemory;
    std::int32_t kept = mRecords.rbegin()->first;
    for (const auto& [number, record] : mRecords) {
        after -= record.bytes;
        if (after <= std::min(most, kMostInMemory * 8) / 2) {
            kept = number;
            break;
        }
    }
    const Run* run = runOf(kept);
    if (!run) return;
    std::vector<PackedTile> tiles;
    for (int tile = 0; tile < run->grid.count(); ++tile) {
        tiles.push_back(find(*run, tile, kept));
        if (!tiles.back().tile) return;
    }
    std::optional<ExactRecord> whole = writeWholeRecord(mExactFolder, kept, run->grid, tiles);
    // What follows on the kept step stays, on the new run; what came before is gone. Without room even for one whole
    // step the pairs serve alone.
    std::vector<ExactRecord> later;
    for (auto record = mRecords.upper_bound(kept); record != mRecords.end(); ++record)
        later.push_back(std::move(record->second));
    std::vector<std::int32_t> gone;
    for (const auto& [number, record] : mRecords)
        if (number < kept || (number == kept && !whole)) gone.push_back(number);
    for (const std::int32_t number : gone) forget(number, true);
    forgetAll();
    const bool fits = whole && whole->bytes <= most;
    if (whole && !fits) unlinkat(mExactFolder, ExactRecord::fileName(kept).c_str(), 0);
    if (fits) enter(std::move(*whole));
    for (ExactRecord& record : later) {
        // A record's parent is the exact step before it; without one only a record that has all its tiles stands.
        if (record.parent >= 0 && mRecords.empty())
            unlinkat(mExactFolder, ExactRecord::fileName(record.number).c_str(), 0);
        else
            enter(std::move(record));
    }
}

// ---- reading --------------------------------------------------------------------------------------------------------

std::optional<TileSet> ExactSteps::restore(std::int32_t to, std::optional<std::int32_t> from, const TileSet& touched,
                                           BitmapView pixels) const
{
    const std::lock_guard lock(mExactMutex);
    if (!mRecords.contains(to)) return std::nullopt;
    const Run& run = *runOf(to);
    if (run.grid.width != pixels.width || run.grid.height != pixels.height) return std::nullopt;
    const bool beside = from && mRecords.contains(*from) && runOf(*from) == &run && touched.grid() == run.grid;
    TileSet wanted(run.grid);
    if (beside) {
        wanted = differing(run, *from, to);
        for (const int tile : touched.list()) wanted.add(tile);
    } else {
        wanted.addAll();
    }
    struct Job {
        PackedTile packed;
        PixelBox box;
        PixelMemory pixels; ///< unpacked beside the picture, until all have proved whole
    };
    std::vector<Job> jobs;
    for (const int tile : wanted.list()) {
        const PackedTile packed = find(run, tile, to);
        if (!packed.tile) return std::nullopt;
        jobs.push_back({packed, run.grid.box(tile), {}});
    }
    std::stable_sort(jobs.begin(), jobs.end(),
                     [](const Job& a, const Job& b) { return a.packed.record->number < b.packed.record->number; });
    std::atomic<bool> whole{true};
    const int chunks = (int(jobs.size()) + kChunk - 1) / kChunk;
    parallelFor(chunks, [&](int chunk) {
        TileCodec codec;
        std::unique_ptr<ExactReader> reader;
        const ExactRecord* opened = nullptr;
        const int last = std::min(int(jobs.size()), (chunk + 1) * kChunk);
        for (int i = chunk * kChunk; i < last && whole; ++i) {
            Job& job = jobs[std::size_t(i)];
            if (job.packed.record != opened)
                reader = std::make_unique<ExactReader>(mExactFolder, *(opened = job.packed.record));
            BitmapView into = pixels.part(job.box);
            if (beside) {
                job.pixels =
                    allocatePixelsUninitialized(std::size_t(job.box.width()) * std::size_t(job.box.height()) * 4);
                if (!job.pixels) throw std::bad_alloc();
                into = {job.pixels.get(), job.box.width(), job.box.height(), std::ptrdiff_t{4} * job.box.width()};
            }
            const auto bytes = reader->read(*job.packed.tile);
            if (bytes.empty() || !codec.unpack(bytes, into) || fingerprint(into) != job.packed.tile->pixels)
                whole = false;
        }
    });
    if (!whole) return std::nullopt;
    for (const Job& job : jobs)
        if (job.pixels)
            copyPixels({job.pixels.get(), job.box.width(), job.box.height(), std::ptrdiff_t{4} * job.box.width()},
                       pixels.part(job.box));
    return wanted;
}

bool ExactSteps::shareTiles(std::int32_t a, std::int32_t b) const
{
    const std::lock_guard lock(mExactMutex);
    return mRecords.contains(a) && mRecords.contains(b) && runOf(a) == runOf(b);
}

void ExactSteps::adopt(int folder, std::int32_t newest)
{
    const std::lock_guard lock(mExactMutex);
    forgetAll();
    for (std::int32_t number = 0; number <= newest; ++number) {
        std::optional<ExactRecord> record = readExactRecord(folder, number);
        if (!record) continue;
        const bool follows = record->parent >= 0 && mRecords.contains(record->parent) &&
                             mRecords.rbegin()->first == record->parent && mRuns.back().grid == record->grid;
        const bool isWhole = record->parent < 0 && int(record->tiles.size()) == record->grid.count();
        if (follows || isWhole) enter(std::move(*record));
    }
}

} // namespace zp
