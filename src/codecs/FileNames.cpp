// SPDX-License-Identifier: GPL-3.0-or-later
/// Extensions, proposals of save panels, numbered names.
#include "codecs/FileNames.h"
#include "base/Folders.h"
#include <algorithm>
#include <cctype>
#include <string_view>

namespace zp
{
namespace
{

constexpr const char* kProposedName = "My Great Image";
constexpr int kLastNumber = 99; // a folder of a hundred unnamed images is no reason to search on

/// By which a file is known as a picture: such an end of a name is no part of it.
constexpr std::string_view kPictureExtensions[] = {"tiff", "tif", "jpg", "jpeg", "jpe",  "jfif", "png",  "apng", "psd",
                                                   "psb",  "gif", "bmp", "dib",  "webp", "jp2",  "j2k",  "jpc",  "jpx",
                                                   "pnm",  "pbm", "pgm", "ppm",  "pam",  "sgi",  "rgb",  "rgba", "bw",
                                                   "pcx",  "ico", "cur", "pict", "pct",  "tga",  "heic", "avif"};

bool isPictureExtension(std::string extension)
{
    std::ranges::transform(extension, extension.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return std::ranges::find(kPictureExtensions, extension) != std::end(kPictureExtensions);
}

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
    case SaveFormat::WebP:
        return "webp";
    default:
        return "";
    }
}

std::string writtenPath(const std::string& path, SaveFormat format)
{
    return pathWithExtension(path, extensionFor(format));
}

std::string nameToWrite(const std::string& typed, SaveFormat format)
{
    const std::string extension = pathExtension(typed);
    if (isPictureExtension(extension)) return writtenPath(typed, format);
    return typed + (typed.ends_with('.') ? "" : ".") + extensionFor(format);
}

SaveFormat formatOfExtension(const std::string& extension)
{
    for (const SaveFormat format : {SaveFormat::TIFF, SaveFormat::JPEG, SaveFormat::PNG, SaveFormat::WebP})
        if (extension == extensionFor(format)) return format;
    return SaveFormat::None;
}

SaveProposal saveProposal(const std::string& imagePath, SaveFormat format, const std::string& home)
{
    if (imagePath.empty())
        return {pathByAppending(home, "Pictures"), std::string(kProposedName) + "." + extensionFor(format)};
    return {folderOfPath(imagePath), nameToWrite(lastPathComponent(imagePath), format)};
}

std::string proposedQuickSaveName(const std::string& folder)
{
    for (int i = 1;; ++i) {
        std::string name = std::string(kProposedName) + " " + std::to_string(i) + ".tiff";
        if (i == kLastNumber || !fileExists(pathByAppending(folder, name))) return name;
    }
}

} // namespace zp
