// SPDX-License-Identifier: GPL-3.0-or-later
/// Runs of an image's pixels as they look through a map that keeps lines straight.
#pragma once
#include "base/ProjectiveTransform.h"
#include "drawing/ImageLevels.h"
#include <cstdint>
#include <vector>

namespace zp
{

/// An image of several levels seen through a projective map. Where the map reduces, pixels come from the two levels
/// next to its scale there; elsewhere from the image itself, interpolated smoothly. Beyond the image's borders its last
/// pixels go on, so the caller cuts the shape; beyond the horizon all is transparent.
class PerspectiveSampler
{
public:
    /// Room for one thread's pixels, kept between its rows.
    struct Room {
        std::vector<std::uint32_t> pixels, coarser;
    };

    /// @param levels       read in place while the sampler lives
    /// @param fromTarget   from destination pixels to those of level 0
    PerspectiveSampler(const ImageLevels& levels, const ProjectiveTransform& fromTarget)
        : mLevels(levels), mFromTarget(fromTarget)
    {
    }

    /// The pixels [x0, x1) of destination row @p y, which lie in @p room until the next call. Any thread, each with a
    /// room of its own.
    const std::uint32_t* generate(int y, int x0, int x1, Room& room) const;

private:
    /// How many pixels from the middle of that one on may be taken for a straight run; none beyond the horizon.
    int runAt(CurvePoint first, int most) const;
    void fill(CurvePoint first, int count, std::uint32_t* pixels, std::uint32_t* coarser) const;

    const ImageLevels& mLevels;
    ProjectiveTransform mFromTarget;
};

} // namespace zp
