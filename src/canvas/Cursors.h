// SPDX-License-Identifier: GPL-3.0-or-later
/// What the pointer looks like over the picture: it says what a press would do.
#pragma once
#include "base/Geometry.h"
#include <QCursor>

namespace zp
{

class Document;

/// The cursor at that image point: the tool's own, a move cross where a press would move the selection, arrows on the
/// handles of what floats. @param devicePixelRatio  of the screen, so that it is as sharp as that can show
QCursor cursorAt(const Document& document, Point point, qreal devicePixelRatio);

} // namespace zp
