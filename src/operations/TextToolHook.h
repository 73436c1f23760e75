// SPDX-License-Identifier: GPL-3.0-or-later
/// How the text tool reaches the text editor, which is a window and stands above the operations.
#pragma once
#include "base/BezierPath.h"
#include <functional>
#include <optional>

namespace zp
{

class Document;

/// What the tool asks of the text editor. Registered once by the application; all calls come on the main thread.
struct TextToolHooks {
    std::function<void(int size)> setFontSize;
    std::function<void()> showWindow;
    std::function<void()> run; ///< returns when the user has pressed OK or Cancel
    /// The typed text's outline, y upwards from its base line at the point; nothing when there is no text view yet.
    std::function<std::optional<BezierPath>(Point start)> textPathAtPoint;
    std::function<bool()> isValid; ///< whether the last run ended with OK
};

/// Until they are set the text tool only beeps.
void setTextToolHooks(TextToolHooks hooks);
/// The text being typed, as the outline on screen: the observer of "TextEditorNotif".
void textEditorNotif(Document& document);

} // namespace zp
