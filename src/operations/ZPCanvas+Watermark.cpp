// SPDX-License-Identifier: GPL-3.0-or-later
/// A watermark drawn into the picture.
#include "base/Folders.h"
#include "batch/WatermarkDrawing.h"
#include "codecs/ImageImporter.h"
#include "document/Picture.h"
#include "operations/Commands.h"
#include <QCoreApplication>

namespace zp
{

void operations::placeWatermark(Edit& edit, const Arguments& arguments)
{
    if (arguments.path.empty() || !edit.picture().bitmap()) return;
    const ImportedImage watermark = importImageFile(arguments.path);
    if (!watermark.bitmap) {
        // What is no picture draws nothing, and says nothing; one that cannot be read now was to be drawn.
        if (imageFileDimensions(arguments.path).width > 0)
            edit.refuse(
                QCoreApplication::translate("Watermark", "The watermark could not be drawn."),
                QString::fromStdString(displayName(lastPathComponent(arguments.path)) + ": " + watermark.error));
        return;
    }
    drawWatermark(edit.writeAll(), watermark.bitmap->view(), sizeInPoints(*watermark.bitmap),
                  {arguments.number(0), arguments.number(1)}, arguments.number(2));
}

} // namespace zp
