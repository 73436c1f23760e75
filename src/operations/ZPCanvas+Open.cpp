// SPDX-License-Identifier: GPL-3.0-or-later
/// A file becomes the picture, and the person learns what of it did not.
#include "base/Folders.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/Files.h"
#include <QCoreApplication>
#include <algorithm>
#include <cctype>

namespace zp
{

namespace
{

/// The command that writes what Save does not.
struct SaveCommand {
    const char *button, *action;
};
constexpr SaveCommand kAsTIFF{QT_TRANSLATE_NOOP("Files", "Use Save as TIFF…"), "saveAsTIFF:"},
    kAsJPEG{QT_TRANSLATE_NOOP("Files", "Use Save as JPEG…"), "saveAsJPEG:"},
    kAsPNG{QT_TRANSLATE_NOOP("Files", "Use Save as PNG…"), "saveAsPNG:"};

/// For a file of that extension: the same kind where it is written, else the one that keeps everything.
const SaveCommand& commandFor(std::string extension)
{
    std::ranges::transform(extension, extension.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    for (const char* jpeg : {"jpg", "jpeg", "jpe", "jfif"})
        if (extension == jpeg) return kAsJPEG;
    return extension == "png" ? kAsPNG : kAsTIFF;
}

QString notWrittenBySave(const std::string& extension)
{
    if (extension.empty()) return FileTexts::tr("Save does not write files whose names have no extension.");
    return FileTexts::tr("Save does not write .%1 files.").arg(QString::fromStdString(displayName(extension)));
}

} // namespace

Outcome openPicture(Document& document, const std::string& path)
{
    static constexpr Command kOpen{.action = "open", .effect = Effect::Replace, .begins = true};
    document.endGesture(); // whatever becomes of the file: a hand that opens one has let go
    OpenedFile file = readForOpening(path);
    if (file.image.bitmap)
        return document.perform(kOpen, [&file](Edit& edit) { installOpened(edit, std::move(file)); });
    document.setLastFileError(file.image.error);
    const QString why = whyNotOpened(path, file.image.error);
    document.say(FileTexts::tr("Not opened: %1").arg(why));
    runAlert(FileTexts::tr("The file could not be opened."), why, {FileTexts::tr("OK")});
    return {Outcome::Failed, why};
}

void noticeWhatFileHolds(Document& document)
{
    const Picture& picture = document.picture();
    PictureFacts facts = picture.files().facts;
    const SaveFormat format = saveFormatForPath(picture.path());
    // Only then is the quality what Save would write.
    if (format != SaveFormat::JPEG) facts.jpegQuality = 0;
    QStringList sentences;
    for (const std::string& sentence : noticesOf(facts, kJPEGQuality)) sentences << QString::fromStdString(sentence);
    Notice notice;
    notice.ofPicture = true;
    const auto offer = [&notice](const SaveCommand& command) {
        notice.button = FileTexts::tr(command.button);
        notice.action = command.action;
    };
    if (facts.jpegQuality > kJPEGQuality) offer(kAsJPEG);
    if (format == SaveFormat::None || format == SaveFormat::Photoshop) {
        const std::string extension = pathExtension(picture.path());
        sentences << notWrittenBySave(extension);
        offer(commandFor(extension));
    }
    notice.text = sentences.join(' ');
    document.notice(std::move(notice));
}

} // namespace zp
