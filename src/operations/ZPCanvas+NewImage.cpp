// SPDX-License-Identifier: GPL-3.0-or-later
/// Blank pictures, and pictures from files.
#include "base/Folders.h"
#include "base/Log.h"
#include "codecs/FileNames.h"
#include "codecs/ImageImporter.h"
#include "codecs/MetadataBlocks.h"
#include "document/Document.h"
#include "document/Gesture.h"
#include "document/History.h"
#include "document/Picture.h"
#include "document/Shelf.h"
#include "operations/Commands.h"
#include "operations/Files.h"
#include "operations/Recovery.h"
#include <QCoreApplication>
#include <cmath>
#include <new>

namespace zp
{

namespace
{

void markAsEdited(ImageProperties& properties)
{
    properties.userComment = kEditedComment;
    logLine("newExif: %s", exifDescription(properties).c_str());
}

/// A size beyond all bounds would only throw the present image away: it is refused with a word. No size at all makes
/// the empty image.
bool refusesSize(Edit& edit, Size size)
{
    const bool tooLarge = !std::isfinite(size.width) || !std::isfinite(size.height) ||
                          size.width > float(kMaxPixelsPerSide) || size.height > float(kMaxPixelsPerSide) ||
                          double(size.width) * double(size.height) > double(kMaxPixels);
    if (tooLarge)
        edit.refuse(FileTexts::tr("The image would be too large."),
                    FileTexts::tr("An image can have up to 30,000 pixels a side and 1,000 megapixels in all."));
    return tooLarge || size.width < float(-kMaxPixelsPerSide) || size.height < float(-kMaxPixelsPerSide);
}

/// @return null for a size of nothing. @throws std::bad_alloc
std::shared_ptr<BitmapRep> blankBitmap(Size size)
{
    const int width = int(size.width), height = int(size.height);
    auto rep = BitmapRep::create(width, height);
    if (!rep && width > 0 && height > 0) throw std::bad_alloc();
    return rep;
}

/// A picture, or none, takes the place of the one there was, which is kept; its steps begin anew.
void install(Edit& edit, std::shared_ptr<BitmapRep> rep, const std::string& path, const Replacement& how)
{
    shelvePicture(edit);
    edit.shelf().opened();
    edit.replacePicture(std::move(rep), how);
    edit.picture().setPath(path);
    edit.gesture().openPolygon(false);
    edit.history().reset();
    edit.picture().setFiles({});
    edit.document().dropNoticesOfFile();
    edit.document().say({});
}

void installBlank(Edit& edit, Size size, const std::string& path)
{
    if (refusesSize(edit, size)) return;
    auto rep = blankBitmap(size);
    if (rep) markAsEdited(rep->properties);
    install(edit, std::move(rep), path, kBlankPicture);
    edit.wantStep(true);
}

} // namespace

void operations::newImageWithSize(Edit& edit, const Arguments& arguments)
{
    installBlank(edit, {arguments.number(0), arguments.number(1)}, std::string(edit.picture().path()));
}

Outcome newPicture(Document& document, Size size)
{
    return document.perform(*document.operation("newImageWithSize:"),
                            [size](Edit& edit) { installBlank(edit, size, {}); });
}

void operations::newImageForMeWithSize(Edit& edit, const Arguments& arguments)
{
    const Size size{arguments.number(0), arguments.number(1)};
    if (refusesSize(edit, size)) return;
    edit.replacePicture(blankBitmap(size), kInternalPicture);
    edit.gesture().openPolygon(false);
    edit.wantStep(false);
}

void operations::setImagePath(Edit& edit, const Arguments& arguments)
{
    if (arguments.path.empty()) {
        edit.picture().setPath({});
        return edit.wantStep(false);
    }
    installOpened(edit, readForOpening(arguments.path));
}

OpenedFile readForOpening(const std::string& path)
{
    const std::string file = pathWithTildeExpanded(path);
    // Before it is read: what somebody writes meanwhile is a change since.
    const std::optional<FileStamp> stamp = fileStamp(file);
    return {path, stamp, importImageFile(file)};
}

void installOpened(Edit& edit, OpenedFile file)
{
    auto& [path, stamp, imported] = file;
    Document& document = edit.document();
    document.setLastFileError(imported.error);
    const bool opened = imported.bitmap != nullptr;
    if (opened) {
        for (const std::string& warning : imported.bitmap->properties.warnings)
            logLine("opened with losses: %s", warning.c_str());
        markAsEdited(imported.bitmap->properties);
    }
    install(edit, std::move(imported.bitmap), path, kOpenedPicture);
    edit.wantStep(false);
    if (opened) {
        PictureFiles files;
        files.opened = path;
        files.facts = imported.facts;
        if (stamp) files.stamps[path] = *stamp;
        edit.picture().setFiles(std::move(files));
        edit.history().recordSoon(edit.picture(), QT_TRANSLATE_NOOP("Steps", "Open"));
        noticeWhatFileHolds(document);
    } else
        edit.refuse(FileTexts::tr("The file could not be opened."), whyNotOpened(path, document.lastFileError()));
}

QString whyNotOpened(const std::string& path, const std::string& error)
{
    logLine("could not open %s: %s", path.c_str(), error.c_str());
    return QString::fromStdString(displayName(lastPathComponent(path)) + ": " + error);
}

} // namespace zp
