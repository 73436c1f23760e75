// SPDX-License-Identifier: GPL-3.0-or-later
/// Decoding a JPEG picture in bands, side by side on all cores: at its restart markers, or where its rows are found to
/// begin.
#pragma once
#include "base/BitmapView.h"
#include "codecs/JPEGIndex.h"
#include "codecs/LibJPEG.h"
#include <memory>
#include <optional>
#include <vector>

namespace zp::jpeg
{

/// Where the strips of a file begin, each coded by itself.
class BandPlan
{
public:
    /// @param file  must outlive this
    /// @param info  has read the head of @p file from memory; PlaneDecoder::handles() its picture
    /// Nothing when the picture is not coded in one go, when it has too few rows of blocks or the markers are not as
    /// they should be, on one core and inside a pass over others. Time: one look at each byte. Throws bad_alloc
    static std::optional<BandPlan> make(std::span<const std::uint8_t> file, const jpeg_decompress_struct& info);

    /// Byte for byte what decoding in one go gives. @return false when a band is damaged: then pixels may have been
    /// written. Throws bad_alloc
    bool decode(BitmapView out) const;

private:
    bool decodeBand(int firstStrip, int lastStrip, BitmapView out) const;

    std::span<const std::uint8_t> mFile;
    std::vector<std::uint8_t> mHead; ///< a file's bytes before the first strip
    std::size_t mHeight = 0;         ///< where it states the height
    int mStrips = 0;
    std::vector<std::size_t> mStarts; ///< of the strips' bytes, and behind the end marker
    std::unique_ptr<RowIndex> mIndex; ///< instead of those, where there are no markers
    int mHeightOfPicture = 0;
    int mStripHeight = 0, mUnitHeight = 0; ///< rows in the file's own scale: of a strip, of a block row
    int mScale = 1;
    J_COLOR_SPACE mColours = JCS_UNKNOWN;
};

} // namespace zp::jpeg
