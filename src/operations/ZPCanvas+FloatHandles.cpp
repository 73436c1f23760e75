// SPDX-License-Identifier: GPL-3.0-or-later
/// The handles of the floating piece.
#include "desktop/KeyModifiers.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/FloatHandles.h"
#include "selection/FloatingImage.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zp
{

namespace
{

/// The dialog's limits.
constexpr float kSmallestScale = 0.01f, kLargestScale = 8;
/// Screen points from the corners' line to the middle of the handle that turns.
constexpr float kTurnDistance = 22;
constexpr float kAngleStep = 15;
/// Screen points by which a handle may be missed.
constexpr float kHandleReach = 3;
/// Image pixels from the centre below which a distance says nothing about a scale.
constexpr float kLeastDistance = 0.5f;

float distance(Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

/// Of the line from the centre, in degrees, growing the way a turn does.
float angleOf(Point p, Point centre)
{
    return std::atan2(p.y - centre.y, p.x - centre.x) * 180 / std::numbers::pi_v<float>;
}

/// The same turn between -180 and 180.
float wrapped(float degrees) { return degrees - 360 * std::round(degrees / 360); }

Point scaled(Point p, float by) { return {p.x * by, p.y * by}; }
Point between(Point a, Point b) { return {(a.x + b.x) / 2, (a.y + b.y) / 2}; }
Point unit(Point p)
{
    const float length = std::hypot(p.x, p.y);
    return length > 0 ? scaled(p, 1 / length) : Point{};
}

void pressHandle(Edit& edit, Point point)
{
    const FloatHandle handle = floatHandleAt(edit.selection(), edit.view().effectiveZoom(), point);
    if (handle == FloatHandle::None) return edit.gesture().refuse();
    const bool pulls =
        handle != FloatHandle::Turn && edit.view().freesCorners() != ((currentKeyModifiers() & kControlKey) != 0);
    edit.gesture().startMoving(point);
    edit.gesture().setGrip(point, edit.selection().record());
    edit.selection().setTransformMode(int(handle) + (pulls ? int(FloatHandle::PullTopLeft) : 0));
}

/// Where the corners that the handles take lie in the image.
std::array<Point, 4> shownCorners(const Selection& selection)
{
    const FloatQuad own = selection.ownCorners();
    const FloatQuad placed = placedQuad(selection.record(), pulledQuad(selection.record(), own).value_or(own));
    std::array<Point, 4> corners;
    std::ranges::transform(placed, corners.begin(), [](CurvePoint p) { return Point{float(p.x), float(p.y)}; });
    return corners;
}

/// The pulls when that corner goes on by the way from @p from to @p to, in image coordinates. Nothing where it cannot.
std::optional<std::array<Point, 4>> pulledBy(const _ZPTransform& start, const FloatQuad& own, std::size_t corner,
                                             Point from, Point to)
{
    AffineTransform straight;
    straight.rotateByDegrees(double(start.rotate));
    straight.scale(double(start.scale), double(start.scale));
    Point way = straight.inverted().apply(to - from);
    if (currentKeyModifiers() & kShiftKey) (std::abs(way.x) < std::abs(way.y) ? way.x : way.y) = 0;
    auto there = pulledQuad(start, own);
    if (!there) return std::nullopt;
    (*there)[corner].x += double(way.x), (*there)[corner].y += double(way.y);
    return pullsThatBring(start, own, *there);
}

void dragHandle(Edit& edit, Point point)
{
    Selection& selection = edit.selection();
    if (!selection.floating()) return;
    const _ZPTransform& start = edit.gesture().gripRecord();
    const Point from = edit.gesture().gripPoint(), centre = selection.record().position;
    edit.redraw(selection.bounds().inset(-2));
    if (const int pulled = selection.transformMode() - int(FloatHandle::PullTopLeft); pulled >= 0) {
        if (const auto pulls = pulledBy(start, selection.ownCorners(), std::size_t(pulled), from, point))
            selection.pullCorners(*pulls);
        return edit.redraw(selection.bounds().inset(-2));
    }
    float scale = selection.record().scale, rotate = selection.record().rotate;
    if (FloatHandle(selection.transformMode()) == FloatHandle::Turn) {
        rotate = wrapped(start.rotate + angleOf(point, centre) - angleOf(from, centre));
        if (currentKeyModifiers() & kShiftKey) rotate = wrapped(kAngleStep * std::round(rotate / kAngleStep));
    } else {
        const float ratio = distance(point, centre) / std::max(kLeastDistance, distance(from, centre));
        scale = std::copysign(std::clamp(std::abs(start.scale) * ratio, kSmallestScale, kLargestScale), start.scale);
    }
    selection.transform(scale, rotate);
    edit.redraw(selection.bounds().inset(-2));
}

void releaseHandle(Edit& edit, Point) { edit.selection().setTransformMode(int(FloatHandle::None)); }

constexpr ToolActions kActions{.press = pressHandle, .drag = dragHandle, .release = releaseHandle, .moves = true};

} // namespace

bool showsFloatHandles(const Document& document, const ToolActions& tool)
{
    return document.selection().floating() && !document.selection().isNil() && tool.moves;
}

std::array<FloatHandlePlace, kFloatHandles> floatHandlePlaces(const Selection& selection, float zoom)
{
    const std::array<Point, 4> corners = shownCorners(selection);
    const float out = (kHandleSide / 2 + kHandleGap) / zoom;
    std::array<FloatHandlePlace, kFloatHandles> places;
    // Outwards in the middle between the two sides that meet there.
    for (std::size_t i = 0; i < 4; ++i) {
        const Point away = unit(corners[i] - corners[(i + 1) % 4]) + unit(corners[i] - corners[(i + 3) % 4]);
        places[i] = {corners[i] + scaled(unit(away), out * std::numbers::sqrt2_v<float>), corners[i]};
    }
    // Straight up from the middle of the upper side, away from the lower one.
    const Point side = unit(corners[1] - corners[0]), middle = between(corners[0], corners[1]);
    const Point down = between(corners[2], corners[3]) - middle;
    const Point across{-side.y, side.x};
    const float up = across.x * down.x + across.y * down.y > 0 ? -1.0f : 1.0f;
    places[std::size_t(FloatHandle::Turn)] = {middle + scaled(across, up * (out + kTurnDistance / zoom)), middle};
    return places;
}

FloatHandle floatHandleAt(const Selection& selection, float zoom, Point point)
{
    if (!selection.floating() || selection.contains(point)) return FloatHandle::None;
    const float reach = (kHandleSide / 2 + kHandleReach) / zoom;
    const auto places = floatHandlePlaces(selection, zoom);
    for (std::size_t i = 0; i < places.size(); ++i)
        if (distance(point, places[i].center) <= reach) return FloatHandle(i);
    return FloatHandle::None;
}

const ToolActions& floatHandleActions() { return kActions; }

} // namespace zp
