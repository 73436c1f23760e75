// SPDX-License-Identifier: GPL-3.0-or-later
/// A PNG file as libpng gets to see it: the chunks the editor uses, and no others.
#pragma once
#include "codecs/Codec.h"
#include <array>
#include <deque>
#include <vector>

namespace zp::codec
{

/// Texts, times and private chunks are passed over, so that a thousand of them, or one that unpacks to gigabytes, cost
/// nothing. A last chunk of pixels that the end of the file cuts off is handed on as far as it goes.
class PNGChunks
{
public:
    /// @p bytes must outlive this and begin with the signature.
    void open(Bytes bytes);
    /// The next @p count bytes. @return false when there are fewer
    bool read(std::uint8_t* to, std::size_t count);
    /// Whether the file ends inside a chunk.
    bool endsTooEarly() const { return mCut; }

private:
    std::vector<Bytes> mPieces;
    std::deque<std::array<std::uint8_t, 8>> mHeads; ///< lengths put right, for cut chunks
    std::size_t mPiece = 0, mAt = 0;
    bool mCut = false;
};

} // namespace zp::codec
