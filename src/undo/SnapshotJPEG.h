// SPDX-License-Identifier: GPL-3.0-or-later
/// The colours of a picture as one standard JPEG file that is written and read in strips, on all cores.
///
/// A restart marker stands behind every row of 16x16 blocks, so that each such strip can be coded by itself, kept, and
/// joined with others into one file, and so that a reader can begin at any of them. Every JPEG reader opens the file.
/// A small application segment holds the fingerprint of all that follows it: a damaged file is told from a whole one
/// before a pixel is touched.
#pragma once
#include "base/BitmapView.h"
#include "codecs/JPEGStrips.h"
#include "undo/Fingerprint.h"
#include <atomic>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace zp
{

inline constexpr int kSnapshotQuality = 70; ///< compression factor 0.7
inline constexpr int kStripRows = jpeg::kBlockRow;

/// Encodes one picture after the other and remembers the compressed strips of the last, by the fingerprint of their
/// pixels: strips that did not change are not encoded again. One thread at a time; the work itself uses the pool.
/// Memory: about twice the file.
class SnapshotEncoder
{
public:
    /// The colour bytes as they are, alpha not looked at: as if it were 255 everywhere, which for premultiplied colours
    /// is also the picture laid over black. The pixels are only read.
    /// @return the file's bytes, valid until the next call; empty for an empty view or when memory fails
    /// Time: one read of the pixels, and the encoding of what changed.
    std::span<const std::uint8_t> encode(ConstBitmapView pixels);
    /// The same in pieces. @return whether the strips of a picture of that size are remembered; else all of them have
    /// to come before finish(). @throws std::bad_alloc
    bool start(int width, int height);
    /// Looks at the strips that begin at row @p first; different ones from several threads. @throws std::bad_alloc
    /// @param rows  whole strips, from the left to the right edge of the picture
    void encodeRows(ConstBitmapView rows, int first);
    /// The file's bytes, valid until the next call. @throws std::bad_alloc
    std::span<const std::uint8_t> finish();
    /// Drops what is remembered, so that the next picture is encoded whole.
    void forget();
    /// How many strips have been encoded since the start.
    int stripsEncoded() const { return mStripsEncoded; }

private:
    struct Strip {
        std::optional<Fingerprint> pixels; ///< of the rows that bytes were made from
        std::vector<std::uint8_t> bytes;   ///< entropy-coded data without the restart marker behind it
    };

    std::optional<jpeg::StripEncoder> mCoder; ///< for pictures of the last one's size
    std::vector<Strip> mStrips;
    std::vector<std::uint8_t> mFile;
    std::atomic<int> mStripsEncoded{0};
};

struct SnapshotJPEGSize {
    int width = 0, height = 0;
};
/// The size of the picture in @p file; nothing when that is no JPEG, of an absurd size, or one of ours that is damaged
/// or not complete. Time: one read of the file.
std::optional<SnapshotJPEGSize> inspectSnapshotJPEG(std::span<const std::uint8_t> file);

/// Decodes into @p pixels, which must have the picture's size: colours as any libjpeg reader gives them, alpha 255.
/// A file of ours goes straight into the pixels, strips on all cores; any other JPEG is decoded plainly, beside the
/// pixels first because nothing vouches for it. @return false when it cannot be decoded: the pixels are as they were
/// (of a file of ours only memory can fail; then strips may have been replaced)
bool decodeSnapshotJPEG(std::span<const std::uint8_t> file, BitmapView pixels);

} // namespace zp
