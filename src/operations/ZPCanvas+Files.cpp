// SPDX-License-Identifier: GPL-3.0-or-later
/// New images, opening and saving.
#include "base/Folders.h"
#include "base/Log.h"
#include "canvas/ZPCanvas.h"
#include "codecs/FileNames.h"
#include "codecs/ImageEncoder.h"
#include "codecs/ImageImporter.h"
#include "codecs/MetadataBlocks.h"
#include "desktop/Desktop.h"
#include "desktop/Panels.h"
#include "desktop/Sounds.h"
#include <QDesktopServices>
#include <QLabel>
#include <chrono>

using namespace zp;

namespace
{

constexpr double kJPEGFactor = 0.7;

void markAsEdited(ImageProperties& properties)
{
    properties.userComment = kEditedComment;
    logLine("newExif: %s", exifDescription(properties).c_str());
}

std::vector<std::uint8_t> encoded(const BitmapRep& rep, SaveFormat format)
{
    switch (format) {
    case SaveFormat::TIFF:
        return encodeTIFF(rep.view(), rep.properties, {.lzw = true});
    case SaveFormat::JPEG:
        return encodeJPEG(rep.view(), rep.properties, {.factor = kJPEGFactor, .fallbackBackground = kWhite});
    case SaveFormat::PNG:
        return encodePNG(rep.view(), rep.properties);
    default:
        return {};
    }
}

/// Writes to exactly @p path. @return why it failed, empty when it did not
std::string write(const ZPCanvas& canvas, const std::string& path, SaveFormat format)
{
    const std::vector<std::uint8_t> bytes = encoded(*canvas.mBitmapRep, format);
    if (bytes.empty())
        return "There is not enough memory to encode the image, or it is too large for this kind of file.";
    std::string error;
    if (writeFileSafely(path, bytes.data(), bytes.size(), &error)) return {};
    return error.empty() ? "The file could not be written." : error;
}

/// What the file that was opened held and the saved one does not: said where it disturbs nobody.
void tellWhatWasLost(ZPCanvas& canvas)
{
    if (canvas.mBitmapRep->properties.warnings.empty()) return;
    std::string sentences;
    for (const std::string& warning : canvas.mBitmapRep->properties.warnings)
        sentences += (sentences.empty() ? "" : " ") + warning;
    logLine("saved with losses: %s", sentences.c_str());
    if (canvas.mInfoField) canvas.mInfoField->setText(QString::fromStdString(sentences));
}

/// Saves to exactly @p path; a failure is told to the person and leaves image and files as they are.
bool save(ZPCanvas& canvas, const std::string& path, SaveFormat format)
{
    canvas.mLastFileError = canvas.mBitmapRep ? write(canvas, path, format) : "There is no image to save.";
    if (canvas.mLastFileError.empty()) {
        tellWhatWasLost(canvas);
        return true;
    }
    logLine("could not save %s: %s", path.c_str(), canvas.mLastFileError.c_str());
    runAlert(ZPCanvas::tr("The file could not be saved."),
             QString::fromStdString(displayName(lastPathComponent(path)) + ": " + canvas.mLastFileError),
             {ZPCanvas::tr("OK")});
    return false;
}

/// Makes @p path the image's file and saves there; when that fails the image keeps the file it had.
/// @param path   by value: the caller may hand over the canvas's own path, which changes here
/// @param exact  written to exactly that path, else with the format's extension
void saveAs(ZPCanvas& canvas, std::string path, SaveFormat format, bool exact = false)
{
    const std::string target = exact ? path : writtenPath(path, format);
    const std::string before = std::exchange(canvas.mImagePath, std::move(path));
    if (!save(canvas, target, format)) canvas.mImagePath = before;
}

std::optional<std::string> askWhereToSave(const ZPCanvas& canvas, SaveFormat format)
{
    const SaveProposal proposal = saveProposal(canvas.mImagePath, format, homeFolder());
    PanelRequest request;
    request.directory = proposal.folder;
    request.name = proposal.name;
    request.types = {QString::fromLatin1(extensionFor(format))};
    return runSavePanel(std::move(request));
}

/// A new mask of the image's size, no outline, no ants.
void resetSelection(ZPCanvas& canvas)
{
    canvas.releaseSelectionMask();
    canvas.createSelectionMask();
    canvas.mAuxSelectionPath.reset();
    canvas.mSelectionPath.reset();
    ++canvas.mSelectionPathVersion;
    canvas.stopSelectionTimer();
}

/// A size beyond all bounds would only throw the present image away: it is refused with a word. No size at all makes
/// the empty image.
bool refusesAsTooLarge(Size size)
{
    const bool tooLarge = !std::isfinite(size.width) || !std::isfinite(size.height) ||
                          size.width > float(kMaxPixelsPerSide) || size.height > float(kMaxPixelsPerSide) ||
                          double(size.width) * double(size.height) > double(kMaxPixels);
    if (tooLarge)
        runAlert(ZPCanvas::tr("The image would be too large."),
                 ZPCanvas::tr("An image can have up to 30,000 pixels a side and 1,000 megapixels in all."),
                 {ZPCanvas::tr("OK")});
    return tooLarge || size.width < float(-kMaxPixelsPerSide) || size.height < float(-kMaxPixelsPerSide);
}

} // namespace

