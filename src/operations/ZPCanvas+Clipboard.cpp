// SPDX-License-Identifier: GPL-3.0-or-later
/// Copy, cut, paste, delete and crop, and the two clean-ups of transparency.
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/Pasteboard.h"
#include "desktop/Sounds.h"
#include "imageops/Adjustment.h"
#include "selection/FloatingImage.h"

using namespace zp;

namespace
{

/// Smaller crops are refused on purpose.
constexpr float kLeastCrop = 4;

/// The canvas's picture, or what of the floating selection its outline lets through. Null when there is nothing.
std::shared_ptr<const BitmapRep> pictureToCopy(ZPCanvas& canvas)
{
    if (!canvas.mSelectionPath)
        return canvas.mImage && !canvas.mImage->representations().empty()
                   ? canvas.mImage->representations().front().bitmap
                   : nullptr;
    if (!canvas.mSelectionImage) canvas.floatSelection();
    if (!canvas.mSelectionImage) return nullptr;
    finishPendingAdjustment(canvas);
    if (canvas.mSelectionImage->representations().size() >= 2) {
        logLine("more than one rep");
        for (const ImageRepresentation& r : canvas.mSelectionImage->representations())
            if (r.filtered) logLine("CIImageRep drawn");
    }
    const std::shared_ptr<BitmapRep> copy =
        copyOfFloating(*canvas.mSelectionImage, canvas.mTransformRecord, *canvas.mSelectionPath,
                       canvas.mSelectionPath->bounds(), canvas.mColor.alpha);
    if (copy && canvas.mBitmapRep) copy->properties = canvas.mBitmapRep->properties;
    return copy;
}

/// @return whether the pasteboard holds it now
bool putOnPasteboard(ZPCanvas& canvas)
{
    canvas.finishStroke();
    const std::shared_ptr<const BitmapRep> picture = pictureToCopy(canvas);
    if (!picture) return false;
    std::vector<std::uint8_t> tiff = encodeTIFF(picture->view(), picture->properties);
    if (tiff.empty()) return false;
    Pasteboard::general().setTIFF(std::move(tiff));
    return true;
}

/// The pasteboard's picture, ready to float; null when there is none that can be read.
std::shared_ptr<Image> pictureToPaste()
{
    const std::vector<std::uint8_t> data = Pasteboard::general().imageData();
    if (data.empty()) return nullptr;
    const ImportedImage imported = importImage(data);
    if (!imported.bitmap) return nullptr;
    // One pixel of the pasted picture is one of the image, whatever resolution it speaks of.
    auto image =
        std::make_shared<Image>(Size{float(imported.bitmap->pixelsWide()), float(imported.bitmap->pixelsHigh())});
    image->setFlipped(true);
    image->add(imported.bitmap);
    return image;
}

/// The last steps of both kinds of paste: @p picture floats in the rectangle @p box.
void floatPasted(ZPCanvas& canvas, std::shared_ptr<Image> picture, Rect box)
{
    canvas.mSelectionImage = std::move(picture);
    canvas.mSelectionPath = BezierPath::withRect(box);
    ++canvas.mSelectionPathVersion;
    canvas.clearSelectionMask();
    canvas.selectionPathToMask();
    canvas.restartSelectionTimer();
    canvas.mTransformRecord = floatingRecord(canvas.mSelectionPath->bounds());
    canvas.setNeedsDisplay();
}

} // namespace

void ZPCanvas::copy()
{
    if (!putOnPasteboard(*this)) beep();
}

void ZPCanvas::cut()
{
    // Nothing is taken away that could not be copied.
    if (!putOnPasteboard(*this)) return beep();
    clearSelection();
    selectNone();
    takeSnapshot();
}

void ZPCanvas::paste()
{
    std::shared_ptr<Image> picture = pictureToPaste();
    if (!picture || !mBitmapRep) return beep();
    waitForWorkers(); // a stroke in progress is painted through the mask that goes now
    releaseSelectionMask();
    createSelectionMask();
    mSelectionPath.reset();
    mPasteIntoSelectionPath.reset(); // a plain paste is cut by no earlier selection
    stopSelectionTimer();
    const Size size = picture->size();
    floatPasted(*this, std::move(picture), {{0, 0}, size});
}

void ZPCanvas::pasteInto()
{
    if (!mSelectionPath) return beep();
    std::shared_ptr<Image> picture = pictureToPaste();
    if (!picture || !mBitmapRep) return beep();
    waitForWorkers();
    mPasteIntoSelectionPath = std::exchange(mSelectionPath, std::nullopt);
    releaseSelectionMask();
    createSelectionMask();
    stopSelectionTimer();
    const Rect into = mPasteIntoSelectionPath->bounds();
    const Size size = picture->size();
    floatPasted(*this, std::move(picture),
                makeRect(into.origin.x + into.size.width * 0.5f - size.width * 0.5f,
                         into.origin.y + into.size.height * 0.5f - size.height * 0.5f, size.width, size.height));
}

void ZPCanvas::deleteSelection()
{
    if (!mSelectionPath) return beep();
    clearSelection();
    takeSnapshot();
}

void ZPCanvas::clearSelection()
{
    if (!mSelectionPath || !mBitmapRep) return;
    waitForWorkers();
    clearInside(mBitmapRep->view(), *mSelectionPath);
    setNeedsDisplay();
}

void ZPCanvas::cropToSelection()
{
    if (!mSelectionPath || !mBitmapRep) return beep();
    const Rect box = mSelectionPath->bounds();
    if (!(box.size.width >= kLeastCrop && box.size.height >= kLeastCrop)) return beep();
    finishStroke();
    std::shared_ptr<BitmapRep> cropped = croppedImage(*mBitmapRep, box);
    if (!cropped) return beep();
    releaseSelectionMask();
    installBitmap(std::move(cropped), ImageCacheMode::Default, true, true);
    createSelectionMask();
    mSelectionPath.reset();
    ++mSelectionPathVersion;
    mSelectionImage.reset();
    mPasteIntoSelectionPath.reset(); // an outline of the picture that is gone
    stopSelectionTimer();
    takeSnapshot();
}

void ZPCanvas::makeBGBlack()
{
    if (!mBitmapRep) return;
    waitForWorkers();
    clearTranslucentPixels(mBitmapRep->view());
    setNeedsDisplay();
}

void ZPCanvas::magentaClear()
{
    if (!mBitmapRep) return;
    waitForWorkers();
    clearBlackPixels(mBitmapRep->view());
    setNeedsDisplay();
}
