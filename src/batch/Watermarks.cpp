// SPDX-License-Identifier: GPL-3.0-or-later
/// Makes and lists the watermark folder.
#include "batch/Watermarks.h"
#include "base/Folders.h"
#include "batch/BatchRules.h"

namespace zp
{
namespace
{

constexpr std::uint64_t kLargestLayout = 4096; ///< bytes; ours have some seventy

std::string layoutPath(const std::string& name) { return pathByAppending(watermarkFolder(), name) + ".layout"; }

} // namespace

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

WatermarkLayout keptWatermarkLayout(const std::string& name)
{
    const auto text = readWholeFile(layoutPath(name), kLargestLayout);
    return text ? layoutOfText(*text) : WatermarkLayout();
}

void keepWatermarkLayout(const std::string& name, const WatermarkLayout& layout)
{
    if (keptWatermarkLayout(name) == layout) return;
    const std::string path = layoutPath(name), text = textOfLayout(layout);
    if (layout == WatermarkLayout())
        removeItem(path);
    else
        writeFileSafely(path, text.data(), text.size());
}

} // namespace zp
