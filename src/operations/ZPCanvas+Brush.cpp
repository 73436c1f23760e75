// SPDX-License-Identifier: GPL-3.0-or-later
/// The mouse with the brush: the press prepares the tip and starts the stroke, whose threads do the rest.
#include "base/Folders.h"
#include "codecs/ImageImporter.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/ToolActions.h"

namespace zp
{

namespace
{

/// The picture of a brush shape, read once; null when there is none.
std::shared_ptr<const BitmapRep> brushShape(int index)
{
    static int kept = -1;
    static std::shared_ptr<const BitmapRep> shape;
    if (index != kept) {
        ImportOptions options;
        options.properties = false;
        const std::string name = QString("B%1.png").arg(index + 1).toStdString();
        shape = importImageFile(readableResourcePath(name), options).bitmap;
        kept = index;
    }
    return shape;
}

ConstBitmapView viewOf(const std::shared_ptr<const BitmapRep>& shape)
{
    return shape ? shape->view() : ConstBitmapView{};
}

} // namespace

void tool::pressBrush(Edit& edit, Point point)
{
    const std::shared_ptr<BitmapRep> bitmap = edit.picture().writableBitmap();
    if (!bitmap) {
        edit.gesture().refuse();
        return edit.refuse();
    }
    const Paint& paint = edit.paint();
    BrushStroke::Start start;
    start.bitmap = bitmap;
    start.pixelLock = &edit.picture().pixelLock();
    start.beforeWrite = [&history = edit.history()](PixelBox box) { history.beforeWrite(box); };
    const std::shared_ptr<const BitmapRep> shape = brushShape(paint.brushShape());
    start.tip = std::make_shared<const BrushTip>(viewOf(shape), paint.size(), paint.color());
    start.pressure = paint.penPressure();
    start.tipOfSize = [shape, color = paint.color()](float size) { return BrushTip(viewOf(shape), size, color); };
    start.size = paint.size();
    start.color = paint.color();
    start.clip = edit.selection().clipMask();
    if (!edit.selection().isNil() && start.clip.isEmpty()) throw std::bad_alloc(); // no memory for the mask
    edit.gesture().stroke().begin(std::move(start), point);
}

} // namespace zp
