// SPDX-License-Identifier: GPL-3.0-or-later
/// Fields that belong to the canvas by name and that nothing reads or writes. They stand here and nowhere else.
#pragma once
#include "base/BezierPath.h"
#include "base/Geometry.h"
#include <cstdint>
#include <string>
#include <vector>

namespace zp
{

struct UnusedFields {
    BezierPath mPath; ///< a spare path object
    Point mPolygonLassoLastPoint;
    std::int32_t mSelectionMaskSize = 0;
    std::vector<int> mUndoStack; ///< the snapshots are files; nothing is kept here
    bool mCopy2HDThreadRunning = false;
    Rect mDirtyRect, mDirtyRectPREV;
    std::int32_t mDirtyRectsIndex = 0; ///< of the rectangles that a stroke might gather
    Rect mRect6, mRect7, mRect8, mRect9;
    bool mDo = false;
};

} // namespace zp
