// SPDX-License-Identifier: GPL-3.0-or-later
/// One pixel by its word, and the two clean-ups of transparency.
#include "document/Picture.h"
#include "operations/Commands.h"
#include "operations/PixelAccess.h"
#include "selection/FloatingImage.h"

namespace zp
{

void operations::setColorAtPoint(Edit& edit, const Arguments& at)
{
    const Point point{at.number(1), at.number(2)};
    if (!edit.picture().bounds().contains(point)) return edit.refuse();
    const int x = int(point.x), y = int(point.y);
    setColor(edit.write({x, y, x + 1, y + 1}), std::uint32_t(at.numbers[0]), point);
}

void operations::makeBGBlack(Edit& edit, const Arguments&) { clearTranslucentPixels(edit.writeAll()); }

void operations::magentaClear(Edit& edit, const Arguments&) { clearBlackPixels(edit.writeAll()); }

} // namespace zp
