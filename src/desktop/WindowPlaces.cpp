// SPDX-License-Identifier: GPL-3.0-or-later
/// Places beside a point, and windows that come to the front.
#include "desktop/WindowPlaces.h"
#include "desktop/Panels.h"
#include <QKeyEvent>
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

void bringToFront(QWidget* window, bool center)
{
    if (center && !window->isVisible()) centerWindow(window);
    window->show();
    window->raise();
    window->activateWindow();
}

void SideWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace zp
