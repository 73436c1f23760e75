// SPDX-License-Identifier: GPL-3.0-or-later
/// Where a window stands so that what is worked on can be seen.
#pragma once
#include <QPoint>
#include <QRect>

namespace zp
{

/// Where a window of that frame stands beside @p point: as near to its own corner as can be, inside @p room. Its own
/// corner when it does not cover the point and what lies around it, or where there is no room beside it. Screen points.
QPoint cornerClearOf(const QRect& frame, QPoint point, const QRect& room);

} // namespace zp
