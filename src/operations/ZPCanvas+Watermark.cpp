// SPDX-License-Identifier: GPL-3.0-or-later
/// The canvas's side of a batch run's watermark.
#include "batch/WatermarkDrawing.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ImageImporter.h"

using namespace zp;

void ZPCanvas::placeWatermark(const std::string& path, Point point, float alpha)
{
    if (path.empty() || !mImage || mImage->representations().empty()) return;
    const ImportedImage watermark = importImageFile(path);
    if (!watermark.bitmap) return;
    waitForWorkers(); // a snapshot of the picture before may still be read from these pixels
    BitmapRep& target = *mImage->representations().front().bitmap;
    drawWatermark(target.view(), watermark.bitmap->view(), sizeInPoints(*watermark.bitmap), point, alpha);
}
