// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas's side of the text tool: a text becomes the selection's outline.
#include "base/NotificationCenter.h"
#include "canvas/ZPCanvas.h"
#include "desktop/Sounds.h"
#include "operations/TextToolHook.h"
#include "operations/ToolActions.h"
#include <QGuiApplication>

using namespace zp;

namespace zp
{

namespace
{
std::optional<TextToolHooks> registeredHooks;
}

void setTextToolHooks(TextToolHooks hooks) { registeredHooks = std::move(hooks); }

const TextToolHooks* textToolHooks() { return registeredHooks ? &*registeredHooks : nullptr; }

} // namespace zp

namespace
{

/// The editor's outline at a point, mirrored about the point's height so that it stands upright where y grows
/// downwards.
std::optional<BezierPath> uprightText(Point at)
{
    std::optional<BezierPath> text = textToolHooks()->textPathAtPoint(at);
    if (!text) return text;
    AffineTransform mirror;
    mirror.scale(1, -1);
    mirror.translate(0, -2.0 * at.y);
    text->transform(mirror);
    return text;
}

} // namespace

void ZPCanvas::textEditorNotif()
{
    if (!textToolHooks()) return;
    mPasteIntoSelectionPath.reset();
    mSelectionPath = uprightText(mPt1);
    ++mSelectionPathVersion;
    setNeedsDisplay();
}

void ZPToolActions::pressText(ZPCanvas& canvas, Point point)
{
    if (hitsSelection(canvas, point)) return startMove(canvas, point);
    const TextToolHooks* editor = textToolHooks();
    if (!editor) return beep();
    canvas.mPt1 = point;
    const int size = int(std::round(canvas.mSize));
    editor->setFontSize(size);
    NotificationCenter::defaultCenter().post("FontSizeNotif", {}, {{"fontSize", std::to_string(size)}});
    editor->showWindow();
    const QPointer<ZPCanvas> alive(&canvas);
    editor->run();
    if (!alive) return;
    canvas.mPasteIntoSelectionPath.reset();
    canvas.mSelectionPath.reset();
    if (editor->isValid()) canvas.mSelectionPath = uprightText(point);
    ++canvas.mSelectionPathVersion;
    canvas.mMove = false;
    canvas.setNeedsDisplay();
    // The button was let go somewhere in the editor: its release never reached the canvas.
    ToolState& state = toolState(canvas);
    if (state.buttonDown && !(QGuiApplication::mouseButtons() & Qt::LeftButton)) {
        state.buttonDown = false;
        canvas.mouseUp(point);
    }
}
