// SPDX-License-Identifier: GPL-3.0-or-later
/// The picture into files.
#include "base/Folders.h"
#include "base/Log.h"
#include "base/Translation.h"
#include "codecs/FileNames.h"
#include "codecs/ImageEncoder.h"
#include "codecs/LossyWriter.h"
#include "codecs/PrivateData.h"
#include "desktop/Panels.h"
#include "desktop/Settings.h"
#include "document/Document.h"
#include "document/History.h"
#include "document/Paint.h"
#include "document/Picture.h"
#include "document/Selection.h"
#include "drawing/BitmapContext.h"
#include "operations/Commands.h"
#include "operations/Files.h"
#include <QCoreApplication>
#include <QLocale>
#include <chrono>
#include <new>

namespace zp
{

namespace
{

/// @param quality  of a JPEG or WebP file
std::vector<std::uint8_t> encoded(ConstBitmapView pixels, const ImageProperties& properties, SaveFormat format,
                                  int quality)
{
    switch (format) {
    case SaveFormat::TIFF:
        return encodeTIFF(pixels, properties, {.lzw = true});
    case SaveFormat::JPEG:
        return encodeJPEG(pixels, properties, {.factor = quality / 100.0, .fallbackBackground = kWhite});
    case SaveFormat::PNG:
        return encodePNG(pixels, properties);
    case SaveFormat::WebP: {
        std::string error;
        const auto writer = LossyWriter::make(format, pixels, properties, error);
        return writer ? writer->write(quality, {}) : std::vector<std::uint8_t>();
    }
    default:
        return {};
    }
}

/// Writes to exactly @p path. @return why it failed, empty when it did not
std::string write(const std::vector<std::uint8_t>& bytes, const std::string& path)
{
    if (bytes.empty())
        return translated("Files",
                          "There is not enough memory to encode the image, or it is too large for this kind of file.");
    std::string error;
    if (writeFileSafely(path, bytes.data(), bytes.size(), &error)) return {};
    return error.empty() ? translated("Files", "The file could not be written.") : error;
}

/// What the file that was opened held and the saved one does not.
void logLosses(const ImageProperties& properties)
{
    std::string sentences;
    for (const std::string& warning : properties.warnings) sentences += (sentences.empty() ? "" : " ") + warning;
    if (!sentences.empty()) logLine("saved with losses: %s", sentences.c_str());
}

constexpr const char* kSavedFolders = "savedFolders";

void rememberFolder(const std::string& folder)
{
    constexpr int kFolders = 20;
    // Percent-encoded bytes: names that are not UTF-8 survive.
    const QString entry = QString::fromLatin1(QByteArray::fromStdString(folder).toPercentEncoding("/"));
    QStringList folders = settings().value(kSavedFolders).toStringList();
    if (!folders.isEmpty() && folders.constFirst() == entry) return;
    folders.removeAll(entry);
    folders.prepend(entry);
    while (folders.size() > kFolders) folders.removeLast();
    settings().setValue(kSavedFolders, folders);
    settings().save(); // it may be killed while it writes the picture
}

/// Writes to exactly @p path and says so; a failure is told to the person and leaves image and files as they are.
bool writeAndTell(Edit& edit, const BitmapRep& shown, const ImageProperties& properties, const std::string& path,
                  SaveFormat format, int quality)
{
    return writeAndTell(edit, encoded(shown.view(), properties, format, quality), properties, path,
                        formatTitle(format, quality));
}

/// Saves to exactly @p path what the screen shows.
bool save(Edit& edit, const std::string& path, SaveFormat format, int quality)
{
    const std::shared_ptr<const BitmapRep> shown = pictureAsShown(edit.document());
    if (!shown) {
        edit.document().setLastFileError(translated("Files", "There is no image to save."));
        edit.refuse(FileTexts::tr("The file could not be saved."),
                    QString::fromStdString(edit.document().lastFileError()));
        return false;
    }
    if (!writeAndTell(edit, *shown, shown->properties, path, format, quality)) return false;
    edit.picture().setJPEGQuality(path, quality);
    edit.history().noteSaved(edit.picture());
    if (path == edit.picture().path()) edit.document().dropNoticesOfFile(); // the file holds what the screen shows now
    return true;
}

/// Makes @p path the image's file and saves there; when that fails the image keeps the file it had.
/// @param exact  written to exactly that path, else with the format's extension
void saveAs(Edit& edit, const Arguments& to, SaveFormat format, bool exact = false)
{
    const std::string& path = to.path;
    const int quality = to.numbers.empty() ? kJPEGQuality : int(to.numbers[0]);
    const std::string before = edit.picture().path();
    edit.picture().setPath(path);
    if (!save(edit, exact ? path : writtenPath(path, format), format, quality))
        edit.picture().setPath(before);
    else if (path != before)
        edit.document().dropNoticesOfFile(); // what was said of the old file is over
}

} // namespace

QString formatTitle(SaveFormat format, int quality)
{
    switch (format) {
    case SaveFormat::TIFF:
        return QStringLiteral("TIFF");
    case SaveFormat::JPEG:
        return QString("JPEG %1").arg(quality);
    case SaveFormat::WebP:
        return QString("WebP %1").arg(quality);
    default:
        return QStringLiteral("PNG");
    }
}

QString sizeTitle(std::size_t bytes)
{
    constexpr double kKilo = 1024, kMostKilobytes = 2000;
    const double kilobytes = double(bytes) / kKilo;
    if (kilobytes < 1) return FileTexts::tr("%n bytes", nullptr, int(bytes));
    if (kilobytes <= kMostKilobytes) return FileTexts::tr("%1 KB").arg(qRound64(kilobytes));
    return FileTexts::tr("%1 MB").arg(QLocale().toString(kilobytes / kKilo, 'f', 1));
}

bool tellNotSaved(Edit& edit, const std::string& path)
{
    Document& document = edit.document();
    logLine("could not save %s: %s", path.c_str(), document.lastFileError().c_str());
    const QString why = QString::fromStdString(displayName(lastPathComponent(path))) + ": " +
                        QString::fromStdString(document.lastFileError());
    document.say(FileTexts::tr("Not saved: %1").arg(why));
    edit.refuse(FileTexts::tr("The file could not be saved."), why);
    return false;
}

bool writeAndTell(Edit& edit, const std::vector<std::uint8_t>& bytes, const ImageProperties& properties,
                  const std::string& path, const QString& title)
{
    Document& document = edit.document();
    rememberFolder(folderOfPath(path));
    document.setLastFileError(write(bytes, path));
    if (!document.lastFileError().empty()) return tellNotSaved(edit, path);
    logLosses(properties);
    edit.picture().noteWritten(path);
    const QString name = QString::fromStdString(displayName(lastPathComponent(path)));
    document.say(FileTexts::tr("Saved %1 · %2 · %3").arg(name, title, sizeTitle(bytes.size())));
    return true;
}

std::vector<std::string> foldersSavedTo()
{
    std::vector<std::string> folders;
    for (const QString& entry : settings().value(kSavedFolders).toStringList())
        folders.push_back(QByteArray::fromPercentEncoding(entry.toLatin1()).toStdString());
    return folders;
}

std::shared_ptr<const BitmapRep> pictureAsShown(const Document& document)
{
    return document.selection().floating() ? copyAsShown(document) : document.picture().bitmap();
}

std::shared_ptr<const BitmapRep> copyAsShown(const Document& document)
{
    const std::shared_ptr<const BitmapRep> picture = document.picture().bitmap();
    if (!picture) return nullptr;
    auto shown = copyOf(*picture);
    if (!shown) throw std::bad_alloc();
    drawFloatingPiece(document, shown->view(), 0, 0);
    return shown;
}

namespace
{

/// The context's coordinates are the picture's from here on, cut to the piece's outline and to what it is pasted into.
void clipToPiece(BitmapContext& context, const Selection& selection, const AffineTransform& toPixels)
{
    context.concat(toPixels);
    context.addClip(*selection.outline());
    if (selection.pasteInto()) context.addClip(*selection.pasteInto());
}

} // namespace

void drawFloatingPiece(const Document& document, BitmapView pixels, int x, int y)
{
    const Selection& selection = document.selection();
    Floating* floating = selection.floating();
    if (!floating || selection.isNil()) return;
    floating->prepareAdjustment(selection.record(), {x, y, x + pixels.width, y + pixels.height});
    AffineTransform toPart;
    toPart.translate(-x, -y);
    BitmapContext context(pixels);
    clipToPiece(context, selection, toPart);
    floating->draw(context, selection.record(), document.paint().opacity());
}

void drawFloatingPieceReduced(const Document& document, BitmapView pixels, int x, int y, double scale)
{
    const Selection& selection = document.selection();
    Floating* floating = selection.floating();
    if (!floating || selection.isNil()) return;
    floating->finishAdjustment();
    AffineTransform toDevice;
    toDevice.translate(-x, -y);
    toDevice.scale(scale, scale);
    BitmapContext context(pixels);
    clipToPiece(context, selection, toDevice);
    floating->drawReduced(context, selection.record(), document.paint().opacity());
}

void operations::saveImage(Edit& edit, const Arguments&)
{
    const std::string& path = edit.picture().path();
    if (path.empty()) return edit.refuse();
    const SaveFormat format = saveFormatForPath(path);
    switch (format) {
    case SaveFormat::None:
        // Without a word that has to be answered: the bar over the picture has said it at opening.
        return edit.document().say(
            FileTexts::tr("Not saved: %1").arg(FileTexts::tr("Save does not write files of this name.")));
    case SaveFormat::Photoshop:
        return edit.refuse(
            FileTexts::tr("Cannot save PSD file (Photoshop file)"),
            FileTexts::tr("Choose 'File' > 'Save as TIFF…' or 'File' > 'Save as JPEG…' to save the image in "
                          "another image format."));
    default:
        break;
    }
    Document& document = edit.document();
    const std::string target = writtenPath(path, format);
    if (!mustAskToWrite(document, target)) {
        save(edit, target, format, edit.picture().jpegQualityFor(target));
        return;
    }
    edit.afterwards([&document, target, format] {
        switch (askToWrite(document, target)) {
        case Permission::Save:
            document.perform("saveImageAsAsked");
            break;
        case Permission::SaveAs:
            saveThroughPanel(document, format);
            break;
        case Permission::Cancel:
            break;
        }
    });
}

void operations::saveImageAsAsked(Edit& edit, const Arguments&)
{
    const SaveFormat format = saveFormatForPath(edit.picture().path());
    const std::string target = writtenPath(edit.picture().path(), format);
    edit.picture().acceptLoss();
    save(edit, target, format, edit.picture().jpegQualityFor(target));
}

void operations::saveImageAsTIFF(Edit& edit, const Arguments& to) { saveAs(edit, to, SaveFormat::TIFF); }

void operations::saveImageAsJPEG(Edit& edit, const Arguments& to) { saveAs(edit, to, SaveFormat::JPEG); }

void operations::saveImageAsPNG(Edit& edit, const Arguments& to) { saveAs(edit, to, SaveFormat::PNG); }

void operations::saveImageToPath(Edit& edit, const Arguments& to)
{
    if (to.path.empty()) {
        Document& document = edit.document();
        return edit.afterwards([&document] {
            if (const auto answer = askWhereToSave(document, SaveFormat::TIFF))
                document.perform("saveImageToPath:", {{}, answer->path});
        });
    }
    const auto start = std::chrono::steady_clock::now();
    saveAs(edit, to, SaveFormat::TIFF);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    logLine("elapsed time: %f", elapsed.count());
}

void operations::saveWithoutPrivateData(Edit& edit, const Arguments& to)
{
    const SaveFormat format = formatOfExtension(pathExtension(to.path));
    const std::shared_ptr<const BitmapRep> shown = pictureAsShown(edit.document());
    if (format == SaveFormat::None || !shown) return edit.refuse();
    ImageProperties properties = shown->properties;
    removePrivateData(properties);
    writeAndTell(edit, *shown, properties, to.path, format, to.numbers.empty() ? kJPEGQuality : int(to.numbers[0]));
}

void operations::quickSave(Edit& edit, const Arguments& to) { saveAs(edit, to, SaveFormat::TIFF, true); }

} // namespace zp
