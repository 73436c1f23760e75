// SPDX-License-Identifier: GPL-3.0-or-later
/// How the text tool reaches the text editor, which is a window and stands above the canvas.
#pragma once
#include "base/BezierPath.h"
#include <functional>
#include <optional>

namespace zp
{

/// What the canvas asks of the text editor. Registered once by the application; all calls come on the main thread.
struct TextToolHooks {
    std::function<void(int size)> setFontSize;
    std::function<void()> showWindow;
    std::function<void()> run; ///< returns when the user has pressed OK or Cancel
    /// The typed text's outline, y upwards from its base line at the point; nothing when there is no text view yet.
    std::function<std::optional<BezierPath>(Point start)> textPathAtPoint;
    std::function<bool()> isValid; ///< whether the last run ended with OK
};

void setTextToolHooks(TextToolHooks hooks);
/// Null until they are set; then the text tool only beeps.
const TextToolHooks* textToolHooks();

} // namespace zp
