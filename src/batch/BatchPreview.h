// SPDX-License-Identifier: GPL-3.0-or-later
/// What a run would make of a folder, seen on a few of its pictures before anything is written.
#pragma once
#include "base/BitmapRep.h"
#include "batch/BatchJob.h"
#include "codecs/ImageImporter.h"
#include <array>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace zp
{

/// Pictures that show settings at their most different, and few enough to be looked at side by side.
inline constexpr std::size_t kPreviewPictures = 3;
/// Headers that are read at most to find them: below half a second of a local disk. Of a larger folder as many, evenly
/// spread over its names.
inline constexpr std::size_t kPreviewHeaders = 1000;

struct PreviewChoice {
    std::vector<std::string> names; ///< at most kPreviewPictures; none when the folder has no pictures
    std::size_t looked = 0, of = 0; ///< headers read, pictures in the folder
    bool alike = false;             ///< all have one shape: chosen by size
    std::string error;              ///< why the folder cannot be listed
};

/// The widest, the tallest and, of the others, the one nearest square (of several the smallest). When all have the same
/// shape within a hundredth: the largest, the one in the middle by size, and the smallest.
/// @param sizes  of pictures; one without a width is unknown and chosen only where the others do not suffice
/// @return places in @p sizes, each once; fewer than three when there are fewer
std::vector<std::size_t> picturesOfDifferentShape(std::span<const PixelDimensions> sizes, bool& alike);

/// Answers whether the work is no longer wanted.
using Cancelled = std::function<bool()>;

/// Makes small pictures of results by the run's own steps, and keeps what does not depend on the watermark: another
/// watermark takes a millisecond. Nothing is written. One thread at a time.
class BatchPreview
{
public:
    struct Picture {
        std::shared_ptr<const BitmapRep> bitmap; ///< null when nothing can be made of the source
        Size result;                             ///< what the run writes, in pixels
        std::string error;                       ///< why, in a sentence
    };

    /// The pictures of the settings' source folder, looked for again when that is another folder than last time.
    const PreviewChoice& choose(const BatchSettings& settings, const Cancelled& cancelled);
    /// The chosen picture of that place, as the settings make it.
    /// @param side  of the square that it fits, in pixels; it is never enlarged beyond its result
    Picture picture(const BatchSettings& settings, std::size_t place, int side);
    /// The next choose() looks into the folder, and pictures are read again.
    void forget();

private:
    struct Plain {
        int fitWidth = 0, fitHeight = 0, side = 0;
        std::string error;
        Size result;
        std::shared_ptr<const BitmapRep> bitmap; ///< without a watermark
    };

    std::string mSource;
    bool mChosen = false;
    PreviewChoice mChoice;
    std::array<Plain, kPreviewPictures> mPlain;
};

} // namespace zp
