// SPDX-License-Identifier: GPL-3.0-or-later
/// Names, sizes and positions of a batch run.
#include "batch/BatchRules.h"
#include "base/Folders.h"
#include "base/Translation.h"
#include <cmath>

namespace zp
{

bool isBatchSource(const std::string& name)
{
    const std::string extension = pathExtension(name);
    return extension == "tiff" || extension == "jpg";
}

Size fittedSize(Size image, float boxWidth, float boxHeight)
{
    const float ratio = image.width / image.height;
    if (ratio > boxWidth / boxHeight) return {boxWidth, boxWidth / ratio};
    return {ratio * boxHeight, boxHeight};
}

Size wholePixels(Size size)
{
    const auto whole = [](float side) { return side >= 1 ? std::floor(side) : 1.0f; };
    return {whole(size.width), whole(size.height)};
}

std::string batchOutput(const std::string& folder, const std::string& sourceName, const char* extension)
{
    return folder + "/" + pathWithoutExtension(lastPathComponent(sourceName)) + "." + extension;
}

BatchFolderFault checkBatchFolders(const std::string& source, const std::string& destination)
{
    if (source.empty()) return BatchFolderFault::NoSource;
    if (destination.empty()) return BatchFolderFault::NoDestination;
    if (source == destination) return BatchFolderFault::Same;
    if (!fileExists(source) || !fileExists(destination)) return BatchFolderFault::Missing;
    return BatchFolderFault::None;
}

const char* batchFaultText(BatchFolderFault fault)
{
    switch (fault) {
    case BatchFolderFault::NoSource:
        return ZP_TEXT("ZPImageProcessor", "Choose a source folder.");
    case BatchFolderFault::NoDestination:
        return ZP_TEXT("ZPImageProcessor", "Choose a destination folder.");
    case BatchFolderFault::Same:
        return ZP_TEXT("ZPImageProcessor", "Source and destination folder cannot be the same.");
    case BatchFolderFault::Missing:
        return ZP_TEXT("ZPImageProcessor", "Error: Source or destination folder does not exist.");
    case BatchFolderFault::None:
        break;
    }
    return "";
}

Point watermarkPosition(WatermarkPlace place, Size image, Size watermark, int margin)
{
    const float right = image.width - watermark.width, top = image.height - watermark.height;
    const auto near = float(margin);
    const auto whole = [](float x, float y) { return Point{std::trunc(x), std::trunc(y)}; };
    switch (place) {
    case WatermarkPlace::LowerLeft:
        return whole(near, near);
    case WatermarkPlace::LowerRight:
        return whole(right - near, near);
    case WatermarkPlace::UpperLeft:
        return whole(near, top - near);
    case WatermarkPlace::UpperRight:
        return whole(right - near, top - near);
    case WatermarkPlace::Center:
        return whole(right / 2, top / 2);
    case WatermarkPlace::Custom:
        break;
    }
    return {0, 0};
}

} // namespace zp
