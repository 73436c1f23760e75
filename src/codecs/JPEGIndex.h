// SPDX-License-Identifier: GPL-3.0-or-later
/// Where the block rows of a JPEG picture begin that was coded in one go, without restart markers, as most cameras do:
/// found by stepping over its codes, which takes a small part of decoding them. Any run of rows can then be decoded by
/// itself.
#pragma once
#include "codecs/BitWriter.h"
#include "codecs/LibJPEG.h"
#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

namespace zp::jpeg
{

/// A place among the codes: bits that were taken from memory and not used yet, and the memory behind them. The zeros
/// behind each byte 0xFF are left out, and behind the data there are only zeros.
class CodeReader
{
public:
    explicit CodeReader(std::span<const std::uint8_t> data) : mNext(data.data()), mEnd(data.data() + data.size()) {}

    /// Afterwards there are at least 56 bits.
    void refill()
    {
        std::uint64_t word = ~std::uint64_t{0};
        if (mEnd - mNext >= 8) std::memcpy(&word, mNext, 8);
        if (codec::hasFullByte(word)) return refillSlowly();
        // Also a part of the byte that comes next, which the next time puts the same bits there.
        mBits |= __builtin_bswap64(word) >> mCount;
        const int bytes = (63 - mCount) / 8;
        mNext += bytes;
        mCount += 8 * bytes;
        mTaken += 8 * bytes;
    }
    /// The next @p count bits, from 1 on; they must be there.
    std::uint32_t peek(int count) const { return std::uint32_t(mBits >> (64 - count)); }
    void skip(int count)
    {
        mBits <<= count;
        mCount -= count;
    }
    /// In bits that are data, from the beginning on.
    std::int64_t position() const { return mTaken - mCount; }
    bool isBeyondEnd() const { return mCount < mZeros; }
    /// Whether only the bits are left that fill the last byte up, and behind them stands the end marker.
    bool isAtEndMarker();

private:
    void refillSlowly();

    std::uint64_t mBits = 0;    ///< the next one is the highest
    int mCount = 0, mZeros = 0; ///< bits that are there, and how many of all were taken from behind the data
    std::int64_t mTaken = 0;
    const std::uint8_t *mNext, *mEnd;
};

/// A file's table of codes.
class CodeTable
{
public:
    struct Code {
        std::uint8_t length = 0, symbol = 0; ///< a length of 0: there is no such code
    };
    static constexpr int kLongest = 16, kLookBits = 12;

    /// @return false when the table is not a code
    bool make(const JHUFF_TBL& table);
    /// Of the next bits, the nearest of which is the highest.
    Code code(std::uint32_t sixteenBits) const
    {
        const Code& found = shortCode(sixteenBits >> (kLongest - kLookBits));
        return found.length ? found : longCode(sixteenBits);
    }
    /// The same for a code that is no longer than those bits.
    const Code& shortCode(std::uint32_t lookBits) const { return mShort[lookBits]; }

private:
    Code longCode(std::uint32_t sixteenBits) const;

    std::array<std::uint8_t, 256> mSymbols{};
    std::array<std::int32_t, kLongest + 1> mEnd{}, mOffset{}; ///< by length: behind the last code; from code to symbol
    std::array<Code, 1 << kLookBits> mShort{};
};

/// Several codes of one block with the bits behind them, found by one look.
struct Stride {
    static constexpr int kEnd = 2 * DCTSIZE2, kNone = 255;

    std::int16_t difference = 0; ///< of the block's mean from that of the block before, if its code is among them
    std::uint8_t bits = 0;       ///< to step over
    /// The coefficients that they are; kEnd more where the last code ends the block, kNone where the next code must be
    /// looked at alone. Added to the coefficients before it tells whether the block goes on.
    std::uint8_t advance = kNone;
};

/// Bytes of a scan of its own, without its end marker.
struct CodedRows {
    std::unique_ptr<std::uint8_t[]> memory;
    std::size_t count = 0;
};

class RowIndex
{
public:
    /// @param data  what follows the head that @p info has read, to the end of the file; must outlive this
    /// @param rows, across  how many blocks, or interleaved groups of them, the picture is high and wide
    /// Null where the picture is not one scan of everything or has tables as hardly any file does. Throws bad_alloc.
    static std::unique_ptr<RowIndex> make(std::span<const std::uint8_t> data, const jpeg_decompress_struct& info,
                                          int rows, int across);

    /// Once, in any thread. Cost: one look at each byte. @return whether the data is sound to its end
    bool findRows();
    /// Waits in another thread until the rows before that one are found. @return false when they will not be
    bool awaitRows(int last);
    /// The found rows [first, last) coded as a picture of their own, whose head has tables() at its end. Throws
    /// bad_alloc
    CodedRows coded(int first, int last) const;
    /// A segment of tables in which whatever a first block can need has a code; all others are what they were.
    std::span<const std::uint8_t> tables() const { return mTables; }

private:
    static constexpr int kMostComponents = 4;
    /// Bits of a block's mean: from -2047 to 2047.
    static constexpr int kMostBitsOfMean = 11;

    /// Tables are known by their numbers in the file.
    struct Component {
        int blocks = 0; ///< in a group
        std::size_t means = 0, details = 0;
        std::size_t strides = 0; ///< the first component's that has the same tables
    };
    /// Those of one component, at the block's beginning and within it.
    struct Strides {
        std::array<Stride, 1 << CodeTable::kLookBits> begin, within;
    };
    struct Place {
        CodeReader reader;
        std::array<int, kMostComponents> means{}; ///< of the blocks before, from which the next ones differ
    };
    struct Word {
        std::uint16_t code = 0;
        std::uint8_t length = 0;
    };

    RowIndex(std::span<const std::uint8_t> data, int rows, int across);
    bool takeTables(const jpeg_decompress_struct& info);
    bool extend(const JHUFF_TBL& table, std::size_t slot);
    Stride strideAt(const Component& component, std::uint32_t lookBits, bool atBegin) const;
    int stepOverCode(CodeReader& reader, const Component& component, int next, int& mean) const;
    bool walkRow(Place& place) const;

    int mRows, mAcross;
    std::vector<Component> mComponents;
    std::vector<Strides> mStrides; ///< of the components that others share them with
    std::vector<CodeTable> mMeans, mDetails;
    std::array<std::array<Word, kMostBitsOfMean + 1>, NUM_HUFF_TBLS> mWords{}; ///< for first means, by their bits
    std::vector<std::uint8_t> mTables;

    std::vector<Place> mPlaces; ///< of each row, and behind the last; those up to mFound are there
    std::mutex mMutex;
    std::condition_variable mProgressed;
    int mFound = 0; ///< guarded by mMutex, as is what follows
    bool mUnsound = false;
};

} // namespace zp::jpeg
