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
/// Bytes that a pair and its largest count stand for.
constexpr int kWholeRun = 257;
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

/// Keeps of a plane every few bytes only.
class PlaneSampler
{
public:
    PlaneSampler(int width, int height, int step, std::vector<std::uint8_t>& out)
        : mWidth(width), mHeight(height), mStep(step), mOut(out)
    {
    }
    bool full() const { return mNext >= std::int64_t{mWidth} * mHeight; }
    std::int64_t written() const { return mAt; }
    void fill(std::uint8_t value, std::int64_t count)
    {
        take(count, [value](std::int64_t) { return value; });
    }
    void copy(const std::uint8_t* bytes, std::int64_t count)
    {
        take(count, [bytes](std::int64_t i) { return bytes[i]; });
    }

private:
    template <class F>
    void take(std::int64_t count, F&& valueAt)
    {
        for (; mNext < mAt + count && !full(); advance()) mOut.push_back(valueAt(mNext - mAt));
        mAt += count;
    }
    void advance()
    {
        mColumn += mStep;
        if (mColumn >= mWidth) {
            mColumn = 0;
            mRow += mStep;
        }
        mNext = mRow < mHeight ? std::int64_t{mRow} * mWidth + mColumn : std::int64_t{mWidth} * mHeight;
    }
    int mWidth, mHeight, mStep, mColumn = 0, mRow = 0;
    std::int64_t mAt = 0, mNext = 0; ///< the plane's byte that comes next in the file; the one to be kept next
    std::vector<std::uint8_t>& mOut;
};

/// Hands @p file to @p plane in literals and runs.
template <class Plane>
void unpack(std::span<const std::uint8_t> file, Plane& plane)
{
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
}

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
    // What came before has an end within two counts; then whole ones follow one another.
    for (; count > 0 && (mRun != kNone || mPrevious != kNone); --count) append(&byte, 1);
    constexpr std::int64_t kTogether = 64;
    std::array<std::uint8_t, 3 * kTogether> groups;
    for (std::size_t i = 0; i < groups.size(); ++i) groups[i] = i % 3 == 2 ? 255 : byte;
    for (std::int64_t whole = count / kWholeRun; whole > 0; whole -= kTogether)
        mOut.insert(mOut.end(), groups.data(), groups.data() + 3 * std::min(whole, kTogether));
    std::array<std::uint8_t, kWholeRun> rest;
    rest.fill(byte);
    append(rest.data(), std::size_t(count % kWholeRun));
}

void AlphaRLEEncoder::append(const AlphaRLEEncoder& next)
{
    finish();
    mOut.insert(mOut.end(), next.mOut.begin(), next.mOut.end());
    mPrevious = next.mPrevious;
    mRun = next.mRun;
    mCopies = next.mCopies;
}

bool AlphaBands::start(int width, int height, int rowsABand)
{
    if (width == mWidth && height == mHeight && rowsABand == mRowsABand && !mBands.empty()) return true;
    mWidth = width, mHeight = height, mRowsABand = rowsABand;
    mBands = std::vector<Band>(std::size_t((height + rowsABand - 1) / rowsABand));
    return false;
}

void AlphaBands::forget()
{
    mBands.clear();
    mWidth = mHeight = 0;
}

void AlphaBands::encode(ConstBitmapView rows, int first)
{
    Band& band = mBands[std::size_t(first / mRowsABand)];
    band.bytes.clear();
    band.encoder.restart();
    band.copies = 0;
    band.value = rows.pixel(0, 0)[0];
    bool copying = true;
    alignas(64) std::array<std::uint8_t, kPiece> piece;
    for (int y = 0; y < rows.height; ++y)
        for (int x = 0; x < rows.width; x += kPiece) {
            const auto count = std::size_t(std::min(kPiece, rows.width - x));
            gatherAlpha(rows.row(y) + x, piece.data(), int(count));
            const std::size_t same = copying ? runLength(piece.data(), count, band.value) : 0;
            band.copies += std::int64_t(same);
            copying = copying && same == count;
            if (same < count) band.encoder.append(piece.data() + same, count - same);
        }
}

std::vector<std::uint8_t> AlphaBands::finish() const
{
    std::size_t size = 1024;
    for (const Band& band : mBands) size += band.bytes.size() + std::size_t(band.copies / kWholeRun * 3);
    std::vector<std::uint8_t> file;
    file.reserve(size);
    AlphaRLEEncoder whole(file);
    for (const Band& band : mBands) {
        whole.appendRun(band.value, band.copies);
        if (!band.bytes.empty()) whole.append(band.encoder);
    }
    whole.finish();
    return file;
}

std::vector<std::uint8_t> encodeAlphaRLE(ConstBitmapView pixels)
{
    if (pixels.isEmpty()) return {};
    const std::int64_t count = std::int64_t{pixels.width} * pixels.height;
    const int bands = count < kWorthSharing ? 1 : std::min(pixels.height, 2 * workerCount());
    const int rowsABand = (pixels.height + bands - 1) / bands;
    AlphaBands rows;
    rows.start(pixels.width, pixels.height, rowsABand);
    parallelFor((pixels.height + rowsABand - 1) / rowsABand, [&](int band) {
        const int first = band * rowsABand;
        rows.encode(pixels.part({0, first, pixels.width, std::min(first + rowsABand, pixels.height)}), first);
    });
    return rows.finish();
}

std::int64_t decodeAlphaRLE(std::span<const std::uint8_t> file, BitmapView pixels)
{
    if (pixels.isEmpty()) return 0;
    PlaneWriter plane(pixels);
    unpack(file, plane);
    return plane.written();
}

std::vector<std::uint8_t> sampleAlphaRLE(std::span<const std::uint8_t> file, int width, int height, int step)
{
    std::vector<std::uint8_t> samples;
    if (width <= 0 || height <= 0 || step <= 0) return samples;
    const auto count = [step](int length) { return std::size_t((length + step - 1) / step); };
    samples.reserve(count(width) * count(height));
    PlaneSampler plane(width, height, step, samples);
    unpack(file, plane);
    samples.resize(count(width) * count(height), 255);
    return samples;
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
