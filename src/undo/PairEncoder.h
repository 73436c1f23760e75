// SPDX-License-Identifier: GPL-3.0-or-later
/// Both files of a step, made of what changed since the step before and of what is remembered of the rest.
#pragma once
#include "undo/AlphaRLE.h"
#include "undo/PixelCapture.h"
#include "undo/SnapshotJPEG.h"
#include <cstdint>
#include <span>
#include <vector>

namespace zp
{

/// One thread at a time; the work itself uses the pool. Memory: about twice the files.
class PairEncoder
{
public:
    /// Encodes the rows of tiles that @p capture holds; whatever is remembered stands for the others.
    /// @return false when not all rows that are needed are there. @throws std::bad_alloc: nothing is remembered then
    bool encode(PixelCapture& capture);
    /// The files' bytes, valid until the next call.
    std::span<const std::uint8_t> colour() const { return mColourFile; }
    std::span<const std::uint8_t> alpha() const { return mAlphaFile; }
    /// Drops what is remembered, so that the next picture is encoded whole.
    void forget();
    /// How many strips of the colour file had to be encoded for the last step.
    int stripsEncoded() const { return mColour.stripsEncoded(); }

private:
    void encodeRows(PixelCapture& capture, const std::vector<int>& rows);

    SnapshotEncoder mColour;
    AlphaBands mAlpha;
    std::span<const std::uint8_t> mColourFile;
    std::vector<std::uint8_t> mAlphaFile;
};

} // namespace zp
