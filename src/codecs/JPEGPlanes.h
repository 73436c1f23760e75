// SPDX-License-Identifier: GPL-3.0-or-later
/// Decoding a JPEG picture on two threads: one takes the planes of brightness and colour out of the file, the other
/// turns them into pixels one band behind.
#pragma once
#include "base/BitmapView.h"
#include "codecs/JPEGColours.h"
#include "codecs/LibJPEG.h"
#include <condition_variable>
#include <mutex>
#include <vector>

namespace zp::jpeg
{

/// The bands that both threads share. Pixels come out byte for byte as from the library's own way.
class PlaneDecoder
{
public:
    /// Whether the picture's components can be taken as planes: greys, or brightness and two colours, each of these at
    /// full or half resolution across and down. Asked when the header is read and the scale and the wanted colours set.
    static bool handles(jpeg_decompress_struct& info);

    /// @p info was started, with its raw_data_out set, and outlives this. @param skip  rows before those of @p out,
    /// which are decoded only for what the first one needs of them: none or a multiple of what a call of the library
    /// gives. Throws bad_alloc.
    PlaneDecoder(jpeg_decompress_struct& info, BitmapView out, int skip = 0);
    /// Decodes as far as the rows of pixels need it. @return how many rows of pixels are whole: all of them unless an
    /// error of the library's ended the decoding. Any thread; of the pool's workers one joins in when it is free.
    int decode();

private:
    enum class Upsampling { None, Across, Down, Both };
    struct Plane {
        Upsampling upsampling = Upsampling::None;
        int width = 0, height = 0; ///< real samples
        int rowsOfUnit = 0;        ///< rows that one call of the library gives
        std::size_t stride = 0;
        std::vector<std::uint8_t> rows; ///< mUnits units, used in a circle
        std::vector<std::uint8_t> wide; ///< a sample for each pixel of a row
        std::uint8_t* row(int y) { return rows.data() + std::size_t(y) * stride; }
    };

    static void readUnits(jpeg_decompress_struct& info, PlaneDecoder& self);
    void pointAtNextUnit(JSAMPARRAY planes[]);
    void unitIsDecoded();
    void convertBand(std::unique_lock<std::mutex>& lock);
    const std::uint8_t* samplesOfRow(Plane& plane, int y, int units);
    int convertible() const;

    jpeg_decompress_struct& mInfo;
    const BitmapView mOut;
    const int mSkip, mEnd; ///< rows of the picture before those wanted, and before those behind
    std::vector<Plane> mPlanes;
    std::vector<std::uint16_t> mSums;
    std::vector<JSAMPROW> mRowPointers;
    int mRowsOfUnit = 0;     ///< rows of pixels that one call of the library gives
    int mWanted = 0;         ///< units that are decoded at all
    int mUnits = 0;          ///< that the planes hold
    int mBatch = 1;          ///< units that are handed over at a time
    bool mNeedsNext = false; ///< a row may need samples of the row below
    int mDecoded = 0;        ///< units, counted by the thread that decodes
    int mFreeUntil = 0;      ///< units for which that thread knows the ring to have room

    std::mutex mMutex; ///< guards what follows
    std::condition_variable mProgressed;
    int mPublished = 0;       ///< units whose samples may be read
    int mConverted = 0;       ///< rows of pixels, those that are skipped included
    bool mAllDecoded = false; ///< nothing more will be decoded
    bool mConverting = false; ///< one thread is at it
};

} // namespace zp::jpeg
