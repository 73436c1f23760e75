// SPDX-License-Identifier: GPL-3.0-or-later
/// Drawing straight into pixel memory: paths, masks and images, anti-aliased, nothing copied to another format.
#pragma once
#include "base/AffineTransform.h"
#include "base/BezierPath.h"
#include "base/BitmapView.h"
#include "base/Color.h"
#include "base/ProjectiveTransform.h"
#include <memory>

namespace zp
{

class ImageLevels;

/// How drawn pixels meet the ones that are there. Source-in keeps the source where the destination has alpha.
enum class CompositingOperation : int { Clear = 0, Copy = 1, SourceOver = 2, SourceIn = 3 };
enum class Interpolation : int { Default = 0, None = 1 };

/// A context over a view. Coordinates are the bitmap's own: pixel (x, y) covers [x, x+1) by [y, y+1), y grows
/// downwards, row 0 on top; the current transform maps what is drawn into them. Everything is cut to the bitmap,
/// however large or broken the coordinates are (NaN draws nothing). One thread at a time; different contexts are
/// independent.
class BitmapContext
{
public:
    explicit BitmapContext(BitmapView pixels);
    ~BitmapContext();
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;

    void saveGraphicsState();
    /// Without a saved state does nothing.
    void restoreGraphicsState();

    /// Applied to points before the current transform.
    void concat(const AffineTransform& transform);
    /// Cuts all later drawing to the inside of the path (its winding rule, the current transform), anti-aliased.
    /// Clips add up: what is drawn lies inside all of them. Cost: the path's box.
    void addClip(const BezierPath& path);
    /// A rectangle on whole pixels cuts hard and costs nothing.
    void addClip(Rect rect);
    /// Image-mask semantics: 0 lets through, 255 stops, values between let through partly. The mask covers the bitmap
    /// from (0, 0) and is read in place while the clip is in force.
    void clipToMask(ConstMaskView mask);

    void setColor(Color color);
    void setShouldAntialias(bool on);
    void setInterpolation(Interpolation interpolation);
    /// Off (the state at first): a scaled or turned image ends in a smooth edge of its own. On: it goes on a pixel
    /// beyond its rectangle, for images whose outline a clip path draws; two soft edges on top of each other would be
    /// thin.
    void setImageEdgesExtend(bool on);

    /// Fills by the path's winding rule in the current colour, source-over.
    void fill(const BezierPath& path);
    /// Fills with the copy operation, so that a clear colour erases.
    void fillRect(Rect rect, CompositingOperation operation = CompositingOperation::Copy);
    /// Strokes with the path's width, joins, caps and dash in the current colour, source-over. A zero-length subpath
    /// with round caps draws a dot.
    void stroke(const BezierPath& path);
    /// One-pixel-wide frame just inside the rectangle.
    void frameRect(Rect rect);

    /// Draws the part @p source of @p image (in its pixels) into @p destination with the given opacity. At unit scale
    /// on whole pixels a copy, or a source-over of opaque pixels at fraction 1, changes no byte of the pixels. Reduced,
    /// the pixels are averaged; enlarged or turned, interpolated smoothly (Default) or taken from the nearest (None).
    /// @param fraction values above 1 count as 1, below 0 as 0
    void drawImage(ConstBitmapView image, Rect destination, Rect source,
                   CompositingOperation operation = CompositingOperation::SourceOver, float fraction = 1);
    /// The whole of @p image at @p origin, unscaled.
    void drawImageAt(ConstBitmapView image, Point origin,
                     CompositingOperation operation = CompositingOperation::SourceOver, float fraction = 1);
    /// Draws the image source-over as @p placement, from the pixels of level 0, and then the current transform place
    /// it. It goes on beyond its borders: the clip alone makes its edge. Reduced, it is taken from the smaller levels,
    /// so that the cost is that of the pixels drawn. A placement that flattens the image draws nothing.
    void drawLevels(const ImageLevels& levels, const ProjectiveTransform& placement, float fraction = 1);

private:
    struct State;
    struct Private;
    std::unique_ptr<Private> d;
};

/// Adds the path's coverage to an 8-bit mask: every byte moves towards @p value by the share of the pixel that the path
/// covers (its winding rule; exact area, AGG's 256 levels). Touches only the path's box. Path in mask pixels, y down.
/// Any thread that owns the mask. Time: O(box + edges).
void fillPathInMask(MaskView mask, const BezierPath& path, std::uint8_t value, bool antialias = true);
/// Same for the path's stroke.
void strokePathInMask(MaskView mask, const BezierPath& path, std::uint8_t value);
/// The pixels that stroking the path may touch.
Rect strokeBounds(const BezierPath& path);

} // namespace zp
