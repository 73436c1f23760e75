// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture into files.
#include "base/Folders.h"
#include "base/Log.h"
#include "codecs/FileNames.h"
#include "codecs/ImageEncoder.h"
#include "desktop/Panels.h"
#include "document/Document.h"
#include "drawing/BitmapContext.h"
#include "operations/Commands.h"
#include "operations/Files.h"
#include <QCoreApplication>
#include <chrono>
#include <new>

namespace zp
{

namespace
{

constexpr double kJPEGFactor = 0.7;

QString say(const char* text) { return QCoreApplication::translate("Files", text); }

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
std::string write(const BitmapRep& rep, const std::string& path, SaveFormat format)
{
    const std::vector<std::uint8_t> bytes = encoded(rep, format);
    if (bytes.empty())
        return "There is not enough memory to encode the image, or it is too large for this kind of file.";
    std::string error;
    if (writeFileSafely(path, bytes.data(), bytes.size(), &error)) return {};
    return error.empty() ? "The file could not be written." : error;
}

/// What the file that was opened held and the saved one does not.
void logLosses(const BitmapRep& rep)
{
    std::string sentences;
    for (const std::string& warning : rep.properties.warnings) sentences += (sentences.empty() ? "" : " ") + warning;
    if (!sentences.empty()) logLine("saved with losses: %s", sentences.c_str());
}

/// Saves to exactly @p path what the screen shows; a failure is told to the person and leaves image and files as they
/// are.
bool save(Edit& edit, const std::string& path, SaveFormat format)
{
    Document& document = edit.document();
    const std::shared_ptr<const BitmapRep> shown = pictureAsShown(document);
    document.setLastFileError(shown ? write(*shown, path, format) : "There is no image to save.");
    if (document.lastFileError().empty()) {
        logLosses(*shown);
        edit.history().noteSaved(edit.picture());
        return true;
    }
    logLine("could not save %s: %s", path.c_str(), document.lastFileError().c_str());
    edit.refuse(say("The file could not be saved."),
                QString::fromStdString(displayName(lastPathComponent(path)) + ": " + document.lastFileError()));
    return false;
}

/// Makes @p path the image's file and saves there; when that fails the image keeps the file it had.
/// @param exact  written to exactly that path, else with the format's extension
void saveAs(Edit& edit, const std::string& path, SaveFormat format, bool exact = false)
{
    const std::string before = edit.picture().path();
    edit.picture().setPath(path);
    if (!save(edit, exact ? path : writtenPath(path, format), format)) edit.picture().setPath(before);
}

} // namespace

std::shared_ptr<const BitmapRep> pictureAsShown(const Document& document)
{
    const std::shared_ptr<const BitmapRep> picture = document.picture().bitmap();
    const Selection& selection = document.selection();
    if (!picture || !selection.floating()) return picture;
    auto shown = BitmapRep::createUninitialized(picture->pixelsWide(), picture->pixelsHigh());
    if (!shown) throw std::bad_alloc();
    copyPixels(picture->view(), shown->view());
    shown->properties = picture->properties;
    drawFloatingPiece(document, shown->view(), 0, 0);
    return shown;
}

void drawFloatingPiece(const Document& document, BitmapView pixels, int x, int y)
{
    const Selection& selection = document.selection();
    Floating* floating = selection.floating();
    if (!floating || selection.isNil()) return;
    floating->prepareAdjustment(selection.record(), {x, y, x + pixels.width, y + pixels.height});
    BitmapContext context(pixels);
    AffineTransform toPart;
    toPart.translate(-x, -y);
    context.concat(toPart);
    context.addClip(*selection.outline());
    if (selection.pasteInto()) context.addClip(*selection.pasteInto());
    floating->draw(context, selection.record(), document.paint().opacity());
}

void operations::saveImage(Edit& edit, const Arguments&)
{
    const std::string& path = edit.picture().path();
    if (path.empty()) return edit.refuse();
    const SaveFormat format = saveFormatForPath(path);
    switch (format) {
    case SaveFormat::None:
        return;
    case SaveFormat::Photoshop:
        return edit.refuse(say("Cannot save PSD file (Photoshop file)"),
                           say("Choose 'File' > 'Save as TIFF…' or 'File' > 'Save as JPEG…' to save the image in "
                               "another image format."));
    default:
        save(edit, writtenPath(path, format), format);
    }
}

void operations::saveImageAsTIFF(Edit& edit, const Arguments& to) { saveAs(edit, to.path, SaveFormat::TIFF); }

void operations::saveImageAsJPEG(Edit& edit, const Arguments& to) { saveAs(edit, to.path, SaveFormat::JPEG); }

void operations::saveImageAsPNG(Edit& edit, const Arguments& to) { saveAs(edit, to.path, SaveFormat::PNG); }

void operations::saveImageToPath(Edit& edit, const Arguments& to)
{
    if (to.path.empty()) {
        Document& document = edit.document();
        return edit.afterwards([&document] {
            if (const auto path = askWhereToSave(document, SaveFormat::TIFF))
                document.perform("saveImageToPath:", {{}, *path});
        });
    }
    const auto start = std::chrono::steady_clock::now();
    saveAs(edit, to.path, SaveFormat::TIFF);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    logLine("elapsed time: %f", elapsed.count());
}

void operations::quickSave(Edit& edit, const Arguments& to) { saveAs(edit, to.path, SaveFormat::TIFF, true); }

std::optional<std::string> askWhereToSave(const Document& document, SaveFormat format)
{
    const SaveProposal proposal = saveProposal(document.picture().path(), format, homeFolder());
    PanelRequest request;
    request.directory = proposal.folder;
    request.name = proposal.name;
    request.types = {QString::fromLatin1(extensionFor(format))};
    return runSavePanel(std::move(request));
}

Outcome saveThroughPanel(Document& document, SaveFormat format)
{
    document.endGesture();
    const std::optional<std::string> path = askWhereToSave(document, format);
    if (!path) return {Outcome::Refused, {}};
    switch (format) {
    case SaveFormat::JPEG:
        return document.perform("saveImageAsJPEG:", {{}, *path});
    case SaveFormat::PNG:
        return document.perform("saveImageAsPNG:", {{}, *path});
    default:
        return document.perform("saveImageAsTIFF:", {{}, *path});
    }
}

} // namespace zp
