// SPDX-License-Identifier: GPL-3.0-or-later
/// Where windows stand: before the others, and so that what is worked on can be seen.
#pragma once
#include <QPoint>
#include <QRect>
#include <QWidget>

namespace zp
{

/// Where a window of that frame stands beside @p point: as near to its own corner as can be, inside @p room. Its own
/// corner when it does not cover the point and what lies around it, or where there is no room beside it. Screen points.
QPoint cornerClearOf(const QRect& frame, QPoint point, const QRect& room);

/// Shows the window above the others and gives it the keyboard. @param center  whether one that is hidden is centred
void bringToFront(QWidget* window, bool center = false);

/// A window beside the main one that is read and used while one works on: Escape and the keys for closing close it.
class SideWindow : public QWidget
{
public:
    explicit SideWindow(QWidget* parent = nullptr) : QWidget(parent, Qt::Window) {}

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace zp
