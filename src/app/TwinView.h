// SPDX-License-Identifier: GPL-3.0-or-later
/// Two pictures of the same size side by side, seen through one magnifier.
#pragma once
#include "base/BitmapRep.h"
#include <QWidget>
#include <memory>

/// Both halves show the same place at the same zoom: the wheel changes the zoom about the pointer, dragging moves the
/// place, as do the arrow keys; + and − zoom. Cost of a paint: what is visible.
class TwinView : public QWidget
{
public:
    /// @param left  stays as it is
    explicit TwinView(std::shared_ptr<const zp::BitmapRep> left, QWidget* parent = nullptr);
    /// Of the left one's size; null: the half stays empty.
    void setRight(std::shared_ptr<const zp::BitmapRep> right);

    QSize sizeHint() const override { return {640, 300}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRect half(int which) const;
    void zoomTo(int zoom, QPointF about);
    void moveBy(QPointF screen);
    void keepInside();

    std::shared_ptr<const zp::BitmapRep> mPictures[2];
    int mZoom = 1;   ///< screen pixels a picture's pixel
    QPointF mMiddle; ///< of both halves, in the picture's pixels
    QPointF mHand;   ///< where the button was last
};
