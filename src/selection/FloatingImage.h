// SPDX-License-Identifier: GPL-3.0-or-later
/// The floating selection's picture: lifted from an image, placed by its record, drawn the same way wherever it goes.
#pragma once
#include "base/BezierPath.h"
#include "base/Image.h"
#include "drawing/BitmapContext.h"
#include "selection/TransformRecord.h"
#include <memory>

namespace zp
{

/// The record of a picture that starts floating with its near corner and size at @p box: centred there, unscaled,
/// unturned.
_ZPTransform floatingRecord(Rect box);

/// Floating coordinates (origin at the floating image's centre, its own pixels as the unit) to image coordinates:
/// scaled, turned about the centre, moved to the record's position.
AffineTransform floatingPlacement(const _ZPTransform& record);

/// The floating image of the region @p box of @p image: all pixels that the box touches, those outside the image
/// transparent. Its size is that of the box; when the box is not on whole pixels, its pixels reach a little beyond it
/// on either side (Image::pixelOrigin), so that each stays exactly where it was. Of a box too large for a picture only
/// what lies on the image is lifted. @return null when nothing is left or memory fails
std::shared_ptr<Image> liftFloatingImage(ConstBitmapView image, Rect box);

/// Draws the floating image into @p context, whose coordinates must be the image's, by the placement rule with
/// source-over. Anchoring, copying and the screen all come here, so they show the same pixels. The caller adds the clip
/// paths; the image itself reaches a pixel beyond its outline when it is scaled or turned, so that they alone make its
/// edge. A filtered representation is drawn instead of the plain one.
/// @param opacity 0 to 1
void drawFloating(BitmapContext& context, const Image& image, const _ZPTransform& record, float opacity);

/// The step from the record's scale and turn to new ones, about the record's position, for the outline that goes with
/// the floating image.
AffineTransform floatingStep(const _ZPTransform& record, float scale, float rotate);

/// A picture of the region @p box (widened to whole pixels) holding only the floating image, cut by @p clip.
/// @return null when the box is empty or memory fails
std::shared_ptr<BitmapRep> copyOfFloating(const Image& image, const _ZPTransform& record, const BezierPath& clip,
                                          Rect box, float opacity);

/// Every pixel inside the path becomes transparent black, partly at its edge.
void clearInside(BitmapView image, const BezierPath& path);

/// The region @p box of @p image as a new picture, box.width by box.height truncated. What lies outside is transparent.
/// @return null when the size is absurd or memory fails
std::shared_ptr<BitmapRep> croppedImage(const BitmapRep& image, Rect box);

/// Every pixel whose alpha is below 255 becomes 0 in all four bytes.
void clearTranslucentPixels(BitmapView image);
/// Every pixel that is exactly opaque black becomes 0 in all four bytes.
void clearBlackPixels(BitmapView image);

} // namespace zp
