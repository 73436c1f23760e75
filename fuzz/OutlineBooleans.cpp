// SPDX-License-Identifier: GPL-3.0-or-later
/// Union, intersection, difference and exclusive or of outlines: their areas, by slabs and among each other.
#include "Fuzz.h"
#include "selection/PathBooleans.h"
#include "selection/ReferenceArea.h"
#include <cmath>

namespace
{

/// The bytes as corners, one after the other; those below 4 end a loop.
zp::BezierPath pathOf(zp::fuzz::Bytes bytes, bool evenOdd)
{
    zp::BezierPath path;
    path.setWindingRule(evenOdd ? zp::WindingRule::EvenOdd : zp::WindingRule::NonZero);
    bool open = false;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        if (bytes[i] < 4) {
            if (open) path.closePath();
            open = false;
            continue;
        }
        const zp::Point corner{float(bytes[i]) / 2.5f, float(bytes[i + 1]) / 2.5f};
        open ? path.lineTo(corner) : path.moveTo(corner);
        open = true;
    }
    if (open) path.closePath();
    return path;
}

} // namespace

ZP_FUZZ(OutlineBooleans, "", bytes)
{
    using namespace zp;
    constexpr std::size_t kMostCorners = 40;
    // Every corner may move by the grid's step and by single precision's, along an edge of up to the field's length.
    constexpr double kNear = 0.1;
    if (bytes.size() < 3 || bytes.size() > 3 + 2 * kMostCorners) return;
    const fuzz::Bytes corners = bytes.subspan(2);
    const std::size_t cut = corners.size() * bytes[1] / 255 & ~std::size_t{1};
    BezierPath a = pathOf(corners.first(cut), bytes[0] & 1), b = pathOf(corners.subspan(cut), bytes[0] & 2);
    double areas[4] = {};
    for (const gpc_op operation : {GPC_DIFF, GPC_INT, GPC_XOR, GPC_UNION}) {
        areas[operation] = reference::area(pathFromPathUsingBooleanOperation(a, b, operation));
        fuzz::require(std::abs(areas[operation] - reference::area(operation, a, b)) < kNear,
                      "the area is the exact one");
    }
    fuzz::require(std::abs(areas[GPC_UNION] - areas[GPC_INT] - areas[GPC_XOR]) < kNear,
                  "union is intersection and exclusive or");
}
