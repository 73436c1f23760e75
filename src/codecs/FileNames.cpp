// SPDX-License-Identifier: GPL-3.0-or-later
/// Extensions, proposals of save panels, numbered names.
#include "codecs/FileNames.h"
#include "base/Folders.h"

namespace zp
{
namespace
{

constexpr const char* kProposedName = "My Great Image";
constexpr int kLastNumber = 99; // a folder of a hundred unnamed images is no reason to search on

} // namespace

SaveFormat saveFormatForPath(const std::string& path)
{
    const std::string extension = pathExtension(path);
    if (extension == "jpg" || extension == "JPG") return SaveFormat::JPEG;
    if (extension == "tiff" || extension == "tif") return SaveFormat::TIFF;
    if (extension == "png") return SaveFormat::PNG;
    if (extension == "psd") return SaveFormat::Photoshop;
    return SaveFormat::None;
}

const char* extensionFor(SaveFormat format)
{
    switch (format) {
    case SaveFormat::TIFF:
        return "tiff";
    case SaveFormat::JPEG:
        return "jpg";
    case SaveFormat::PNG:
        return "png";
    default:
        return "";
    }
}

std::string writtenPath(const std::string& path, SaveFormat format)
{
    return pathWithExtension(path, extensionFor(format));
}

SaveProposal saveProposal(const std::string& imagePath, SaveFormat format, const std::string& home)
{
    if (imagePath.empty())
        return {pathByAppending(home, "Pictures"), std::string(kProposedName) + "." + extensionFor(format)};
    return {folderOfPath(imagePath), writtenPath(lastPathComponent(imagePath), format)};
}

std::string proposedQuickSaveName(const std::string& folder)
{
    for (int i = 1;; ++i) {
        std::string name = std::string(kProposedName) + " " + std::to_string(i) + ".tiff";
        if (i == kLastNumber || !fileExists(pathByAppending(folder, name))) return name;
    }
}

} // namespace zp
