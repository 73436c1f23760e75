// SPDX-License-Identifier: GPL-3.0-or-later
/// The tools, one row each.
#include "canvas/ToolTable.h"
#include "desktop/KeyModifiers.h"
#include "operations/ToolActions.h"
#include <QtGlobal>
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
     .cursor = Qt::CrossCursor,
     .options = options::Size | options::Square | options::Oval | kCombining, // the size is the Stroke command's
     .actions = scrolling(selecting(kMove, pressRectangle, dragRectangle, releaseRectangle))},
    {.tool = Tool::Lasso,
     .title = QT_TRANSLATE_NOOP("Tools", "Lasso"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Selects by a drawn outline; polygon by switch or key, ended with Return"),
     .key = '2',
     .cursor = Qt::CrossCursor,
     .options = options::Size | options::Polygon | kCombining | options::Float,
     .actions = refusingOpenStroke(scrolling(selecting(kMove, pressLasso, dragLasso, releaseLasso)))},
    {.tool = Tool::Wand,
     .title = QT_TRANSLATE_NOOP("Tools", "Magic Wand"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Selects the area of similar colour"),
     .key = '3',
     .cursor = Qt::CrossCursor,
     .options = options::Tolerance | kCombining | options::Float,
     .actions = selecting(kMove, pressWand, moveSelection, releaseWand)},
    {.tool = Tool::Brush,
     .title = QT_TRANSLATE_NOOP("Tools", "Brush"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Paints with a brush tip"),
     .key = '4',
     .cursor = Qt::CrossCursor,
     .options = options::Size | options::BrushShape,
     .actions = refusingOpenStroke(painting(QT_TRANSLATE_NOOP("Steps", "Brush"), pressBrush, nullptr, nullptr)),
     .outline = true},
    {.tool = Tool::Pencil,
     .title = QT_TRANSLATE_NOOP("Tools", "Pencil"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Draws a line; straight with Shift"),
     .key = '5',
     .cursor = Qt::CrossCursor,
     .options = options::Size | options::Straight,
     .actions = painting(QT_TRANSLATE_NOOP("Steps", "Pencil"), pressPencil, dragPencil, releasePencil),
     .preview = previewPencil,
     .previewBox = previewBox,
     .outline = true},
    {.tool = Tool::Eraser,
     .title = QT_TRANSLATE_NOOP("Tools", "Eraser"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Makes pixels transparent; straight with Shift"),
     .key = '6',
     .cursor = Qt::CrossCursor,
     .options = options::Size | options::Straight,
     .actions = painting(QT_TRANSLATE_NOOP("Steps", "Eraser"), pressPencil, dragPencil, releaseEraser),
     .preview = previewEraser,
     .previewBox = previewBox,
     .outline = true},
    {.tool = Tool::Bucket,
     .title = QT_TRANSLATE_NOOP("Tools", "Paint Bucket"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Fills the area of similar colour"),
     .key = '7',
     .cursor = Qt::CrossCursor,
     .options = options::Tolerance,
     .actions = painting(QT_TRANSLATE_NOOP("Steps", "Paint Bucket"), pressBucket, nullptr, nullptr)},
    {.tool = Tool::Eyedropper,
     .title = QT_TRANSLATE_NOOP("Tools", "Eyedropper"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Picks the colour under the pointer"),
     .key = '8',
     .cursor = Qt::CrossCursor,
     .actions = {.press = pickColor, .drag = pickColor, .scrolls = true}},
    {.tool = Tool::Text,
     .title = QT_TRANSLATE_NOOP("Tools", "Text"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Places text as a selection"),
     .key = '9',
     .cursor = Qt::CrossCursor,
     .options = options::Size | options::Float,
     .actions = {.name = kMove, .press = pressText, .drag = moveSelection, .moves = true}},
    {.tool = Tool::CloneStamp,
     .title = QT_TRANSLATE_NOOP("Tools", "Clone Stamp"),
     .tip = QT_TRANSLATE_NOOP("Tools", "Paints with pixels from elsewhere; Option-click sets the source"),
     .key = '0',
     .cursor = Qt::CrossCursor,
     .options = options::Size | options::SetSource,
     .actions = readingWith(kOptionKey, painting(QT_TRANSLATE_NOOP("Steps", "Clone Stamp"), pressCloneStamp,
                                                 dragCloneStamp, releaseCloneStamp)),
     .outline = true},
}};

} // namespace

std::span<const ToolRow> toolTable() { return kTools; }

const ToolRow& rowOf(Tool tool) { return kTools[std::size_t(tool)]; }

} // namespace zp
