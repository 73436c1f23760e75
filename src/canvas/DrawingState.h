// SPDX-License-Identifier: GPL-3.0-or-later
/// What the canvas's drawing remembers from one redraw to the next.
#pragma once
#include "base/BitmapRep.h"
#include "canvas/ZPCanvas.h"
#include "selection/OutlineSimplifier.h"
#include <QImage>
#include <memory>

struct ZPCanvas::DrawingState {
    QImage buffer;                          ///< screen words of the part being redrawn; grows, never shrinks
    std::shared_ptr<zp::BitmapRep> scratch; ///< the picture under overlays, with them
    zp::Point ringAt{-1, -1};               ///< where the tool's outline was drawn last
    float ringSize = 0;                     ///< and how large
    zp::OutlineDrawing selectionOutline, auxOutline, ring; ///< what of each outline is on screen
};
