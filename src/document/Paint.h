// SPDX-License-Identifier: GPL-3.0-or-later
/// What tools and commands paint with: colour, size, brush shape, tolerance.
#pragma once
#include "base/Color.h"

namespace zp
{

/// What a pen's pressure makes smaller of a brush stamp; a mouse presses with all of it.
enum class PenPressure { Nothing, Size, Opacity };

/// Main thread.
class Paint
{
public:
    const Color& color() const { return mColor; }
    /// The one that was chosen before it; white at first.
    const Color& otherColor() const { return mOtherColor; }
    float opacity() const { return mColor.alpha; }
    float size() const { return mSize; } ///< brush diameter, stroke width, tolerance of the older fills, in pixels
    int brushShape() const { return mBrushShape; } ///< 0 for the first
    PenPressure penPressure() const { return mPenPressure; }
    const Color& oldColor() const { return mOldColor; }
    const Color& newColor() const { return mNewColor; }
    int toleranceSetting() const { return mToleranceSetting; } ///< as the slider shows it, 0 to 100
    /// The tolerance that a fill or wand last asked for: comparisons use this one.
    int tolerance() const { return mTolerance; }

    // ---- transitions ---------------------------------------------------------------------------------------------

    void setColor(Color color) { mColor = color; }
    /// Of a choice: what was chosen before can be swapped in.
    void keepColor(Color before, Color chosen)
    {
        if (before != chosen) mOtherColor = before;
    }
    void setSize(float size) { mSize = size; }
    void setBrushShape(int index) { mBrushShape = index; }
    void setPenPressure(PenPressure what) { mPenPressure = what; }
    void setToleranceSetting(int setting) { mToleranceSetting = setting; }
    /// A fill or wand asks: from now on comparisons use what the slider says. @return the tolerance
    int refreshTolerance();
    /// The colour as it is now becomes the one that fills and wands write.
    void takeNewColor() { mNewColor = mColor; }
    /// What the older fills look for and write.
    void setFillColors(Color oldColor, Color newColor) { mOldColor = oldColor, mNewColor = newColor; }

private:
    Color mColor = kBlack, mOtherColor = kWhite;
    float mSize = 20;
    int mBrushShape = 0;
    PenPressure mPenPressure = PenPressure::Nothing;
    Color mOldColor, mNewColor;
    int mToleranceSetting = 0, mTolerance = 0;
};

} // namespace zp
