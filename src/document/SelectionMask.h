// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection as one byte a pixel: rendered from the outline when somebody needs it, or written by the wand.
#pragma once
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include "base/PixelMemory.h"
#include <cstdint>
#include <optional>

namespace zp
{

/// 0 is selected, 255 is not, values between are edge pixels; rows as wide as the picture, row 0 on top.
///
/// The mask knows which outline it shows. Once that has changed its bytes mean nothing: from outside it is clear then
/// (all 255), and the bytes follow when they are next needed. Its memory is made at the first need, too: a picture that
/// is only looked at has none. Main thread; a stroke's thread may read bytes() while the selection stands still.
class SelectionMask
{
public:
    /// For a picture of another size: clear, without memory.
    void setSize(int width, int height);
    int width() const { return mMaskWidth; }
    int height() const { return mMaskHeight; }
    bool exists() const { return mMaskWidth > 0 && mMaskHeight > 0; }

    /// Known to hold one value only, its clear value.
    bool isClear() const { return mSelectionMaskClear || mMaskStale; }
    /// One byte as it stands; 255 where none was needed yet. The point must lie inside.
    std::uint8_t at(int x, int y) const;
    /// The bytes that are there; empty where none was needed yet: all would be 255.
    ConstMaskView known() const { return mSelectionMask && !mMaskStale ? *mSelectionMask : ConstMaskView{}; }
    /// All bytes as they stand. Empty without a picture, and when memory fails.
    ConstMaskView bytes();
    /// Whether the bytes are the rendering of the outline of that version.
    bool shows(std::uint64_t outlineVersion) const { return !mMaskStale && mShownOutline == outlineVersion; }

    // ---- transitions ---------------------------------------------------------------------------------------------

    /// Every byte becomes 255; costs a pass over what is not.
    void clear();
    /// Every byte becomes 0. It counts as clear all the same: it holds one value only.
    void clearInverted();
    /// Bytes that the path covers move towards 0 (render) or 255 (renderInverted), by the share of each pixel,
    /// even-odd.
    void render(const BezierPath& path);
    void renderInverted(const BezierPath& path);
    /// Every byte that is not 0 becomes 0, every 0 becomes 255.
    void invert();
    /// The byte under a point becomes 0.
    void select(int x, int y);
    /// For the wand, which marks pixels in the mask itself. Empty when memory fails.
    MaskView writable();
    /// The bytes belong to the outline of that version from now on.
    void nowShows(std::uint64_t outlineVersion) { mShownOutline = outlineVersion; }
    /// There is another outline: unless that is what the bytes show, they count as clear.
    void outlineChanged(std::uint64_t outlineVersion);

private:
    bool ready();
    PixelBox boxOf(const BezierPath& path) const;

    int mMaskWidth = 0, mMaskHeight = 0;
    PixelMemory mSelectionMaskData;
    std::optional<ConstMaskView> mSelectionMask; ///< reads mSelectionMaskData in place
    bool mSelectionMaskClear = true;
    bool mMaskStale = false;                    ///< the bytes show an outline that is gone
    PixelBox mNotClear;                         ///< outside of it every byte is 255
    std::optional<std::uint64_t> mShownOutline; ///< the version of the outline that the bytes show
};

} // namespace zp
