// SPDX-License-Identifier: GPL-3.0-or-later
/// Scaling, turning and pulling the floating piece by hand: where its handles lie, and what dragging one does.
#pragma once
#include "document/Tool.h"
#include <array>
#include <optional>

namespace zp
{

class Document;
class Selection;

/// The corners in the order of the piece's own box, and the one that turns it, above its upper edge; then the corners
/// again, while one is pulled by itself.
enum class FloatHandle : std::int32_t {
    None = -1,
    TopLeft,
    TopRight,
    BottomRight,
    BottomLeft,
    Turn,
    PullTopLeft,
    PullTopRight,
    PullBottomRight,
    PullBottomLeft,
};
inline constexpr int kFloatHandles = 5;

/// Screen points: the side of a handle, and what lies between it and the piece.
inline constexpr float kHandleSide = 9, kHandleGap = 3;

/// Whether the piece can be taken by its handles: something floats, and the tool moves it.
/// @param tool  of the tool that is chosen
bool showsFloatHandles(const Document& document, const ToolActions& tool);
/// Where a handle lies, in image coordinates.
struct FloatHandlePlace {
    Point center;
    Point anchor; ///< what it belongs to: the piece's corner, or the middle of its upper side
};
/// By the handle's number. The handles lie wholly outside the piece's outline, so that a press inside always moves it,
/// and keep their size on screen. Something must float.
std::array<FloatHandlePlace, kFloatHandles> floatHandlePlaces(const Selection& selection, float zoom);
/// The handle at that image point; None between them and when nothing floats.
FloatHandle floatHandleAt(const Selection& selection, float zoom, Point point);
/// The gesture of the handle at its press: what the Transform dialog does by number, about the piece's centre, within
/// the dialog's limits. Shift keeps angles to whole steps of 15 degrees. With free corners, or with Control held where
/// they are not free (and the other way round), a corner is pulled by itself, with Shift along one of the piece's sides
/// only; it stays where the shape would fold over. Leaves no step: nothing is painted.
const ToolActions& floatHandleActions();

} // namespace zp
