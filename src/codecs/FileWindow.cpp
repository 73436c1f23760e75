// SPDX-License-Identifier: GPL-3.0-or-later
/// Which parts of a file a picture needs, by the structure of its kind.
#include "codecs/FileWindow.h"
#include "codecs/ByteReader.h"
#include "codecs/TIFFTags.h"
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <set>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace zp::codec
{

namespace
{

/// A tag's values, a profile, a packet beyond this is not looked at.
constexpr std::uint64_t kMostOfOneEntry = 64u << 20;
/// What is copied at a time stays in the processor's cache.
constexpr std::size_t kPartBytes = std::size_t{128} << 10;
constexpr int kMostPages = 100'000, kDeepest = 3;

void takePNG(FileWindow& window)
{
    const ByteReader file(window.bytes(), true);
    for (std::uint64_t at = 8; at + 12 <= file.size() && !window.ranOut();) {
        window.take(at, 8);
        const std::uint64_t length = file.u32(at);
        const bool isEnd = file.has(at + 4, "IEND"), isPixels = file.has(at + 4, "IDAT");
        // Letters name a chunk; anything else is where the picture ends.
        for (std::uint64_t i = at + 4; i < at + 8; ++i)
            if (const unsigned letter = file.u8(i) | 0x20u; letter < 'a' || letter > 'z') return;
        if (isPixels || (length <= kMostOfOneEntry && !file.has(at + 4, "fdAT"))) window.take(at + 8, length + 4);
        if (isEnd) return;
        at += 12 + length;
    }
}

void takeTags(FileWindow& window, const TagList& tags, bool withPixels, int depth);

/// The data that two lists of tags' values point to: where pieces begin, and how long they are.
void takePieces(FileWindow& window, const TagList& tags, unsigned offsets, unsigned counts)
{
    const TagList::Values at = tags.values(offsets), length = tags.values(counts);
    for (std::uint64_t i = 0; i < at.count && !window.ranOut(); ++i) {
        const std::uint64_t begin = tags.file.number(at.at + i * at.size, at.size);
        // Without a length the library takes all there is.
        const std::uint64_t bytes =
            i < length.count ? tags.file.number(length.at + i * length.size, length.size) : tags.file.size();
        window.take(begin, bytes);
    }
}

void takeTags(FileWindow& window, const TagList& tags, bool withPixels, int depth)
{
    constexpr unsigned kStrips = 273, kStripBytes = 279, kTiles = 324, kTileBytes = 325, kJPEG = 513, kJPEGBytes = 514,
                       kExif = 34665, kGPS = 34853, kInterop = 40965;
    const ByteReader& file = tags.file;
    for (std::uint64_t i = 0; i < tags.count(); ++i) {
        const TagList::Values values = tags.valuesOf(i);
        if (values.bytes() <= kMostOfOneEntry) window.take(values.at, values.bytes());
    }
    for (const unsigned tag : {kExif, kGPS, kInterop}) {
        const TagList below{file, tags.large, tags.value(tag)};
        if (below.at == 0 || depth == kDeepest) continue;
        window.take(below.at, tags.large ? 8 : 2);
        if (!below.isSensible()) continue;
        window.take(below.at, below.entry(below.count()) - below.at);
        takeTags(window, below, false, depth + 1);
    }
    if (!withPixels) return;
    takePieces(window, tags, kStrips, kStripBytes);
    takePieces(window, tags, kTiles, kTileBytes);
    takePieces(window, tags, kJPEG, kJPEGBytes);
}

void takeTIFF(FileWindow& window)
{
    window.take(0, 16);
    const ByteReader file(window.bytes(), window.bytes()[0] == 'M');
    std::set<std::uint64_t> seen;
    for (TagList page = TagList::firstOf(file); page.at < file.size() && seen.insert(page.at).second;) {
        window.take(page.at, page.large ? 8 : 2);
        if (!page.isSensible() || int(seen.size()) > kMostPages || window.ranOut()) return;
        window.take(page.at, page.entry(page.count()) - page.at + 8); // with where the next one is
        if (seen.size() == 1) takeTags(window, page, true, 0);
        page.at = page.next();
    }
}

/// Layers lie between what is said of the picture and the picture itself.
void takePSD(FileWindow& window)
{
    window.take(0, 64);
    const ByteReader file(window.bytes(), true);
    const bool large = file.u16(4) == 2;
    std::uint64_t at = 26;
    for (int section = 0; section < 2; ++section) { // colours, resources
        window.take(at, 4);
        const std::uint64_t length = file.u32(at);
        window.take(at, length + 4);
        at += length + 4;
    }
    const unsigned width = large ? 8 : 4;
    window.take(at, 64); // how many layers there are
    at += width + file.number(at, width);
    if (at < file.size()) window.take(at, file.size() - at);
}

} // namespace

FileWindow::FileWindow(int fd, std::uint64_t size, std::uint64_t budget, bool forOthers)
    : mFd(fd), mSize(std::size_t(size)), mBudget(budget)
{
    int kind = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, rights = PROT_READ | PROT_WRITE;
    if (forOthers) {
        mMemory = ::memfd_create("picture", MFD_CLOEXEC | MFD_ALLOW_SEALING);
        if (mMemory < 0 || ::ftruncate(mMemory, off_t(mSize)) != 0) return;
        kind = MAP_PRIVATE, rights = PROT_READ; // one that could write would stand in the way of the seals
    }
    void* const place = ::mmap(nullptr, mSize, rights, kind, mMemory, 0);
    if (place != MAP_FAILED) mBytes = static_cast<std::uint8_t*>(place);
}

FileWindow::~FileWindow()
{
    if (mBytes) ::munmap(mBytes, mSize);
    if (mMemory >= 0) ::close(mMemory);
}

int FileWindow::sealed()
{
    constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
    return mMemory >= 0 && ::fcntl(mMemory, F_ADD_SEALS, kSeals) == 0 ? mMemory : -1;
}

void FileWindow::take(std::uint64_t offset, std::uint64_t count)
{
    if (offset >= mSize) return;
    count = std::min<std::uint64_t>(count, mSize - offset);
    if (count > mBudget - mTaken) {
        mRanOut = true;
        count = mBudget - mTaken;
    }
    mTaken += count;
    mEnd = std::max(mEnd, offset + count);
    std::vector<std::uint8_t> part(mMemory >= 0 ? std::min<std::uint64_t>(count, kPartBytes) : 0);
    while (count > 0) {
        const std::size_t most = part.empty() ? count : std::min<std::uint64_t>(count, part.size());
        const ssize_t got = ::pread(mFd, part.empty() ? mBytes + offset : part.data(), most, off_t(offset));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) return; // it shrank: what is there may still be a picture
        if (!part.empty() && !put(offset, part.data(), std::size_t(got))) return;
        offset += std::uint64_t(got);
        count -= std::uint64_t(got);
    }
}

