// SPDX-License-Identifier: GPL-3.0-or-later
/// Turns a selection mask into its outline.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include "selection/BitRows.h"
#include <cstdint>

/// Made for one mask, asked for its path, thrown away. Keeps its own copy of what the mask covers, so that the mask may
/// change afterwards. Any thread.
class ZPPathBuilder
{
public:
    /// Every pixel whose byte is below 255 counts as inside, partly selected ones too. An empty view is a mask without
    /// pixels. Time: one pass over the mask. @throw std::bad_alloc
    explicit ZPPathBuilder(zp::ConstMaskView mask);

    /// The outline along pixel borders, one closed subpath per loop (islands and holes alike), to be filled even-odd;
    /// empty when nothing is inside. A subpath holds its corners in order and then its first point once more.
    ///
    /// The whole outline lies one pixel lower than the pixels it surrounds: every caller moves it by (0, -1), and the
    /// two must stay together. Same loops as traceOutline(), where the order is told. Time: O(words + corners).
    zp::BezierPath path() const;

private:
    std::uint32_t mWidth, mHeight;
    zp::BitRows mMaskData; ///< a bit a pixel: 0 outside, 1 inside
};
