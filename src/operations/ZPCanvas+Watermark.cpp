// SPDX-License-Identifier: GPL-3.0-or-later
/// A watermark drawn into the picture.
#include "batch/WatermarkDrawing.h"
#include "codecs/ImageImporter.h"
#include "document/Picture.h"
#include "operations/Commands.h"

namespace zp
{

void operations::placeWatermark(Edit& edit, const Arguments& arguments)
{
    if (arguments.path.empty() || !edit.picture().bitmap()) return;
    const ImportedImage watermark = importImageFile(arguments.path);
    if (!watermark.bitmap) return;
    drawWatermark(edit.writeAll(), watermark.bitmap->view(), sizeInPoints(*watermark.bitmap),
                  {arguments.number(0), arguments.number(1)}, arguments.number(2));
}

} // namespace zp
