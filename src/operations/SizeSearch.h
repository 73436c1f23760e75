// SPDX-License-Identifier: GPL-3.0-or-later
/// The quality at which a file has a wanted size, or still looks like the picture.
#pragma once
#include "base/BitmapRep.h"
#include "codecs/LossyWriter.h"
#include "imageops/Likeness.h"
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zp
{

struct SizeGoal {
    enum Kind {
        AtMost,    ///< the best quality with which the file is no larger than bytes
        LooksSame, ///< the least quality with which looksTheSame()
        Quality,   ///< this one
    } kind = LooksSame;
    std::size_t bytes = 0;
    int quality = 0;
};

struct SizedFile {
    std::vector<std::uint8_t> bytes; ///< the whole file; empty when there is none
    ImageProperties properties;      ///< the picture's, all of which the file holds
    int quality = 0;
    Likeness likeness;                      ///< of what the file shows
    std::shared_ptr<const BitmapRep> shown; ///< that
    std::string error;                      ///< why there is no file, in a sentence; empty when the search was stopped
};

/// What people who flick between the two do not tell apart: see docs/decisions.md for how the numbers were found.
bool looksTheSame(const Likeness& likeness);

/// Holds the picture in the colours of one kind of file, so that another goal costs only its trials.
class SizeSearch
{
public:
    /// @param picture  stays as it is. Throws bad_alloc
    SizeSearch(std::shared_ptr<const BitmapRep> picture, SaveFormat format);

    /// Writes the picture at one quality after the other, at most about eight times, of a large picture first a part.
    /// The same file on every machine. Any thread, one at a time. Cost at 24 megapixels: a second as JPEG, about eight
    /// as WebP. @param stop  set by another thread: ends soon, with nothing
    /// @param trying  told of each quality before it is written
    SizedFile find(const SizeGoal& goal, const std::stop_token& stop,
                   const std::function<void(int quality)>& trying = {}) noexcept;

private:
    std::shared_ptr<const BitmapRep> mPicture;
    std::unique_ptr<LossyWriter> mWriter;
    std::shared_ptr<const BitmapRep> mSample; ///< bands of a large picture, null of a small one
    std::unique_ptr<LossyWriter> mSampleWriter;
    std::string mWhyNot; ///< why there is no writer
};

} // namespace zp
