// SPDX-License-Identifier: GPL-3.0-or-later
/// One step's exact pixels: packed tiles in a file beside the numbered pairs, or in memory when the disk takes no more.
#pragma once
#include "undo/Fingerprint.h"
#include "undo/PixelCapture.h"
#include "undo/TileGrid.h"
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zp
{

/// Where a packed tile lies in its record.
struct ExactTile {
    std::int32_t tile = 0;
    std::uint32_t length = 0;
    std::uint64_t offset = 0;
    Fingerprint pixels; ///< of the tile as it was
};

/// The tiles of a step that are not those of its parent; a step without a parent has all of them. The file's name
/// begins with a dot. Its table stands at the end and is sealed, so that a file that was not finished is none.
struct ExactRecord {
    std::int32_t number = -1, parent = -1;
    TileGrid grid;
    std::vector<ExactTile> tiles;     ///< by tile number
    std::uint64_t bytes = 0;          ///< what it takes on the disk or in memory
    std::vector<std::uint8_t> memory; ///< the packed tiles when there is no file
    bool inMemory = false;
    bool isWhole = true; ///< nothing was lost between disk and memory

    static std::string fileName(std::int32_t number);
    const ExactTile* find(int tile) const;
};

/// What a tile held in the step before; nothing when that is not known.
using KnownTile = std::function<std::optional<Fingerprint>(int tile)>;

/// Packs @p tiles of @p capture but for those that hold what they held before, and writes the record into the open
/// folder @p folder. When the disk fails, the record is kept in memory. Runs on the calling thread and the pool.
/// @throws std::bad_alloc
ExactRecord writeExactRecord(int folder, std::int32_t number, std::int32_t parent, PixelCapture& capture,
                             const std::vector<int>& tiles, const KnownTile& before);

/// Reads the table of a record; nothing when there is none or it is not whole.
std::optional<ExactRecord> readExactRecord(int folder, std::int32_t number);

/// Makes a record of its own for a step out of packed tiles of several, which takes the place of the step's file.
/// @param tiles  every tile of the grid, with the record that has it
struct PackedTile {
    const ExactRecord* record = nullptr;
    const ExactTile* tile = nullptr;
};
std::optional<ExactRecord> writeWholeRecord(int folder, std::int32_t number, TileGrid grid,
                                            const std::vector<PackedTile>& tiles);

/// The packed bytes of tiles of one record, one after the other. For one thread.
class ExactReader
{
public:
    ExactReader(int folder, const ExactRecord& record);
    ~ExactReader();
    ExactReader(const ExactReader&) = delete;
    ExactReader& operator=(const ExactReader&) = delete;
    /// Nothing when they cannot be read. Valid until the next call. @throws std::bad_alloc
    std::span<const std::uint8_t> read(const ExactTile& tile);

private:
    const ExactRecord& mRecord;
    int mFile = -1;
    std::vector<std::uint8_t> mBytes;
};

} // namespace zp
