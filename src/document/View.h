// SPDX-License-Identifier: GPL-3.0-or-later
/// How the document is looked at: zoom, retina mode, where the pointer is.
#pragma once
#include "base/Geometry.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

namespace zp
{

class BitmapRep;
struct Preview;

/// The zoom levels that are offered, as factors: powers of two, so that picture pixels and screen pixels always meet
/// evenly.
inline constexpr std::array<float, 9> kZoomLevels{0.0625f, 0.125f, 0.25f, 0.5f, 1, 2, 4, 8, 16};

/// Whether the zoom follows the room that the window has for the picture.
enum class Fit {
    No,
    Shrink, ///< the whole picture, but not larger than its own pixels: how one opens
    Whole,  ///< the whole picture as large as it goes: when a person asked for it
};

/// Looking changes nothing that is edited, so the widget and the main window may ask for these transitions any time.
/// Main thread.
class View
{
public:
    float zoom() const { return mZoom; }
    bool isRetina() const { return m2xRetina; }
    /// The zoom, halved in 2x retina mode.
    float effectiveZoom() const { return effective(mZoom); }
    /// What it is at the lowest level.
    float smallestEffectiveZoom() const { return effective(kZoomLevels.front()); }
    /// A picture that opened at its own pixels and has the room for them counts as not fitted.
    Fit fit() const { return mFit == Fit::Shrink && mZoom >= 1 ? Fit::No : mFit; }
    Size room() const { return mRoom; } ///< of the window for the picture, in screen points; zero when there is none
    /// The level nearest to the zoom, by ratio.
    int nearestLevel() const;
    /// The level to go to from here: the next larger (+1) or smaller (-1) one, the last where there is none.
    int levelBeyond(int step) const;
    Point pointer() const { return mPointer; } ///< of the last mouse event, image coordinates; may lie outside
    bool pointerInside() const { return mPointerInside; } ///< over the canvas
    /// What the selection field shows without a selection.
    const char* infoWithoutSelection() const { return mInfoWithoutSelection; }
    /// Whether anybody sees the picture: a program that plays a script may have no window on screen.
    bool isOnScreen() const { return mOnScreen; }

    /// Transparent parts show a chequerboard instead of grey.
    bool isChequered() const { return mChequered; }
    /// Lines between the pixels, from a zoom on at which they are large.
    bool hasGrid() const { return mGrid; }
    /// The wand shows what it would take, follows a drag with its tolerance, and says why a pixel is out.
    bool explainsWand() const { return mExplainsWand; }
    /// The corner handles of what floats pull their corner alone instead of scaling the whole.
    bool freesCorners() const { return mFreesCorners; }
    /// What is shown over the picture for a window to ask "like this?"; null for nothing.
    const std::shared_ptr<const Preview>& preview() const { return mPreview; }

    /// An earlier state of the picture, of its size, that is shown left of split() instead of it; null for none.
    const std::shared_ptr<const BitmapRep>& compared() const { return mCompared; }
    /// Image pixels from the left edge: where the pointer is, or all of the picture's @p width while it is elsewhere.
    int split(int width) const { return mPointerInside ? std::clamp(int(std::lround(mPointer.x)), 0, width) : width; }

    void setCompared(std::shared_ptr<const BitmapRep> before) { mCompared = std::move(before); }
    void setChequered(bool on) { mChequered = on; }
    void setGrid(bool on) { mGrid = on; }
    void setExplainsWand(bool on) { mExplainsWand = on; }
    void setFreesCorners(bool on) { mFreesCorners = on; }
    void setPreview(std::shared_ptr<const Preview> preview) { mPreview = std::move(preview); }
    void setZoom(float factor) { mZoom = factor, mFit = Fit::No; }
    void setFit(Fit fit) { mFit = fit; }
    void setRoom(Size room) { mRoom = room; }
    /// Another document: one larger than the room is fitted, any other shows its own pixels as long as the room
    /// suffices. Without a room all stays.
    void begin(Size picture);
    /// The zoom that the fit asks for, when there is one. @return whether it is another now
    bool refit(Size picture);
    void setRetina(bool on) { m2xRetina = on; }
    void setPointer(Point point) { mPointer = point; }
    void setPointerInside(bool inside) { mPointerInside = inside; }
    void setOnScreen(bool on) { mOnScreen = on; }
    void setInfoWithoutSelection(const char* text) { mInfoWithoutSelection = text; }

private:
    /// The largest zoom at which the whole picture is seen.
    float wholeZoom(Size picture) const;

    float mZoom = 1;
    Fit mFit = Fit::No;
    Size mRoom;
    float effective(float zoom) const { return m2xRetina ? zoom * 0.5f : zoom; }

    bool m2xRetina = false;
    Point mPointer;
    bool mPointerInside = false, mOnScreen = false, mChequered = false, mGrid = false, mExplainsWand = false;
    bool mFreesCorners = false;
    const char* mInfoWithoutSelection = "";
    std::shared_ptr<const Preview> mPreview;
    std::shared_ptr<const BitmapRep> mCompared;
};

} // namespace zp