/// Zeros are there already, and cost nothing.
bool FileWindow::put(std::uint64_t offset, const std::uint8_t* bytes, std::size_t count)
{
    if (bytes[0] == 0 && std::memcmp(bytes, bytes + 1, count - 1) == 0) return true;
    while (count > 0) {
        const ssize_t n = ::pwrite(mMemory, bytes, count, off_t(offset));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        offset += std::uint64_t(n);
        bytes += n;
        count -= std::size_t(n);
    }
    return true;
}

void takeNeededParts(FileWindow& window, Format format, std::size_t start)
{
    switch (format) {
    case Format::PNG:
        window.take(0, 8);
        return takePNG(window);
    case Format::TIFF:
        return takeTIFF(window);
    case Format::PSD:
        return takePSD(window);
    case Format::BMP: {
        window.take(0, 6);
        const std::uint32_t said = ByteReader(window.bytes(), false).u32(2); // its own length, if it is right
        window.take(0, said > 6 ? said : window.bytes().size());
        return;
    }
    default:
        // One piece from the head on, as long as such a picture can be.
        window.take(start, window.bytes().size());
        return;
    }
}

std::uint64_t mostBytesFor(Format format, std::int64_t width, std::int64_t height)
{
    // Four colours of 16 bits; a TIFF file's may have 64, a PSD file's 32. Compression makes noise a little larger.
    const std::uint64_t aPixel = format == Format::TIFF ? 40 : format == Format::PSD ? 20 : 10;
    constexpr std::uint64_t kBeside = 256u << 20; // metadata, palettes, previews
    constexpr std::uint64_t kUnknown = std::uint64_t{1} << 30;
    if (width <= 0 || height <= 0) return kUnknown;
    return kBeside + aPixel * std::uint64_t(width) * std::uint64_t(height);
}

} // namespace zp::codec
