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
    explicit TwinView(QWidget* parent = nullptr);
    /// Either may be null: its half stays empty. The place stays when the size does.
    void setPictures(std::shared_ptr<const zp::BitmapRep> left, std::shared_ptr<const zp::BitmapRep> right);
    void setRight(std::shared_ptr<const zp::BitmapRep> right);
    /// Screen pixels a picture's pixel: 1 to 8.
    int zoom() const { return mZoom; }

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
    int mZoom = 1;
    QPointF mMiddle; ///< of both halves, in the picture's pixels
    QPointF mHand;   ///< where the button was last
};
