// SPDX-License-Identifier: GPL-3.0-or-later
/// The exact pixels of all steps of a history, as far as there is room for them.
#pragma once
#include "base/BitmapView.h"
#include "undo/ExactRecord.h"
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <vector>

namespace zp
{

/// Each step keeps the tiles that it changed; a tile is found by going back to the last step that changed it. A step
/// whose picture has another size, or that follows none that is exact, keeps all its tiles. Every call is whole and may
/// come from any thread. What takes more room than there is loses its oldest steps: they are not exact then.
class ExactSteps
{
public:
    /// Another history begins. @param folder  an open folder of the history's own, duplicated here; -1: none
    void reset(int folder);
    ~ExactSteps();

    /// Records step @p number: @p tiles are those that may differ from step @p parent, the last exact one before it;
    /// all without one. Those of a picture of another size cannot have a parent.
    /// Runs on the calling thread and the pool. @return whether the step is exact now. @throws std::bad_alloc
    bool write(std::int32_t number, std::optional<std::int32_t> parent, PixelCapture& capture, const TileSet& tiles);
    /// Steps above @p number are gone.
    void dropAbove(std::int32_t number);
    bool isExact(std::int32_t number) const;
    /// Whether the files that it needs are still there, too. Cost: a search for each tile, and a look at the disk for
    /// each step that has one of them.
    bool isThere(std::int32_t number) const;
    std::optional<TileGrid> gridOf(std::int32_t number) const;
    /// Brings @p pixels, which hold step @p from but for the tiles in @p touched, to step @p to. Without @p from, or
    /// from a picture of another size, all tiles are written.
    /// @return the tiles that were written; nothing when one of them is damaged or missing: the pixels are as they
    /// were, but without @p from they may have been written. @throws std::bad_alloc
    std::optional<TileSet> restore(std::int32_t to, std::optional<std::int32_t> from, const TileSet& touched,
                                   BitmapView pixels) const;
    /// Whether restore() goes from one to the other by the tiles that differ, the picture untouched until all are
    /// whole.
    bool shareTiles(std::int32_t a, std::int32_t b) const;
    /// Takes in the records that another run left in the open folder @p folder, up to @p newest. To be restored they
    /// have to lie in the folder given to reset().
    void adopt(int folder, std::int32_t newest);
    /// The most that the records may take on the disk, in bytes; by default 4 GB or a tenth of what is free.
    void setLimit(std::optional<std::uint64_t> bytes) { mLimit = bytes; }
    std::uint64_t bytesOnDisk() const;

private:
    /// Steps that share their tiles: from one that has all to the next.
    struct Run {
        std::int32_t first = 0;
        TileGrid grid;
        std::vector<std::vector<std::int32_t>> changedAt; ///< for each tile, the steps that changed it, ascending
    };
    const Run* runOf(std::int32_t number) const;
    PackedTile find(const Run& run, int tile, std::int32_t number) const;
    TileSet differing(const Run& run, std::int32_t a, std::int32_t b) const;
    void enter(ExactRecord record);
    void forget(std::int32_t number, bool removeFile);
    void forgetAll();
    void makeRoom();
    std::uint64_t limit() const;

    mutable std::mutex mExactMutex;
    int mExactFolder = -1;
    std::map<std::int32_t, ExactRecord> mRecords;
    std::uint64_t mBytesOnDisk = 0, mBytesInMemory = 0; ///< of all records
    std::vector<Run> mRuns;                             ///< in the order of their steps
    std::optional<std::uint64_t> mLimit;
};

} // namespace zp
