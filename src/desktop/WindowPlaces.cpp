// SPDX-License-Identifier: GPL-3.0-or-later
/// Places beside a point.
#include "desktop/WindowPlaces.h"
#include <array>
#include <limits>

namespace zp
{

namespace
{

/// About the point, on every side: what is being worked on lies around it.
constexpr int kClearance = 40;

} // namespace

QPoint cornerClearOf(const QRect& frame, QPoint point, const QRect& room)
{
    const QRect kept(point - QPoint(kClearance, kClearance), QSize(2 * kClearance, 2 * kClearance));
    if (!frame.intersects(kept)) return frame.topLeft();
    const std::array<QPoint, 4> corners{
        QPoint(frame.left(), kept.bottom() + 1), QPoint(frame.left(), kept.top() - frame.height()),
        QPoint(kept.right() + 1, frame.top()), QPoint(kept.left() - frame.width(), frame.top())};
    QPoint best = frame.topLeft();
    int way = std::numeric_limits<int>::max();
    for (const QPoint corner : corners) {
        const int far = (corner - frame.topLeft()).manhattanLength();
        if (far < way && room.contains(QRect(corner, frame.size()))) best = corner, way = far;
    }
    return best;
}

} // namespace zp
