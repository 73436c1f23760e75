// SPDX-License-Identifier: GPL-3.0-or-later
/// What opening and saving share: panels, the picture as the screen shows it, sentences.
#pragma once
#include "base/BitmapRep.h"
#include "base/Folders.h"
#include "base/Geometry.h"
#include "codecs/FileNames.h"
#include "codecs/ImageImporter.h"
#include "desktop/Panels.h"
#include "document/Command.h"
#include <QCoreApplication>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zp
{

class Document;
class Edit;
struct SizedFile;

/// Gives the sentences about files their place among the translations.
struct FileTexts {
    Q_DECLARE_TR_FUNCTIONS(Files)
};

/// A blank picture that has no file yet. Refused with a word when there is no memory for it or it would be too large.
Outcome newPicture(Document& document, Size size);
/// A file read before anything of the document is touched.
struct OpenedFile {
    std::string path;
    std::optional<FileStamp> stamp;
    ImportedImage image;
};
OpenedFile readForOpening(const std::string& path);
/// The file becomes the picture; one that could not be read is told of and gives the empty picture.
void installOpened(Edit& edit, OpenedFile file);
/// Reads the file and makes it the picture. When that fails, everything stays as it is, and the person is told.
/// Runs events.
Outcome openPicture(Document& document, const std::string& path);
/// Says in the bar over the picture what its file holds that the picture does not, and which command saves it.
void noticeWhatFileHolds(Document& document);
/// "name: why", for an alert; the path goes into the log.
QString whyNotOpened(const std::string& path, const std::string& error);

/// Asks for a file and saves there. Runs events.
Outcome saveThroughPanel(Document& document, SaveFormat format);
/// The same for a copy without place, device and names, in the kind of file that the picture's is. Runs events.
Outcome saveCopyWithoutPrivateData(Document& document);
/// Asks what a copy is to be called and writes the found file there; the picture keeps its own. Runs events.
Outcome saveSizedCopy(Document& document, SaveFormat format, const SizedFile& found);
/// The one save panel, with the name that the picture's file proposes. Runs events.
std::optional<SaveAnswer> askWhereToSave(const Document& document, SaveFormat format);
enum class Permission { Save, SaveAs, Cancel };
/// Whether writing @p path has to be asked about: another file than those the picture was read from or written to, one
/// that was changed since, or one that holds more than the picture.
bool mustAskToWrite(const Document& document, const std::string& path);
/// Asks all that has to be asked. Runs events.
Permission askToWrite(Document& document, const std::string& path);
/// The same for a name that a panel has asked about itself: only what the panel cannot know.
Permission askToTakeFromPanel(Document& document, const std::string& path);

/// Where this person's pictures were saved lately; what a killed program left there can be removed.
std::vector<std::string> foldersSavedTo();

/// "JPEG 70": what is written, as the person is told.
QString formatTitle(SaveFormat format, int quality);
/// In the units of the dialogs: 1024 bytes are a kilobyte, large files are in megabytes.
QString sizeTitle(std::size_t bytes);
/// Writes to exactly @p path and says so; a failure is told to the person and leaves image and files as they are.
/// @param bytes  the whole file; empty: it could not be encoded. @param title  the kind, as the person is told
/// @return whether it was written
bool writeAndTell(Edit& edit, const std::vector<std::uint8_t>& bytes, const ImageProperties& properties,
                  const std::string& path, const QString& title);
/// Says the document's last file error, as that of saving there. @return false
bool tellNotSaved(Edit& edit, const std::string& path);

/// The picture with the floating piece in its place; the picture itself when nothing floats. Null without a picture.
/// @throws std::bad_alloc
std::shared_ptr<const BitmapRep> pictureAsShown(const Document& document);
/// The same in a bitmap of its own, which nobody writes any more.
std::shared_ptr<const BitmapRep> copyAsShown(const Document& document);
/// What Copy would hand over: the selected pixels, or the whole picture without a selection; nothing is lifted for it.
/// Null when there is nothing.
std::shared_ptr<const BitmapRep> selectedPicture(const Document& document);
/// Draws the floating piece into @p pixels, whose corner is the picture's pixel (x, y), as anchoring would.
void drawFloatingPiece(const Document& document, BitmapView pixels, int x, int y);
/// The same for a picture of the screen: @p pixels are the device pixels from (x, y) on, @p scale of them an image
/// pixel and at most a half. Costs the device pixels.
void drawFloatingPieceReduced(const Document& document, BitmapView pixels, int x, int y, double scale);

} // namespace zp
