// SPDX-License-Identifier: GPL-3.0-or-later
/// The rules by which names of picture files are chosen and changed.
#pragma once
#include <string>

namespace zp
{

/// The EXIF comment of every picture that the program made or opened.
inline constexpr const char* kEditedComment = "Edited by Zelpane -- simple, yet powerful image editing";

/// What saving to a path writes.
enum class SaveFormat {
    None,      ///< an extension that is not saved to: nothing happens
    TIFF,      ///< "tiff", "tif"
    JPEG,      ///< "jpg", "JPG"
    PNG,       ///< "png"
    WebP,      ///< by no name that Save is given: copies of a chosen size alone
    Photoshop, ///< "psd": can be opened, not saved
};

/// By the extension, letter case counting: "jpeg", "TIF" and "PNG" are none of them.
SaveFormat saveFormatForPath(const std::string& path);
/// "tiff", "jpg", "png" or "webp"; empty for what is not written.
const char* extensionFor(SaveFormat format);
/// Where an image of that format is written when a program asks for @p path: the extension is always replaced.
std::string writtenPath(const std::string& path, SaveFormat format);
/// The same when a person typed the name: the extension of any kind of picture, in whatever case, makes room for the
/// format's; what follows another dot is part of the name ("Version 2.5" becomes "Version 2.5.tiff"). A result is its
/// own result, and writtenPath() leaves it as it is.
std::string nameToWrite(const std::string& typed, SaveFormat format);
/// The format of "tiff", "jpg", "png" or "webp", the extensions that are written.
SaveFormat formatOfExtension(const std::string& extension);

/// What a save panel proposes.
struct SaveProposal {
    std::string folder, name;
};
/// An image with a file: its folder and name with the format's extension. Without: the pictures folder in @p home and
/// "My Great Image".
SaveProposal saveProposal(const std::string& imagePath, SaveFormat format, const std::string& home);

/// The first of "My Great Image 1.tiff", "My Great Image 2.tiff", … that does not exist in @p folder; the 99th is given
/// even if it exists.
std::string proposedQuickSaveName(const std::string& folder);

} // namespace zp