void ZPCanvas::newImageWithSize(Size size)
{
    if (refusesAsTooLarge(size)) return;
    auto rep = BitmapRep::create(int(size.width), int(size.height));
    if (rep) markAsEdited(rep->properties);
    installBitmap(std::move(rep), ImageCacheMode::Default, true, false);
    resetSelection(*this);
    mSelectionImage.reset();
    resetUndo();
    showSelectionInfo();
    takeSnapshot();
}

void ZPCanvas::newImageForMeWithSize(Size size)
{
    if (refusesAsTooLarge(size)) return;
    installBitmap(BitmapRep::create(int(size.width), int(size.height)), ImageCacheMode::Never, true, false);
    resetSelection(*this);
    mSelectionImage.reset();
}

void ZPCanvas::setImagePath(const std::string& path)
{
    mImagePath = path;
    if (!mImagePath.empty()) openIt(std::string(path)); // a copy: the caller may have passed a field of ours
}

void ZPCanvas::openIt(const std::string& path)
{
    const std::string expanded = pathWithTildeExpanded(path);
    ImportedImage imported = importImageFile(expanded);
    mLastFileError = imported.error;
    const bool opened = imported.bitmap != nullptr;
    if (opened) {
        for (const std::string& warning : imported.bitmap->properties.warnings)
            logLine("opened with losses: %s", warning.c_str());
        markAsEdited(imported.bitmap->properties);
    } else {
        logLine("could not open %s: %s", expanded.c_str(), mLastFileError.c_str());
    }
    installBitmap(std::move(imported.bitmap), ImageCacheMode::Never, false, true, false);
    mOpenedPath = path;
    resetSelection(*this);
    resetUndo();
    showSelectionInfo();
    if (opened) {
        scheduleFirstSnapshot();
        return;
    }
    runAlert(tr("The file could not be opened."),
             QString::fromStdString(displayName(lastPathComponent(expanded)) + ": " + mLastFileError), {tr("OK")});
}

void ZPCanvas::saveImage()
{
    if (mImagePath.empty()) return beep();
    const SaveFormat format = saveFormatForPath(mImagePath);
    switch (format) {
    case SaveFormat::None:
        return;
    case SaveFormat::Photoshop:
        runAlert(tr("Cannot save PSD file (Photoshop file)"),
                 tr("Choose 'File' > 'Save as TIFF…' or 'File' > 'Save as JPEG…' to save the image in another image "
                    "format."),
                 {tr("OK")});
        return;
    default:
        save(*this, writtenPath(mImagePath, format), format);
    }
}

void ZPCanvas::saveImageAsTIFF()
{
    if (const auto path = askWhereToSave(*this, SaveFormat::TIFF)) saveImageAsTIFF(*path);
}

void ZPCanvas::saveImageAsJPEG()
{
    if (const auto path = askWhereToSave(*this, SaveFormat::JPEG)) saveImageAsJPEG(*path);
}

void ZPCanvas::saveImageAsTIFF(const std::string& path) { saveAs(*this, path, SaveFormat::TIFF); }

void ZPCanvas::saveImageAsJPEG(const std::string& path) { saveAs(*this, path, SaveFormat::JPEG); }

void ZPCanvas::saveImageAsPNG()
{
    if (const auto path = askWhereToSave(*this, SaveFormat::PNG)) saveImageAsPNG(*path);
}

void ZPCanvas::saveImageAsPNG(const std::string& path) { saveAs(*this, path, SaveFormat::PNG); }

void ZPCanvas::saveImageToPath(const std::string& path)
{
    std::string chosen = path;
    if (chosen.empty()) {
        const auto asked = askWhereToSave(*this, SaveFormat::TIFF);
        if (!asked) return;
        chosen = *asked;
    }
    const auto start = std::chrono::steady_clock::now();
    saveImageAsTIFF(chosen);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    logLine("elapsed time: %f", elapsed.count());
}

void ZPCanvas::quickSave(const std::string& path) { saveAs(*this, path, SaveFormat::TIFF, true); }

void ZPCanvas::openWithPreview()
{
    if (imagePathNil() || !QDesktopServices::openUrl(urlFromPath(mImagePath))) beep();
}
