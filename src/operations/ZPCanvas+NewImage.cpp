// SPDX-License-Identifier: GPL-3.0-or-later
/// Blank pictures, and pictures from files.
#include "base/Folders.h"
#include "base/Log.h"
#include "codecs/FileNames.h"
#include "codecs/ImageImporter.h"
#include "codecs/MetadataBlocks.h"
#include "document/Document.h"
#include "operations/Commands.h"
#include "operations/Files.h"
#include <QCoreApplication>
#include <cmath>
#include <new>

namespace zp
{

namespace
{

QString say(const char* text) { return QCoreApplication::translate("Files", text); }

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
        edit.refuse(say("The image would be too large."),
                    say("An image can have up to 30,000 pixels a side and 1,000 megapixels in all."));
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

/// A picture, or none, takes the place of the one there was; its steps begin anew.
void install(Edit& edit, std::shared_ptr<BitmapRep> rep, const Replacement& how)
{
    edit.replacePicture(std::move(rep), how);
    edit.gesture().openPolygon(false);
    edit.history().reset();
}

} // namespace

void operations::newImageWithSize(Edit& edit, const Arguments& arguments)
{
    const Size size{arguments.number(0), arguments.number(1)};
    if (refusesSize(edit, size)) return;
    auto rep = blankBitmap(size);
    if (rep) markAsEdited(rep->properties);
    install(edit, std::move(rep), kBlankPicture);
    edit.wantStep(true);
}

Outcome newPicture(Document& document, Size size)
{
    return document.perform(*document.operation("newImageWithSize:"), [size](Edit& edit) {
        const std::string before = edit.picture().path();
        edit.picture().setPath({}); // before the first step is recorded, which notes it
        operations::newImageWithSize(edit, {{size.width, size.height}, {}});
        if (edit.refused()) edit.picture().setPath(before);
    });
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
    edit.picture().setPath(arguments.path);
    if (arguments.path.empty()) return edit.wantStep(false);
    installOpened(edit, arguments.path, importImageFile(pathWithTildeExpanded(arguments.path)));
}

void installOpened(Edit& edit, const std::string& path, ImportedImage imported)
{
    Document& document = edit.document();
    document.setLastFileError(imported.error);
    const bool opened = imported.bitmap != nullptr;
    if (opened) {
        for (const std::string& warning : imported.bitmap->properties.warnings)
            logLine("opened with losses: %s", warning.c_str());
        markAsEdited(imported.bitmap->properties);
    }
    edit.picture().setPath(path);
    install(edit, std::move(imported.bitmap), kOpenedPicture);
    edit.wantStep(false);
    if (opened)
        edit.history().recordSoon(edit.picture(), QT_TRANSLATE_NOOP("Steps", "Open"));
    else
        edit.refuse(say("The file could not be opened."), whyNotOpened(path, document.lastFileError()));
}

QString whyNotOpened(const std::string& path, const std::string& error)
{
    logLine("could not open %s: %s", path.c_str(), error.c_str());
    return QString::fromStdString(displayName(lastPathComponent(path)) + ": " + error);
}

} // namespace zp
