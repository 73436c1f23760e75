// SPDX-License-Identifier: GPL-3.0-or-later
/// The floating selection's picture: lifted from an image, placed by its record, drawn the same way wherever it goes.
#pragma once
#include "base/BezierPath.h"
#include "base/Image.h"
#include "base/ProjectiveTransform.h"
#include "drawing/BitmapContext.h"
#include "drawing/ImageLevels.h"
#include "selection/TransformRecord.h"
#include <array>
#include <memory>
#include <optional>

namespace zp
{

/// The record of a picture that starts floating with its near corner and size at @p box: centred there, unscaled,
/// unturned.
_ZPTransform floatingRecord(Rect box);

/// Floating coordinates (origin at the floating image's centre, its own pixels as the unit) to image coordinates:
/// scaled, turned about the centre, moved to the record's position.
AffineTransform floatingPlacement(const _ZPTransform& record);

/// Whether a corner was pulled from its place.
bool hasPulledCorners(const _ZPTransform& record);
/// The same as floatingPlacement, for a piece whose corners were pulled: those of its box come to lie where they were
/// pulled to, and straight lines stay straight.
/// @return nothing when the corners are not those of a convex shape that can be looked at (ProjectiveTransform::ofRect)
std::optional<ProjectiveTransform> pulledPlacement(const _ZPTransform& record);
/// Four corners in a piece's own coordinates (see floatingPlacement), before any was pulled: upper left, upper right,
/// lower right, lower left.
using FloatQuad = std::array<CurvePoint, 4>;
/// fourCorners of an outline that is in image coordinates, as it is without pulled corners.
std::optional<FloatQuad> outlineCorners(const _ZPTransform& record, const BezierPath& outline);
/// The corners that a person takes: outlineCorners where there are such and a flat picture can be seen like that, else
/// those of the piece's box.
/// @param outline  in image coordinates, as it is without pulled corners
FloatQuad ownCorners(const _ZPTransform& record, const BezierPath& outline);
/// Where they lie with the box's corners pulled, in the same coordinates. @return nothing for one beyond the horizon
std::optional<FloatQuad> pulledQuad(const _ZPTransform& record, const FloatQuad& own);
/// In image coordinates.
FloatQuad placedQuad(const _ZPTransform& record, const FloatQuad& corners);
/// How far the box's corners must be pulled for the corners @p own to lie at @p to. @return nothing when that cannot be
std::optional<std::array<Point, 4>> pullsThatBring(const _ZPTransform& record, const FloatQuad& own,
                                                   const FloatQuad& to);
/// How far they must be pulled for the corners @p own to become those of a rectangle that is upright in the image: as
/// wide and high as the means of the opposite sides, with the same middle. @return nothing when that cannot be
std::optional<std::array<Point, 4>> straighteningPulls(const _ZPTransform& record, const FloatQuad& own);
/// The four corners of a closed outline of four straight sides, in its coordinates, clockwise from the upper left one;
/// repeated points and those in the middle of a side do not count. @return nothing for another shape, and for one that
/// is dented: no rectangle looks like that from anywhere
std::optional<FloatQuad> fourCorners(const BezierPath& outline);

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
/// @param levels  those of what is drawn, when they are at hand; a piece with pulled corners needs them
void drawFloating(BitmapContext& context, const Image& image, const _ZPTransform& record, float opacity,
                  const ImageLevels* levels = nullptr);
/// The same from the levels, whatever the record: where the context is a picture of the screen, at the cost of the
/// screen's pixels.
void drawFloatingReduced(BitmapContext& context, const Image& image, const _ZPTransform& record, float opacity,
                         const ImageLevels& levels);

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
