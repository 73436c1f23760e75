// SPDX-License-Identifier: GPL-3.0-or-later
/// The record's file: head, packed tiles, table, seal.
#include "undo/ExactRecord.h"
#include "base/WorkPool.h"
#include "undo/TileCodec.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zp
{

namespace
{

constexpr std::array<char, 8> kMagic{'Z', 'P', 'e', 'x', 'a', 'c', 't', '1'};
/// Tiles that are packed side by side before they are written: a few megabytes.
constexpr int kBatch = 64;
constexpr std::uint64_t kLargestTable = std::uint64_t{64} << 20;

/// Stands at the end of the file, behind the table.
struct Tail {
    std::array<char, 8> magic = kMagic;
    std::int32_t number = 0, parent = 0, width = 0, height = 0;
    std::uint64_t tableOffset = 0, tileCount = 0;
    Fingerprint table;
    Fingerprint tail; ///< of what stands before it in here
};

Fingerprint sealOf(const Tail& tail)
{
    return fingerprint(std::span(reinterpret_cast<const std::uint8_t*>(&tail), offsetof(Tail, tail)));
}

std::span<const std::uint8_t> bytesOf(const std::vector<ExactTile>& tiles)
{
    return {reinterpret_cast<const std::uint8_t*>(tiles.data()), tiles.size() * sizeof(ExactTile)};
}

std::string partName(std::int32_t number) { return ExactRecord::fileName(number) + ".part"; }

bool writeAll(int file, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes = bytes.subspan(std::size_t(written));
    }
    return true;
}

bool readAll(int file, std::uint8_t* to, std::size_t count, std::uint64_t offset)
{
    while (count > 0) {
        const ssize_t got = ::pread(file, to, count, off_t(offset));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return false;
        to += got, offset += std::uint64_t(got), count -= std::size_t(got);
    }
    return true;
}

/// A record on its way: into a file as long as the disk takes it, then into memory.
class RecordWriter
{
public:
    RecordWriter(int folder, ExactRecord& record) : mFolder(folder), mRecord(record)
    {
        unlinkat(mFolder, partName(record.number).c_str(), 0);
        mFile =
            openat(mFolder, partName(record.number).c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
        if (mFile < 0) mRecord.inMemory = true;
    }
    ~RecordWriter() { close(); }
    RecordWriter(const RecordWriter&) = delete;
    RecordWriter& operator=(const RecordWriter&) = delete;

    void append(int tile, const Fingerprint& pixels, std::span<const std::uint8_t> packed)
    {
        mRecord.tiles.push_back({tile, std::uint32_t(packed.size()), mEnd, pixels});
        if (!mRecord.inMemory && !writeAll(mFile, packed)) keepInMemory();
        if (mRecord.inMemory) mRecord.memory.insert(mRecord.memory.end(), packed.begin(), packed.end());
        mEnd += packed.size();
    }
    /// Table and seal; the file takes its place.
    void finish()
    {
        mRecord.bytes = mEnd;
        if (mRecord.inMemory) return close();
        Tail tail;
        tail.number = mRecord.number, tail.parent = mRecord.parent;
        tail.width = mRecord.grid.width, tail.height = mRecord.grid.height;
        tail.tableOffset = mEnd, tail.tileCount = mRecord.tiles.size();
        tail.table = fingerprint(bytesOf(mRecord.tiles));
        tail.tail = sealOf(tail);
        const bool written = writeAll(mFile, bytesOf(mRecord.tiles)) &&
                             writeAll(mFile, {reinterpret_cast<const std::uint8_t*>(&tail), sizeof tail}) &&
                             renameat(mFolder, partName(mRecord.number).c_str(), mFolder,
                                      ExactRecord::fileName(mRecord.number).c_str()) == 0;
        if (written)
            mRecord.bytes += mRecord.tiles.size() * sizeof(ExactTile) + sizeof tail;
        else
            keepInMemory();
        close();
    }

private:
    /// What was written so far comes back from the file, which goes.
    void keepInMemory()
    {
        mRecord.inMemory = true;
        mRecord.memory.resize(mEnd);
        mRecord.isWhole = readAll(mFile, mRecord.memory.data(), mEnd, 0);
    }
    void close()
    {
        if (mFile >= 0) ::close(mFile);
        mFile = -1;
        unlinkat(mFolder, partName(mRecord.number).c_str(), 0);
    }

    int mFolder, mFile = -1;
    ExactRecord& mRecord;
    std::uint64_t mEnd = 0;
};

} // namespace

std::string ExactRecord::fileName(std::int32_t number) { return ".C_" + std::to_string(number) + ".exact"; }

const ExactTile* ExactRecord::find(int tile) const
{
    const auto found = std::lower_bound(tiles.begin(), tiles.end(), tile,
                                        [](const ExactTile& t, int wanted) { return t.tile < wanted; });
    return found != tiles.end() && found->tile == tile ? &*found : nullptr;
}

ExactRecord writeExactRecord(int folder, std::int32_t number, std::int32_t parent, PixelCapture& capture,
                             const std::vector<int>& tiles, const KnownTile& before)
{
    ExactRecord record;
    record.number = number;
    record.parent = parent;
    record.grid = capture.tiles().grid();
    RecordWriter writer(folder, record);
    struct Slot {
        TileCodec codec;
        std::span<const std::uint8_t> packed;
        Fingerprint pixels;
    };
    std::vector<Slot> slots(std::min(tiles.size(), std::size_t(kBatch)));
    for (std::size_t first = 0; first < tiles.size(); first += slots.size()) {
        const int count = int(std::min(slots.size(), tiles.size() - first));
        parallelFor(count, [&](int i) {
            Slot& slot = slots[std::size_t(i)];
            const int tile = tiles[first + std::size_t(i)];
            capture.read(tile, [&](ConstBitmapView pixels) {
                slot.pixels = fingerprint(pixels);
                slot.packed = {};
                if (before(tile) != slot.pixels) slot.packed = slot.codec.pack(pixels);
            });
        });
        for (int i = 0; i < count; ++i)
            if (const Slot& slot = slots[std::size_t(i)]; !slot.packed.empty())
                writer.append(tiles[first + std::size_t(i)], slot.pixels, slot.packed);
    }
    writer.finish();
    return record;
}

std::optional<ExactRecord> readExactRecord(int folder, std::int32_t number)
{
    const int file =
        openat(folder, ExactRecord::fileName(number).c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return std::nullopt;
    struct stat status {
    };
    std::optional<ExactRecord> record;
    Tail tail;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && std::uint64_t(status.st_size) >= sizeof tail &&
        readAll(file, reinterpret_cast<std::uint8_t*>(&tail), sizeof tail,
                std::uint64_t(status.st_size) - sizeof tail) &&
        tail.magic == kMagic && tail.tail == sealOf(tail) && tail.number == number &&
        tail.tileCount <= kLargestTable / sizeof(ExactTile) &&
        tail.tableOffset + tail.tileCount * sizeof(ExactTile) + sizeof tail == std::uint64_t(status.st_size)) {
        record.emplace();
        record->number = number;
        record->parent = tail.parent;
        record->grid = {tail.width, tail.height};
        record->bytes = std::uint64_t(status.st_size);
        record->tiles.resize(tail.tileCount);
        if (!readAll(file, reinterpret_cast<std::uint8_t*>(record->tiles.data()), tail.tileCount * sizeof(ExactTile),
                     tail.tableOffset) ||
            fingerprint(bytesOf(record->tiles)) != tail.table)
            record.reset();
    }
    ::close(file);
    return record;
}

std::optional<ExactRecord> writeWholeRecord(int folder, std::int32_t number, TileGrid grid,
                                            const std::vector<PackedTile>& tiles)
{
    ExactRecord record;
    record.number = number;
    record.grid = grid;
    {
        RecordWriter writer(folder, record);
        std::unique_ptr<ExactReader> reader;
        const ExactRecord* from = nullptr;
        for (const PackedTile& packed : tiles) {
            if (packed.record != from) reader = std::make_unique<ExactReader>(folder, *(from = packed.record));
            const auto bytes = reader->read(*packed.tile);
            if (bytes.size() != packed.tile->length) return std::nullopt;
            writer.append(packed.tile->tile, packed.tile->pixels, bytes);
            if (record.inMemory) return std::nullopt; // this was to save space, not to take memory
        }
        writer.finish();
    }
    if (record.inMemory) return std::nullopt;
    return record;
}

ExactReader::ExactReader(int folder, const ExactRecord& record) : mRecord(record)
{
    if (!record.inMemory)
        mFile = openat(folder, ExactRecord::fileName(record.number).c_str(),
                       O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
}

ExactReader::~ExactReader()
{
    if (mFile >= 0) ::close(mFile);
}

std::span<const std::uint8_t> ExactReader::read(const ExactTile& tile)
{
    if (mRecord.inMemory) {
        if (tile.offset + tile.length > mRecord.memory.size()) return {};
        return std::span(mRecord.memory).subspan(tile.offset, tile.length);
    }
    mBytes.resize(tile.length);
    if (mFile < 0 || !readAll(mFile, mBytes.data(), tile.length, tile.offset)) return {};
    return mBytes;
}

} // namespace zp
