// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas's side of the text tool: a text becomes the selection's outline.
#include "base/NotificationCenter.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Selection.h"
#include "document/View.h"
#include "operations/SelectedPixels.h"
#include "operations/TextToolHook.h"
#include "operations/ToolActions.h"
#include <QGuiApplication>
#include <QPointer>
#include <cmath>

namespace zp
{

namespace
{

std::optional<TextToolHooks> registeredHooks;

constexpr Command kPreviewText{.action = "textEditorNotif:", .effect = Effect::View};
constexpr Command kPlaceText{.action = "placeText", .effect = Effect::Select};

/// The editor's outline at a point, mirrored about the point's height so that it stands upright where y grows
/// downwards.
std::optional<BezierPath> uprightText(Point at)
{
    std::optional<BezierPath> text = registeredHooks->textPathAtPoint(at);
    if (!text) return text;
    AffineTransform mirror;
    mirror.scale(1, -1);
    mirror.translate(0, -2.0 * at.y);
    text->transform(mirror);
    return text;
}

void showText(Edit& edit, std::optional<BezierPath> text)
{
    edit.selection().beginShape();
    if (text) edit.selection().shape(std::move(*text));
    edit.redraw();
}

/// Shows the editor, and takes its text when it was ended with OK. Runs events.
void runEditor(Document& document, Point point)
{
    const TextToolHooks& editor = *registeredHooks;
    const int size = int(std::round(document.paint().size()));
    editor.setFontSize(size);
    NotificationCenter::defaultCenter().post("FontSizeNotif", {}, {{"fontSize", std::to_string(size)}});
    editor.showWindow();
    const QPointer<Document> alive(&document);
    editor.run();
    if (!alive) return;
    document.perform(kPlaceText, [&](Edit& edit) {
        showText(edit, editor.isValid() ? uprightText(point) : std::nullopt);
        if (!edit.selection().isNil()) edit.selection().marchAnts();
    });
    // The button was let go somewhere in the editor: its release never reached the canvas.
    if (document.gesture().isMouseDown() && !(QGuiApplication::mouseButtons() & Qt::LeftButton))
        document.release(point);
}

} // namespace

void setTextToolHooks(TextToolHooks hooks) { registeredHooks = std::move(hooks); }

void textEditorNotif(Document& document)
{
    if (!registeredHooks) return;
    document.perform(kPreviewText, [&document](Edit& edit) { showText(edit, uprightText(document.gesture().pt1())); });
}

void tool::pressText(Edit& edit, Point point)
{
    if (edit.selection().contains(point)) return startMoving(edit, point);
    if (!registeredHooks) return edit.refuse();
    edit.gesture().setPress(point);
    edit.selection().beginShape();
    edit.gesture().openPolygon(false);
    edit.gesture().refuse(); // the press is the whole gesture: the button goes up somewhere in the editor
    Document& document = edit.document();
    edit.afterwards([&document, point] { runEditor(document, point); });
}

} // namespace zp
