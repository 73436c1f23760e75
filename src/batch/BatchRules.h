// SPDX-License-Identifier: GPL-3.0-or-later
/// The rules of a batch run: which files, what size, where the results go, where the watermark sits.
#pragma once
#include "base/Geometry.h"
#include <string>

namespace zp
{

/// Extension exactly "tiff" or exactly "jpg"; "tif", "jpeg", "JPG" are passed over. The rule of watermarks as well.
bool isBatchSource(const std::string& name);

/// The size at which an image of size @p image fits the box, all in single precision: as wide as the box when it is
/// flatter than the box, else as high. Smaller images are enlarged. Fractions stay; nothing is rounded.
Size fittedSize(Size image, float boxWidth, float boxHeight);
/// Whole pixels of a fitted size: cut off as the canvas does, but never less than one.
Size wholePixels(Size size);

/// "folder/base.tiff" and "folder/base.jpg" for a source of that name.
std::string batchOutput(const std::string& folder, const std::string& sourceName, const char* extension);

enum class BatchFolderFault { None, NoSource, NoDestination, Same, Missing };
/// The checks before a run, in their order. Paths are compared as they are written: "/a/b" and "/a/b/" differ.
BatchFolderFault checkBatchFolders(const std::string& source, const std::string& destination);
/// The sentence for a fault; empty for none.
const char* batchFaultText(BatchFolderFault fault);

/// Presets that fill in the watermark's position.
enum class WatermarkPlace { Custom, LowerLeft, LowerRight, UpperLeft, UpperRight, Center };
/// The lower-left corner, y upwards, of a watermark in an image of that size: whole pixels, so that it stays sharp.
/// @param margin  pixels between the watermark and the edges of its corner; the centre has none
Point watermarkPosition(WatermarkPlace place, Size image, Size watermark, int margin = 0);

} // namespace zp
