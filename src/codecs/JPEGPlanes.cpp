// SPDX-License-Identifier: GPL-3.0-or-later
/// A ring of bands between the thread that decodes and the one that makes pixels.
#include "codecs/JPEGPlanes.h"
#include "base/WorkPool.h"
#include <algorithm>

namespace zp::jpeg
{
namespace
{

/// Samples that are handed over at a time: enough that waking the other thread costs nothing, few enough for its cache.
constexpr std::size_t kBatchBytes = 256 << 10;
constexpr int kBatches = 4; ///< in the ring
constexpr int kMostRowsOfUnit = 4 * DCTSIZE;

int dividedUp(int a, int b) { return (a + b - 1) / b; }

} // namespace

bool PlaneDecoder::handles(jpeg_decompress_struct& info)
{
    const bool grey = info.num_components == 1 && info.jpeg_color_space == JCS_GRAYSCALE;
    if (!grey && (info.num_components != 3 || info.jpeg_color_space != JCS_YCbCr)) return false;
    jpeg_calc_output_dimensions(&info);
    const int least = info.min_DCT_scaled_size;
    for (int i = 0; i < info.num_components; ++i) {
        const jpeg_component_info& c = info.comp_info[i];
        const int across = c.h_samp_factor * c.DCT_scaled_size / least;
        const int down = c.v_samp_factor * c.DCT_scaled_size / least;
        const bool full = across == info.max_h_samp_factor, half = 2 * across == info.max_h_samp_factor;
        if (!full && !half) return false;
        if (down != info.max_v_samp_factor && 2 * down != info.max_v_samp_factor) return false;
        // At an eighth of the size, and where there are hardly any samples, the library repeats them.
        if ((half || down != info.max_v_samp_factor) && (least == 1 || c.downsampled_width <= 2)) return false;
    }
    return true;
}

PlaneDecoder::PlaneDecoder(jpeg_decompress_struct& info, BitmapView out, int skip)
    : mInfo(info), mOut(out), mSkip(skip), mEnd(skip + out.height), mPlanes(std::size_t(info.num_components))
{
    const int least = info.min_DCT_scaled_size;
    mRowsOfUnit = info.max_v_samp_factor * least;
    std::size_t unitBytes = 0;
    for (std::size_t i = 0; i < mPlanes.size(); ++i) {
        const jpeg_component_info& c = info.comp_info[i];
        Plane& plane = mPlanes[i];
        const bool across = 2 * c.h_samp_factor * c.DCT_scaled_size == info.max_h_samp_factor * least;
        const bool down = 2 * c.v_samp_factor * c.DCT_scaled_size == info.max_v_samp_factor * least;
        plane.upsampling = across && down ? Upsampling::Both
                           : across       ? Upsampling::Across
                           : down         ? Upsampling::Down
                                          : Upsampling::None;
        mNeedsNext |= down;
        plane.width = int(c.downsampled_width);
        plane.height = int(c.downsampled_height);
        plane.rowsOfUnit = c.v_samp_factor * c.DCT_scaled_size;
        plane.stride = std::size_t(c.width_in_blocks) * std::size_t(c.DCT_scaled_size) + kRowSlack;
        unitBytes += plane.stride * std::size_t(plane.rowsOfUnit);
    }
    const int rows = std::min(mEnd + (mNeedsNext ? 1 : 0), int(info.output_height));
    mWanted = dividedUp(rows, mRowsOfUnit);
    mBatch = std::clamp(int(kBatchBytes / unitBytes), 1, mWanted);
    mUnits = std::min(mWanted, kBatches * mBatch);
    mConverted = std::max(0, mSkip - (mNeedsNext ? 1 : 0)); // of the row before the first one the samples are needed
    for (Plane& plane : mPlanes) {
        plane.rows.resize(plane.stride * std::size_t(plane.rowsOfUnit) * std::size_t(mUnits) + kRowSlack);
        plane.wide.resize(2 * std::size_t(plane.width) + 2 * kRowSlack);
        mSums.resize(std::max(mSums.size(), std::size_t(plane.width) + 2 * kRowSlack));
    }
    mRowPointers.resize(mPlanes.size() * kMostRowsOfUnit);
}

int PlaneDecoder::decode()
{
    parallelFor(2, [this](int part) {
        if (part == 0) {
            readUnits(mInfo, *this);
            const std::scoped_lock lock(mMutex);
            mPublished = mDecoded;
            mAllDecoded = true;
            mProgressed.notify_all();
            return;
        }
        // This part runs beside the first or, where no worker is free, behind it.
        std::unique_lock lock(mMutex);
        for (;;) {
            mProgressed.wait(lock, [this] { return !mConverting && (mAllDecoded || mConverted < convertible()); });
            if (mConverted >= convertible()) return;
            convertBand(lock);
        }
    });
    return std::max(0, mConverted - mSkip);
}

/// Owns nothing that a jump of the library's could leak.
void PlaneDecoder::readUnits(jpeg_decompress_struct& info, PlaneDecoder& self)
{
    if (setjmp(static_cast<Errors*>(info.err)->jump)) return;
    JSAMPARRAY planes[3];
    while (self.mDecoded < self.mWanted) {
        self.pointAtNextUnit(planes);
        jpeg_read_raw_data(&info, planes, JDIMENSION(self.mRowsOfUnit));
        self.unitIsDecoded();
    }
}

/// Waits until the ring has room, or makes some.
void PlaneDecoder::pointAtNextUnit(JSAMPARRAY planes[])
{
    if (mDecoded >= mFreeUntil) {
        std::unique_lock lock(mMutex);
        // Of the units before that of the next row none is needed any more.
        while (mDecoded >= (mFreeUntil = mConverted / mRowsOfUnit + mUnits))
            if (mConverting)
                mProgressed.wait(lock);
            else
                convertBand(lock);
    }
    for (std::size_t i = 0; i < mPlanes.size(); ++i) {
        Plane& plane = mPlanes[i];
        planes[i] = &mRowPointers[i * kMostRowsOfUnit];
        std::uint8_t* row = plane.row(mDecoded % mUnits * plane.rowsOfUnit);
        for (int y = 0; y < plane.rowsOfUnit; ++y, row += plane.stride) planes[i][y] = row;
    }
}

void PlaneDecoder::unitIsDecoded()
{
    if (++mDecoded % mBatch != 0) return;
    const std::scoped_lock lock(mMutex);
    mPublished = mDecoded;
    mProgressed.notify_all();
}

/// Rows of pixels whose samples are all there.
int PlaneDecoder::convertible() const
{
    const int rows = mPublished * mRowsOfUnit;
    return std::min(mEnd, mAllDecoded || !mNeedsNext ? rows : std::max(0, rows - 1));
}

void PlaneDecoder::convertBand(std::unique_lock<std::mutex>& lock)
{
    // A band ends one row early where that row needs the next unit: so it is always that unit's predecessor that is
    // kept.
    const int first = mConverted, units = mPublished, band = mBatch * mRowsOfUnit, early = mNeedsNext ? 1 : 0;
    const int last = std::min(convertible(), ((first + early) / band + 1) * band - early);
    mConverting = true;
    lock.unlock();
    for (int y = std::max(first, mSkip); y < last; ++y) {
        const std::uint8_t* rows[3];
        for (std::size_t i = 0; i < mPlanes.size(); ++i) rows[i] = samplesOfRow(mPlanes[i], y, units);
        if (mPlanes.size() == 1)
            greysToARGB(rows[0], mOut.rowData(y - mSkip), std::size_t(mOut.width));
        else
            coloursToARGB(rows[0], rows[1], rows[2], mOut.rowData(y - mSkip), std::size_t(mOut.width));
    }
    lock.lock();
    mConverted = last;
    mConverting = false;
    mProgressed.notify_all();
}

/// One sample for each pixel of row @p y.
const std::uint8_t* PlaneDecoder::samplesOfRow(Plane& plane, int y, int units)
{
    const bool halved = plane.upsampling == Upsampling::Down || plane.upsampling == Upsampling::Both;
    const auto row = [&](int sampleRow) {
        const int last = std::min(plane.height, units * plane.rowsOfUnit) - 1;
        return plane.row(std::clamp(sampleRow, 0, last) % (mUnits * plane.rowsOfUnit));
    };
    const std::uint8_t* const near = row(halved ? y / 2 : y);
    const std::uint8_t* const far = halved ? row(y / 2 + (y % 2 ? 1 : -1)) : near;
    const auto width = std::size_t(plane.width);
    switch (plane.upsampling) {
    case Upsampling::None:
        return near;
    case Upsampling::Across:
        upsampleAcross(near, width, plane.wide.data());
        break;
    case Upsampling::Down:
        upsampleDown(near, far, width, y % 2 == 0, plane.wide.data());
        break;
    case Upsampling::Both:
        upsampleBoth(near, far, width, mSums.data(), plane.wide.data());
        break;
    }
    return plane.wide.data();
}

} // namespace zp::jpeg
