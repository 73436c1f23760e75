// SPDX-License-Identifier: GPL-3.0-or-later
/// The ten tools by number, and what the mouse does with one of them.
#pragma once
#include "base/Geometry.h"
#include <cstdint>

namespace zp
{

/// What the hand that holds the mouse does.
enum class Hand {
    Press,
    Drag,
    Release,
    Move,     ///< with no button down, while a stroke goes on that could not be released
    TakenBack ///< the gesture was given up, and everything is as before its press
};

class Edit;

enum class Tool : std::int32_t {
    Rectangle = 0,
    Lasso = 1,
    Wand = 2,
    Brush = 3,
    Pencil = 4,
    Eraser = 5,
    Bucket = 6,
    Eyedropper = 7,
    Text = 8,
    CloneStamp = 9,
};
inline constexpr int kToolCount = 10;

/// What happens to a floating piece when a command or a gesture begins.
enum class OnFloat {
    Keep,
    Settle, ///< pixels will be written: what was changed is anchored, what was only lifted is let go
};

/// What a tool does with the mouse. Points: image coordinates, y down. Nothing for an action: the event has no effect
/// of its own. Main thread.
struct ToolActions {
    using Action = void(Edit&, Point);
    const char* name = nullptr; ///< of the step that its gesture leaves, to be translated
    Action* press = nullptr;
    Action* drag = nullptr;
    Action* release = nullptr;
    OnFloat onFloat = OnFloat::Keep;
    bool paints = false;   ///< writes pixels, limited by the selection
    bool combines = false; ///< Shift and Option at the press set the old outline aside, to be joined at the release
    bool moves = false;    ///< a press inside the selection moves it
    bool scrolls = false;  ///< the view follows a drag beyond its edge
    bool refusesOpenStroke = false; ///< a press while the last brush stroke is still painted beeps instead of waiting
    std::uint32_t readsWithKey = 0; ///< a press with this key held only looks at the picture
};

} // namespace zp
