// SPDX-License-Identifier: GPL-3.0-or-later
/// The tools, one row each.
#include "canvas/ToolTable.h"
#include "desktop/KeyModifiers.h"
#include "document/Gesture.h"
#include "operations/ToolActions.h"
#include <QCoreApplication>
#include <array>

namespace zp
{

namespace
{

using namespace tool;

constexpr const char* kMove = QT_TRANSLATE_NOOP("Steps", "Move");
constexpr unsigned kCombining = options::Add | options::Subtract;

constexpr ToolActions selecting(const char* name, ToolActions::Action* press, ToolActions::Action* drag,
                                ToolActions::Action* release)
{
    return {.name = name, .press = press, .drag = drag, .release = release, .combines = true, .moves = true};
}

constexpr ToolActions painting(const char* name, ToolActions::Action* press, ToolActions::Action* drag,
                               ToolActions::Action* release)
{
    return {.name = name, .press = press, .drag = drag, .release = release, .onFloat = OnFloat::Settle, .paints = true};
}

constexpr ToolActions scrolling(ToolActions actions)
{
    actions.scrolls = true;
    return actions;
}

constexpr ToolActions refusingOpenStroke(ToolActions actions)
{
    actions.refusesOpenStroke = true;
    return actions;
}

constexpr ToolActions readingWith(std::uint32_t key, ToolActions actions)
{
    actions.readsWithKey = key;
    return actions;
}

constexpr std::array<ToolRow, kToolCount> kTools{{
    {.tool = Tool::Rectangle,
     .title = QT_TRANSLATE_NOOP("Tools", "Rectangle Selection"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Selects a rectangle; square and oval by switch or key"),
     .key = '1',
     .hint = QT_TRANSLATE_NOOP("Tools", "Drag to select; inside the selection it moves · {Shift} adds, {Option} "
                                        "subtracts · {Command}: square, {Control}: oval"),
     .options = options::Size | options::Square | options::Oval | kCombining, // the size is the Stroke command's
     .actions = scrolling(selecting(kMove, pressRectangle, dragRectangle, releaseRectangle))},
    {.tool = Tool::Lasso,
     .title = QT_TRANSLATE_NOOP("Tools", "Lasso"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Selects by a drawn outline; polygon by switch or key, ended with Return"),
     .key = '2',
     .hint = QT_TRANSLATE_NOOP(
         "Tools",
         "Draw around what you want · {Shift} adds, {Option} subtracts · {Control}: corner by corner, Return ends"),
     .options = options::Size | options::Polygon | kCombining | options::Float,
     .actions = refusingOpenStroke(scrolling(selecting(kMove, pressLasso, dragLasso, releaseLasso)))},
    {.tool = Tool::Wand,
     .title = QT_TRANSLATE_NOOP("Tools", "Magic Wand"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Selects the area of similar colour"),
     .key = '3',
     .hint = QT_TRANSLATE_NOOP(
         "Tools", "Click a colour · {Shift} adds, {Option} subtracts · Tolerance says how far colours may differ"),
     .options = options::Tolerance | options::Explain | kCombining | options::Float,
     .actions = selecting(kMove, pressWand, dragWand, releaseWand)},
    {.tool = Tool::Brush,
     .title = QT_TRANSLATE_NOOP("Tools", "Brush"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Paints with a brush tip"),
     .key = '4',
     .hint = QT_TRANSLATE_NOOP(
         "Tools", "Drag to paint · {smallerBrush:} and {largerBrush:} change the size, {swapColours:} the colour · "
                  "Escape takes the stroke back"),
     .options = options::Size | options::BrushShape,
     .actions = refusingOpenStroke(painting(QT_TRANSLATE_NOOP("Steps", "Brush"), pressBrush, nullptr, nullptr)),
     .outline = true},
    {.tool = Tool::Pencil,
     .title = QT_TRANSLATE_NOOP("Tools", "Pencil"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Draws a line; straight with Shift"),
     .key = '5',
     .hint = QT_TRANSLATE_NOOP("Tools", "Drag to draw · {Shift}: one straight line · Escape takes it back"),
     .options = options::Size | options::Straight,
     .actions = painting(QT_TRANSLATE_NOOP("Steps", "Pencil"), pressPencil, dragPencil, releasePencil),
     .preview = previewPencil,
     .previewBox = previewBox,
     .outline = true},
    {.tool = Tool::Eraser,
     .title = QT_TRANSLATE_NOOP("Tools", "Eraser"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Makes pixels transparent; straight with Shift"),
     .key = '6',
     .hint = QT_TRANSLATE_NOOP("Tools", "Drag to make transparent · {Shift}: one straight line · Escape takes it back"),
     .options = options::Size | options::Straight,
     .actions = painting(QT_TRANSLATE_NOOP("Steps", "Eraser"), pressPencil, dragPencil, releaseEraser),
     .preview = previewEraser,
     .previewBox = previewBox,
     .outline = true},
    {.tool = Tool::Bucket,
     .title = QT_TRANSLATE_NOOP("Tools", "Paint Bucket"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Fills the area of similar colour"),
     .key = '7',
     .hint =
         QT_TRANSLATE_NOOP("Tools", "Click to fill the area of one colour · Tolerance says how far colours may differ"),
     .options = options::Tolerance,
     .actions = painting(QT_TRANSLATE_NOOP("Steps", "Paint Bucket"), pressBucket, nullptr, nullptr)},
    {.tool = Tool::Eyedropper,
     .title = QT_TRANSLATE_NOOP("Tools", "Eyedropper"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Picks the colour under the pointer"),
     .key = '8',
     .hint = QT_TRANSLATE_NOOP("Tools",
                               "Click or drag to pick the paint colour · {swapColours:} goes back to the one before"),
     .actions = {.press = pickColor, .drag = pickColor, .scrolls = true}},
    {.tool = Tool::Text,
     .title = QT_TRANSLATE_NOOP("Tools", "Text"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Places text as a selection"),
     .key = '9',
     .hint = QT_TRANSLATE_NOOP("Tools", "Click where the text begins · inside the text, dragging moves it"),
     .options = options::Size | options::Float,
     .actions = {.name = kMove, .press = pressText, .drag = moveSelection, .moves = true}},
    {.tool = Tool::CloneStamp,
     .title = QT_TRANSLATE_NOOP("Tools", "Clone Stamp"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Paints with pixels from elsewhere; Option-click sets the source"),
     .key = '0',
     .hint = QT_TRANSLATE_NOOP("Tools", "{Option}+click says where pixels come from, then paint"),
     .options = options::Size | options::SetSource,
     .actions = readingWith(kOptionKey, painting(QT_TRANSLATE_NOOP("Steps", "Clone Stamp"), pressCloneStamp,
                                                 dragCloneStamp, releaseCloneStamp)),
     .outline = true},
}};

/// The brush while it removes what it is drawn over; the palette shows the brush.
constexpr ToolRow kRemoving{.tool = Tool::Brush,
                            .title = QT_TRANSLATE_NOOP("Tools", "Remove Brush"),
                            .tip = QT_TRANSLATE_NOOP("Tools", "Fills what it is drawn over from its surroundings"),
                            .key = '4',
                            .hint = QT_TRANSLATE_NOOP("Tools", "Paint over what should vanish and let go · any tool "
                                                               "ends this · Escape takes the stroke back"),
                            .options = options::Size,
                            .actions = {.name = QT_TRANSLATE_NOOP("Steps", "Remove"),
                                        .press = pressRemove,
                                        .drag = dragPencil,
                                        .release = releaseRemove,
                                        // What floats becomes part of the picture in the result's own step.
                                        .onFloat = OnFloat::Keep,
                                        .paints = true},
                            .preview = previewRemove,
                            .previewBox = previewBox,
                            .outline = true};

} // namespace

std::span<const ToolRow> toolTable() { return kTools; }

QString hintOf(const ToolRow& row)
{
    struct Role {
        const char* word;
        std::uint32_t bit;
    };
    QString hint = QCoreApplication::translate("Tools", row.hint);
    for (const Role& role :
         {Role{"{Shift}", kShiftKey}, {"{Option}", kOptionKey}, {"{Control}", kControlKey}, {"{Command}", kCommandKey}})
        hint.replace(role.word, keyNameOf(role.bit));
    return hint;
}

const ToolRow& rowOf(const Gesture& gesture) { return gesture.removes() ? kRemoving : rowOf(gesture.tool()); }

const ToolRow& rowOf(Tool tool) { return kTools[std::size_t(tool)]; }

} // namespace zp
