// SPDX-License-Identifier: GPL-3.0-or-later
/// The handles of what floats, over the whole view: they may lie beside the picture.
#pragma once
#include "base/Geometry.h"
#include "operations/FloatHandles.h"
#include <QRegion>
#include <QWidget>

class QMouseEvent;
class ZPCanvas;

/// Lies over the view's contents and lets every event through but those on a handle, which become the handle's
/// gesture. What a script presses passes the handles by: where they lie hangs on the zoom. Main thread.
class HandlesOverlay : public QWidget
{
    Q_OBJECT

public:
    /// @param viewport  the canvas's parent, whose child this becomes
    HandlesOverlay(ZPCanvas& canvas, QWidget* viewport);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(); ///< the handles are elsewhere now, or gone
    bool handleMouse(QObject* watched, QMouseEvent* event);
    bool isShown() const;
    /// Where the handle is drawn: a handle that would lie beyond the view, whose corner is seen, comes inside.
    QPointF centreOf(const zp::FloatHandlePlace& place) const;
    std::array<zp::FloatHandlePlace, zp::kFloatHandles> places() const;
    /// How far it has come for that, in image coordinates: what the pointer does there is done that far off.
    zp::Point shiftAt(QPointF viewPoint) const;
    QPointF inView(zp::Point imagePoint) const;
    zp::Point inImage(QPointF viewPoint) const;

    ZPCanvas& mCanvas;
    QWidget* mViewport;
    QRegion mDrawn; ///< what the handles cover
    bool mHeld = false;
    zp::Point mShift; ///< of the handle that is held
};
