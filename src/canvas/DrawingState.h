// SPDX-License-Identifier: GPL-3.0-or-later
/// What the canvas's drawing remembers from one redraw to the next.
#pragma once
#include "base/BitmapRep.h"
#include "canvas/StillPicture.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ScreenColours.h"
#include "selection/OutlineSimplifier.h"
#include <QImage>
#include <cstdint>
#include <memory>
#include <vector>

struct ZPCanvas::DrawingState {
    QImage buffer;                          ///< screen words of the part being redrawn; grows, never shrinks
    std::shared_ptr<zp::BitmapRep> scratch; ///< the picture under overlays, with them
    zp::StillPicture still;                 ///< the picture under what floats, while it is shown reduced
    zp::StillPicture small;                 ///< all of a very large picture, at the lowest zoom
    /// What turns the colours of the picture into the screen's, null when that is nothing; and what it was made of.
    std::shared_ptr<const zp::ScreenColours> colours;
    std::vector<std::uint8_t> pictureProfile, screenProfile;
    std::weak_ptr<const zp::BitmapRep> coloursOf;
    bool coloursKnown = false;
    zp::Point ringAt{-1, -1};                              ///< where the tool's outline was drawn last
    float ringSize = 0;                                    ///< and how large
    zp::OutlineDrawing selectionOutline, auxOutline, ring; ///< what of each outline is on screen
};
