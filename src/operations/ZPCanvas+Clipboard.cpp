// SPDX-License-Identifier: GPL-3.0-or-later
/// Copy, cut, paste, delete.
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "desktop/Pasteboard.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "operations/Commands.h"
#include "operations/Files.h"
#include "operations/SelectedPixels.h"
#include "selection/FloatingImage.h"
#include <QCoreApplication>
#include <new>

namespace zp
{

namespace
{

/// The canvas's picture, or what of the floating selection its outline lets through. Null when there is nothing.
std::shared_ptr<const BitmapRep> pictureToCopy(Edit& edit)
{
    Selection& selection = edit.selection();
    if (selection.isNil()) return edit.picture().bitmap();
    if (!selection.floating() && !liftSelection(edit)) return nullptr;
    Floating& floating = *selection.floating();
    floating.finishAdjustment();
    floating.logDrawing("");
    const std::shared_ptr<BitmapRep> copy = copyOfFloating(floating.image(), selection.record(), *selection.outline(),
                                                           selection.bounds(), edit.paint().opacity());
    if (!copy && !selection.bounds().isEmpty()) throw std::bad_alloc();
    if (copy && edit.picture().bitmap()) copy->properties = edit.picture().bitmap()->properties;
    return copy;
}

/// @return whether the pasteboard holds it now
bool putOnPasteboard(Edit& edit)
{
    const std::shared_ptr<const BitmapRep> picture = pictureToCopy(edit);
    if (!picture) return false;
    std::vector<std::uint8_t> tiff = encodeTIFF(picture->view(), picture->properties);
    if (tiff.empty()) throw std::bad_alloc();
    Pasteboard::general().setTIFF(std::move(tiff));
    return true;
}

/// The pasteboard's picture, ready to float; null when there is none that can be read. @param why  becomes a sentence
std::shared_ptr<Image> pictureToPaste(std::string& why)
{
    why = QCoreApplication::translate("Clipboard", "The clipboard's image cannot be read.").toStdString();
    const std::vector<std::uint8_t> data = Pasteboard::general().imageData(&why);
    if (data.empty()) return nullptr;
    const ImportedImage imported = importImage(data);
    if (!imported.bitmap) {
        why = imported.error;
        return nullptr;
    }
    // One pixel of the pasted picture is one of the image, whatever resolution it speaks of.
    auto image =
        std::make_shared<Image>(Size{float(imported.bitmap->pixelsWide()), float(imported.bitmap->pixelsHigh())});
    image->setFlipped(true);
    image->add(imported.bitmap);
    return image;
}

void place(Edit& edit, bool into)
{
    std::string why;
    std::shared_ptr<Image> picture = pictureToPaste(why);
    if (!picture || !edit.picture().bitmap())
        return edit.refuse(QCoreApplication::translate("Clipboard", "Nothing could be pasted."),
                           QString::fromStdString(why));
    const Size size = picture->size();
    Rect box{{0, 0}, size};
    if (into) {
        const Rect target = edit.selection().bounds();
        box = makeRect(target.origin.x + target.size.width * 0.5f - size.width * 0.5f,
                       target.origin.y + target.size.height * 0.5f - size.height * 0.5f, size.width, size.height);
    }
    edit.selection().place(std::move(picture), box, into);
    edit.reveal(box);
    edit.gesture().openPolygon(false);
    edit.redraw();
}

} // namespace

void operations::copy(Edit& edit, const Arguments&)
{
    if (!putOnPasteboard(edit)) edit.refuse();
}

void operations::cut(Edit& edit, const Arguments& none)
{
    // Nothing is taken away that could not be copied.
    if (!putOnPasteboard(edit)) return edit.refuse();
    // A piece that was moved or pasted is itself what is cut; below it the picture stays.
    if (!edit.selection().floating()->isChanged()) clearInsideSelection(edit);
    selectNone(edit, none);
}

void operations::paste(Edit& edit, const Arguments&) { place(edit, false); }

void operations::pasteInto(Edit& edit, const Arguments&) { place(edit, true); }

void operations::deleteSelection(Edit& edit, const Arguments&)
{
    Selection& selection = edit.selection();
    const Floating* floating = selection.floating();
    const bool pieceOfItsOwn = floating && floating->isChanged();
    selection.letGo();
    if (!pieceOfItsOwn) clearInsideSelection(edit);
    edit.redraw();
}

std::shared_ptr<const BitmapRep> selectedPicture(const Document& document)
{
    const Selection& selection = document.selection();
    const Picture& picture = document.picture();
    if (selection.isNil()) return picture.bitmap();
    const Rect box = selection.bounds();
    if (const Floating* floating = selection.floating())
        return copyOfFloating(floating->image(), selection.record(), *selection.outline(), box,
                              document.paint().opacity());
    const std::shared_ptr<Image> lifted = picture.bitmap() ? liftFloatingImage(picture.pixels(), box) : nullptr;
    return lifted ? copyOfFloating(*lifted, floatingRecord(box), *selection.outline(), box, 1) : nullptr;
}

void clearInsideSelection(Edit& edit)
{
    if (edit.selection().isNil() || !edit.picture().bitmap()) return;
    const Rect box = edit.selection().bounds().inset(-1);
    clearInside(edit.write(pixelBoxOf(box, edit.picture().width(), edit.picture().height())),
                *edit.selection().outline());
}

void operations::clearSelection(Edit& edit, const Arguments&)
{
    clearInsideSelection(edit);
    if (Floating* floating = edit.selection().floating()) floating->markChanged(); // alone with its pixels now
}

} // namespace zp
