// SPDX-License-Identifier: GPL-3.0-or-later
/// The alpha plane as a run-length file, to and from memory, and the two byte cursors that define it.
///
/// The format has no header: the alpha bytes in raster order as literals; whenever two literals in a row are equal, the
/// next byte of the file counts the further copies (0 to 255). After a count pairing starts afresh: the literal behind
/// it never pairs with the one before it. An opaque picture costs 3 bytes for every 257 pixels.
#pragma once
#include "base/BitmapView.h"
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zp
{

/// Encodes bytes that arrive in pieces; the pieces' borders leave no trace in the output.
class AlphaRLEEncoder
{
public:
    /// Output is appended to @p out, which must outlive the encoder.
    explicit AlphaRLEEncoder(std::vector<std::uint8_t>& out) : mOut(out) {}
    /// Time: runs and stretches without pairs at memory speed, 64 bytes a step.
    void append(const std::uint8_t* bytes, std::size_t count);
    /// The same byte @p count times.
    void appendRun(std::uint8_t byte, std::int64_t count);
    /// Goes on with what @p next encoded by itself, its output included. What next began with must differ from the last
    /// byte here: at such a place nothing of what came before has any influence on what follows.
    void append(const AlphaRLEEncoder& next);
    /// Writes the count that is still open, if any. Call once, after the last piece.
    void finish();
    /// As if nothing had come before; the output is left to its owner.
    void restart() { mPrevious = mRun = kNone, mCopies = 0; }

private:
    static constexpr int kNone = -1;
    std::uint8_t* appendPiece(const std::uint8_t* bytes, std::size_t count, std::uint8_t* to);
    std::vector<std::uint8_t>& mOut;
    int mPrevious = kNone; ///< the literal a following one may pair with
    int mRun = kNone;      ///< the byte whose copies are being counted
    int mCopies = 0;
};

/// The alpha plane's file made of rows that are encoded by themselves, in any order, and remembered: what did not
/// change is not looked at again. One thread, but for encode().
class AlphaBands
{
public:
    /// @return whether rows of a plane of that size are remembered; else all of them have to be encoded before finish()
    bool start(int width, int height, int rowsABand);
    void forget();
    /// Encodes the band that begins at row @p first; different ones from several threads. @throws std::bad_alloc
    /// @param rows  all of the band's
    void encode(ConstBitmapView rows, int first);
    /// The whole file; nothing for a plane without pixels. Time: that of copying what is not a run.
    /// @throws std::bad_alloc
    std::vector<std::uint8_t> finish() const;

private:
    /// First the copies of the byte it begins with, then all from the first that differs: so a band's bytes depend on
    /// nothing before it, and an opaque one has none.
    struct Band {
        std::uint8_t value = 0;
        std::int64_t copies = 0;
        std::vector<std::uint8_t> bytes;
        AlphaRLEEncoder encoder{bytes};

        Band() = default;
        Band(const Band&) = delete;
        Band& operator=(const Band&) = delete;
    };
    int mWidth = 0, mHeight = 0, mRowsABand = 1;
    std::vector<Band> mBands;
};

/// The whole alpha plane of @p pixels as the file's bytes; nothing for an empty view.
/// One linear pass over the pixels, on all cores. Any thread that may read them. Throws std::bad_alloc.
std::vector<std::uint8_t> encodeAlphaRLE(ConstBitmapView pixels);

/// Decodes a file into the alpha bytes of @p pixels; colour bytes keep their values. Bytes beyond the plane are
/// dropped; a file that ends early leaves the rest of the plane as it was; one that ends right behind a pair stands for
/// 255 further copies. @return how many alpha bytes were written One linear pass. Any thread that owns the pixels.
std::int64_t decodeAlphaRLE(std::span<const std::uint8_t> file, BitmapView pixels);

/// Every @p step th byte of every @p step th row of the alpha plane in a file, as decodeAlphaRLE() would write it into
/// an opaque picture of that size, row by row. Costs the file's length, not the picture's. Throws std::bad_alloc.
std::vector<std::uint8_t> sampleAlphaRLE(std::span<const std::uint8_t> file, int width, int height, int step);

/// Walks the alpha bytes of a picture one at a time in raster order: the read cursor and the write cursor are two of
/// these. Positions itself before the first pixel; a default one, and one over an empty view, stands at the end.
class AlphaCursor
{
public:
    AlphaCursor() = default;
    explicit AlphaCursor(BitmapView pixels) : mPixels(pixels), mColumn(-1) {}
    /// Moves on by one pixel. @return its alpha byte, null when the rows are exhausted (and from then on)
    std::uint8_t* next();
    /// getc without reset: the next alpha byte, or -1 when the rows are exhausted.
    std::int32_t get()
    {
        const std::uint8_t* byte = next();
        return byte ? *byte : -1;
    }
    /// putc: stores the low 8 bits as the next alpha byte; dropped when the rows are exhausted.
    void put(std::int32_t value)
    {
        if (std::uint8_t* byte = next()) *byte = std::uint8_t(value);
    }
    /// The value that resets the write cursor instead of being stored.
    static constexpr std::int32_t kPutReset = -10;

private:
    BitmapView mPixels;
    int mColumn = -1, mRow = 0;
};

} // namespace zp
