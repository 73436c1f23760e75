// SPDX-License-Identifier: GPL-3.0-or-later
/// Where the person wants the picture to be saved.
#include "base/Folders.h"
#include "codecs/FileNames.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/Files.h"
#include "operations/SizeSearch.h"

namespace zp
{

namespace
{

PanelRequest panelFor(const Document& document, SaveProposal proposal, SaveFormat format, bool asksQuality = true)
{
    PanelRequest request;
    request.directory = std::move(proposal.folder);
    request.name = std::move(proposal.name);
    request.extension = extensionFor(format);
    request.types = {QString::fromStdString(request.extension)};
    if (format == SaveFormat::JPEG && asksQuality)
        request.quality = document.picture().jpegQualityFor(document.picture().path());
    return request;
}

} // namespace

std::optional<SaveAnswer> askWhereToSave(const Document& document, SaveFormat format)
{
    return runSavePanel(panelFor(document, saveProposal(document.picture().path(), format, homeFolder()), format));
}

Outcome saveCopyWithoutPrivateData(Document& document)
{
    document.endGesture();
    const std::string path = document.picture().path();
    SaveFormat format = saveFormatForPath(path);
    if (format == SaveFormat::None || format == SaveFormat::Photoshop) format = SaveFormat::JPEG; // to be given away
    SaveProposal proposal = saveProposal(path, format, homeFolder());
    // Beside the picture, never over it.
    proposal.name = pathWithoutExtension(proposal.name) + " (shared)." + extensionFor(format);
    const std::optional<SaveAnswer> answer = runSavePanel(panelFor(document, std::move(proposal), format));
    if (!answer) return {Outcome::Refused, {}};
    return document.perform("saveWithoutPrivateData", {{double(answer->quality)}, answer->path});
}

Outcome saveSizedCopy(Document& document, SaveFormat format, const SizedFile& found)
{
    document.endGesture();
    SaveProposal proposal = saveProposal(document.picture().path(), format, homeFolder());
    // Beside the picture, never over it.
    proposal.name = pathWithoutExtension(proposal.name) + " (small)." + extensionFor(format);
    const std::optional<SaveAnswer> answer = runSavePanel(panelFor(document, std::move(proposal), format, false));
    if (!answer) return {Outcome::Refused, {}};
    return document.perform(*document.operation("saveImageLooksSame:"), [&](Edit& edit) {
        writeAndTell(edit, found.bytes, found.properties, answer->path, formatTitle(format, found.quality));
    });
}

Outcome saveThroughPanel(Document& document, SaveFormat format)
{
    document.endGesture();
    std::optional<SaveAnswer> answer;
    for (Permission permission = Permission::SaveAs; permission != Permission::Save;) {
        answer = permission == Permission::SaveAs ? askWhereToSave(document, format) : std::nullopt;
        if (!answer) return {Outcome::Refused, {}};
        permission = askToTakeFromPanel(document, answer->path);
    }
    const std::string& path = answer->path;
    switch (format) {
    case SaveFormat::JPEG:
        return document.perform("saveImageAsJPEG:", {{double(answer->quality)}, path});
    case SaveFormat::PNG:
        return document.perform("saveImageAsPNG:", {{}, path});
    default:
        return document.perform("saveImageAsTIFF:", {{}, path});
    }
}

} // namespace zp
