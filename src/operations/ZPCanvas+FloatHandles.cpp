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

void pressHandle(Edit& edit, Point point)
{
    const FloatHandle handle = floatHandleAt(edit.selection(), edit.view().effectiveZoom(), point);
    if (handle == FloatHandle::None) return edit.gesture().refuse();
    edit.gesture().startMoving(point);
    edit.gesture().setGrip(point, edit.selection().record());
    edit.selection().setTransformMode(int(handle));
}

void dragHandle(Edit& edit, Point point)
{
    Selection& selection = edit.selection();
    if (!selection.floating()) return;
    const _ZPTransform& start = edit.gesture().gripRecord();
    const Point from = edit.gesture().gripPoint(), centre = selection.record().position;
    float scale = selection.record().scale, rotate = selection.record().rotate;
    if (FloatHandle(selection.transformMode()) == FloatHandle::Turn) {
        rotate = wrapped(start.rotate + angleOf(point, centre) - angleOf(from, centre));
        if (currentKeyModifiers() & kShiftKey) rotate = wrapped(kAngleStep * std::round(rotate / kAngleStep));
    } else {
        const float ratio = distance(point, centre) / std::max(kLeastDistance, distance(from, centre));
        scale = std::copysign(std::clamp(std::abs(start.scale) * ratio, kSmallestScale, kLargestScale), start.scale);
    }
    edit.redraw(selection.bounds().inset(-2));
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

Point floatHandleCenter(const Selection& selection, float zoom, FloatHandle handle)
{
    const _ZPTransform& record = selection.record();
    const Size size = selection.floating()->size();
    // In the piece's own coordinates, whose unit is a pixel of it.
    const float point = 1 / (zoom * std::max(kSmallestScale, std::abs(record.scale)));
    const float out = (kHandleSide / 2 + kHandleGap) * point, x = size.width / 2 + out, y = size.height / 2 + out;
    const auto place = [&record](float px, float py) { return floatingPlacement(record).apply(Point{px, py}); };
    switch (handle) {
    case FloatHandle::TopLeft:
        return place(-x, -y);
    case FloatHandle::TopRight:
        return place(x, -y);
    case FloatHandle::BottomRight:
        return place(x, y);
    case FloatHandle::BottomLeft:
        return place(-x, y);
    case FloatHandle::Turn:
        return place(0, -y - kTurnDistance * point);
    case FloatHandle::None:
        break;
    }
    return record.position;
}

FloatHandle floatHandleAt(const Selection& selection, float zoom, Point point)
{
    if (!selection.floating() || selection.contains(point)) return FloatHandle::None;
    const float reach = (kHandleSide / 2 + kHandleReach) / zoom;
    for (int i = 0; i < kFloatHandles; ++i)
        if (distance(point, floatHandleCenter(selection, zoom, FloatHandle(i))) <= reach) return FloatHandle(i);
    return FloatHandle::None;
}

const ToolActions& floatHandleActions() { return kActions; }

} // namespace zp
