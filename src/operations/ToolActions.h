// SPDX-License-Identifier: GPL-3.0-or-later
/// What the mouse does with each tool: the actions behind the rows of the tool table. Points: image coordinates, y
/// down.
#pragma once
#include "document/Edit.h"
#include "drawing/BitmapContext.h"

namespace zp::tool
{

using Action = ToolActions::Action;

Action pressRectangle, dragRectangle, releaseRectangle;
Action pressLasso, dragLasso, releaseLasso;
Action pressWand, dragWand, releaseWand;
Action pressBrush;
Action pressPencil, dragPencil, releasePencil, releaseEraser;
Action pressRemove, releaseRemove;
Action pressBucket;
Action pickColor;
Action pressText;
Action pressCloneStamp, dragCloneStamp, releaseCloneStamp;
/// Moves the selection (and what floats in it) by the pointer's step, when a move is on.
Action moveSelection;

/// What the pencil or the eraser would leave if the button were let go now, drawn into @p pixels, whose corner is the
/// picture's pixel (x, y): the very drawing that the release does.
using Preview = void(const Document& document, BitmapView pixels, int x, int y);
Preview previewPencil, previewEraser, previewRemove;
/// The pixels that the preview may touch.
PixelBox previewBox(const Document& document);

} // namespace zp::tool
