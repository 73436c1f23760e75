// SPDX-License-Identifier: GPL-3.0-or-later
/// What is asked before a file is written over.
#include "base/Folders.h"
#include "base/Log.h"
#include "codecs/PictureFacts.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/Files.h"
#include <QCoreApplication>

namespace zp
{

namespace
{

struct Concerns {
    bool another = false; ///< a file that the picture was neither read from nor written to
    bool changed = false; ///< written by somebody else since
    bool loss = false;    ///< it holds more than the picture does
};

Concerns concernsOf(const Document& document, const std::string& path)
{
    const Picture& picture = document.picture();
    const PictureFiles& files = picture.files();
    const std::optional<FileStamp> now = fileStamp(path);
    if (!now) return {};
    const FileStamp* known = nullptr;
    bool isOpened = false;
    for (const auto& [name, stamp] : files.stamps) {
        // A disk that takes photo.JPG and photo.jpg for one name has one file there.
        if (name != path && !stamp.isSameFile(*now)) continue;
        known = &stamp;
        isOpened = isOpened || name == files.opened;
    }
    Concerns concerns;
    concerns.loss = isOpened && files.facts.losesBySaving() && !files.lossAccepted;
    if (known)
        concerns.changed = !(*known == *now);
    else
        concerns.another = path != picture.path(); // of a picture that a crash left, nothing else is known
    return concerns;
}

Permission askAboutLoss(Document& document, const std::string& path)
{
    const QString name = QString::fromStdString(displayName(lastPathComponent(path)));
    const QString lost = QString::fromStdString(lossBySaving(document.picture().files().facts));
    logLine("saving over %s, which has %s", path.c_str(), lost.toStdString().c_str());
    switch (runAlert(FileTexts::tr("The file holds more than the image."),
                     FileTexts::tr("%1 has %2. Saving the image into it takes that away.").arg(name, lost),
                     {FileTexts::tr("Save"), FileTexts::tr("Save as…"), FileTexts::tr("Cancel")})) {
    case 0:
        return Permission::Save;
    case 1:
        return Permission::SaveAs;
    default:
        return Permission::Cancel;
    }
}

bool askAboutChange()
{
    return runAlert(FileTexts::tr("The file was changed since it was opened."),
                    FileTexts::tr("Do you want to overwrite the existing file?"),
                    {FileTexts::tr("Yes"), FileTexts::tr("No")}) == 0;
}

} // namespace

bool mustAskToWrite(const Document& document, const std::string& path)
{
    const Concerns concerns = concernsOf(document, path);
    return concerns.another || concerns.changed || concerns.loss;
}

Permission askToWrite(Document& document, const std::string& path)
{
    const Concerns concerns = concernsOf(document, path);
    if (concerns.loss) {
        const Permission answer = askAboutLoss(document, path);
        if (answer != Permission::Save) return answer;
    }
    if (concerns.changed && !askAboutChange()) return Permission::Cancel;
    if (concerns.another && !askToOverwrite()) return Permission::Cancel;
    return Permission::Save;
}

Permission askToTakeFromPanel(Document& document, const std::string& path)
{
    return concernsOf(document, path).loss ? askAboutLoss(document, path) : Permission::Save;
}

} // namespace zp
