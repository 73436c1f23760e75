// SPDX-License-Identifier: GPL-3.0-or-later
/// Makes and lists the watermark folder.
#include "batch/Watermarks.h"
#include "base/Folders.h"
#include "batch/BatchRules.h"

namespace zp
{

std::string watermarkFolder() { return pathByAppending(applicationSupportFolder(), "Watermarks"); }

void prepareWatermarkFolder()
{
    createFolder(applicationSupportFolder());
    const std::string folder = watermarkFolder();
    if (fileExists(folder)) return;
    createFolder(folder);
    copyItem(resourcePath("Title.jpg"), pathByAppending(folder, "ORVANTA.jpg"));
}

std::vector<std::string> watermarkNames()
{
    std::vector<std::string> names = contentsOfFolder(watermarkFolder());
    std::erase_if(names, [](const std::string& name) { return !isBatchSource(name); });
    return names;
}

} // namespace zp
