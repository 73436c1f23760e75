// SPDX-License-Identifier: GPL-3.0-or-later
/// The alpha run-length format at memory speed: alpha gathered row by row into the cache, runs compared in blocks.
#include "undo/AlphaRLE.h"
#include "base/WorkPool.h"
#include "undo/AlphaRows.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace zp
{

namespace
{

/// Alpha bytes gathered at a time: half a first-level cache, and a multiple of the block.
constexpr int kPiece = 16384;
/// Pixels from which a second core is worth waking.
constexpr std::int64_t kWorthSharing = 1 << 20;

std::uint64_t load64(const std::uint8_t* bytes)
{
    std::uint64_t word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// How many bytes from the start equal @p value.
std::size_t runLength(const std::uint8_t* bytes, std::size_t count, std::uint8_t value)
{
    const std::uint64_t repeated = 0x0101010101010101u * value;
    // Most runs of real edges are short: look at one word before going to blocks.
    std::size_t i = 0;
    const auto words = [&](std::size_t limit) {
        for (; i + 8 <= limit; i += 8) {
            const std::uint64_t difference = load64(bytes + i) ^ repeated;
            if (difference) {
                if constexpr (std::endian::native == std::endian::little)
                    i += std::size_t(std::countr_zero(difference)) / 8;
                else
                    i += std::size_t(std::countl_zero(difference)) / 8;
                return true;
            }
        }
        return false;
    };
    if (words(std::min<std::size_t>(count, 16))) return i;
    i += equalBlocks(bytes + i, count - i, value);
    if (words(count)) return i;
    while (i < count && bytes[i] == value) ++i;
    return i;
}

/// Index of the first byte that equals the one before it, bytes[-1] included; @p count when there is none.
std::size_t firstPair(const std::uint8_t* bytes, std::size_t count)
{
    std::size_t i = 0;
    for (; i < std::min<std::size_t>(count, 8); ++i)
        if (bytes[i] == bytes[std::ptrdiff_t(i) - 1]) return i;
    i += pairlessBlocks(bytes + i, count - i);
    while (i < count && bytes[i] != bytes[std::ptrdiff_t(i) - 1]) ++i;
    return i;
}

/// A place in the alpha plane to which runs and copies are written, over the ends of rows.
class PlaneWriter
{
public:
    explicit PlaneWriter(BitmapView pixels) : mPixels(pixels) {}
    bool full() const { return mRow >= mPixels.height; }
    std::int64_t written() const { return std::int64_t{mRow} * mPixels.width + mColumn; }

    void fill(std::uint8_t value, std::int64_t count)
    {
        forEachStretch(count, [&](int stretch) { fillAlpha(mPixels.row(mRow) + mColumn, value, stretch); });
    }
    void copy(const std::uint8_t* bytes, std::int64_t count)
    {
        forEachStretch(count, [&](int stretch) {
            scatterAlpha(mPixels.row(mRow) + mColumn, bytes, stretch);
            bytes += stretch;
        });
    }

private:
    template <class F>
    void forEachStretch(std::int64_t count, F&& f)
    {
        while (count > 0 && !full()) {
            const int stretch = int(std::min<std::int64_t>(count, mPixels.width - mColumn));
            f(stretch);
            count -= stretch;
            mColumn += stretch;
            if (mColumn == mPixels.width) {
                mColumn = 0;
                ++mRow;
            }
        }
    }
    BitmapView mPixels;
    int mColumn = 0, mRow = 0;
};

} // namespace

void AlphaRLEEncoder::append(const std::uint8_t* bytes, std::size_t count)
{
    // Worst case: every two bytes become three; and a count left open by the piece before.
    std::array<std::uint8_t, kPiece + kPiece / 2 + 3> output;
    for (; count > kPiece; bytes += kPiece, count -= kPiece)
        mOut.insert(mOut.end(), output.data(), appendPiece(bytes, kPiece, output.data()));
    mOut.insert(mOut.end(), output.data(), appendPiece(bytes, count, output.data()));
}

std::uint8_t* AlphaRLEEncoder::appendPiece(const std::uint8_t* bytes, std::size_t count, std::uint8_t* to)
{
    const std::uint8_t* const end = bytes + count;

    while (bytes != end) {
        if (mRun != kNone) {
            const auto value = std::uint8_t(mRun);
            const std::size_t room = std::min<std::size_t>(std::size_t(255 - mCopies), std::size_t(end - bytes));
            const std::size_t same = runLength(bytes, room, value);
            bytes += same;
            mCopies += int(same);
            if (mCopies == 255) {
                *to++ = 255;
                mRun = mPrevious = kNone;
            } else if (bytes != end) {
                *to++ = std::uint8_t(mCopies);
                mRun = kNone;
                mPrevious = *to++ = *bytes++;
            }
            continue;
        }
        if (mPrevious != kNone && *bytes == mPrevious) {
            *to++ = *bytes++;
            mRun = mPrevious;
            mCopies = 0;
            continue;
        }
        // Literals up to the next pair. The first is not compared with the one before: either there is none, or it
        // differs.
        const std::size_t literals = 1 + firstPair(bytes + 1, std::size_t(end - bytes) - 1);
        std::memcpy(to, bytes, literals);
        to += literals;
        bytes += literals;
        mPrevious = bytes[-1];
    }
    return to;
}

void AlphaRLEEncoder::finish()
{
    if (mRun != kNone) mOut.push_back(std::uint8_t(mCopies));
    mRun = mPrevious = kNone;
}

void AlphaRLEEncoder::appendRun(std::uint8_t byte, std::int64_t count)
{
    std::array<std::uint8_t, kPiece> bytes;
    bytes.fill(byte);
    for (; count > 0; count -= kPiece) append(bytes.data(), std::size_t(std::min<std::int64_t>(count, kPiece)));
}

void AlphaRLEEncoder::append(const AlphaRLEEncoder& next)
{
    finish();
    mOut.insert(mOut.end(), next.mOut.begin(), next.mOut.end());
    mPrevious = next.mPrevious;
    mRun = next.mRun;
    mCopies = next.mCopies;
}

namespace
{

/// Rows of the plane encoded by themselves: first the copies of the byte before them, then all from the first that
/// differs. An opaque band is nothing but copies.
struct Band {
    std::uint8_t before = 0;
    std::int64_t copies = 0;
    std::vector<std::uint8_t> bytes;
    AlphaRLEEncoder encoder{bytes};

    Band() = default;
    Band(const Band&) = delete;
    Band& operator=(const Band&) = delete;

    void encode(ConstBitmapView pixels, int first, int last)
    {
        bool copying = first > 0;
        if (copying) before = pixels.pixel(pixels.width - 1, first - 1)[0];
        alignas(64) std::array<std::uint8_t, kPiece> piece;
        for (int y = first; y < last; ++y)
            for (int x = 0; x < pixels.width; x += kPiece) {
                const auto count = std::size_t(std::min(kPiece, pixels.width - x));
                gatherAlpha(pixels.row(y) + x, piece.data(), int(count));
                const std::size_t same = copying ? runLength(piece.data(), count, before) : 0;
                copies += std::int64_t(same);
                copying = copying && same == count;
                if (same < count) encoder.append(piece.data() + same, count - same);
            }
    }
};

} // namespace

std::vector<std::uint8_t> encodeAlphaRLE(ConstBitmapView pixels)
{
    std::vector<std::uint8_t> file;
    if (pixels.isEmpty()) return file;
    const std::int64_t count = std::int64_t{pixels.width} * pixels.height;
    const int bands = count < kWorthSharing ? 1 : std::min(pixels.height, 2 * workerCount());
    std::vector<Band> parts(static_cast<std::size_t>(bands));
    parallelFor(bands, [&](int i) {
        const auto row = [&](int band) { return int(std::int64_t{pixels.height} * band / bands); };
        parts[std::size_t(i)].encode(pixels, row(i), row(i + 1));
    });
    std::size_t size = 1024;
    for (const Band& part : parts) size += part.bytes.size() + std::size_t(part.copies / 257 * 3);
    file.reserve(size);
    AlphaRLEEncoder whole(file);
    for (const Band& part : parts) {
        whole.appendRun(part.before, part.copies);
        if (!part.bytes.empty()) whole.append(part.encoder);
    }
    whole.finish();
    return file;
}

std::int64_t decodeAlphaRLE(std::span<const std::uint8_t> file, BitmapView pixels)
{
    if (pixels.isEmpty()) return 0;
    PlaneWriter plane(pixels);
    const std::uint8_t* from = file.data();
    const std::uint8_t* const end = from + file.size();
    while (from != end && !plane.full()) {
        // A count was just read, or this is the start: the first literal pairs with nothing before it.
        const std::size_t left = std::size_t(end - from);
        const std::size_t literals = 1 + firstPair(from + 1, left - 1);
        if (literals == left) {
            plane.copy(from, std::int64_t(literals));
            break;
        }
        // The pair's two bytes and their copies are one run; neighbouring runs of the same value (an opaque plane is
        // nothing else) are joined, so that they are filled along whole rows.
        const std::uint8_t value = from[literals];
        plane.copy(from, std::int64_t(literals) - 1);
        from += literals + 1;
        // At the end of the file its end mark is taken for a count, and its low 8 bits are 255.
        std::int64_t run = 2 + (from != end ? *from++ : 255);
        while (end - from >= 3 && from[0] == value && from[1] == value) {
            run += 2 + from[2];
            from += 3;
        }
        plane.fill(value, run);
    }
    return plane.written();
}

std::uint8_t* AlphaCursor::next()
{
    if (mRow >= mPixels.height) return nullptr;
    if (++mColumn >= mPixels.width) {
        mColumn = 0;
        if (++mRow >= mPixels.height) return nullptr;
    }
    return mPixels.width > 0 ? mPixels.pixel(mColumn, mRow) : nullptr;
}

} // namespace zp
