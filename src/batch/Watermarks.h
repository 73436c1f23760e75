// SPDX-License-Identifier: GPL-3.0-or-later
/// The folder of watermarks.
#pragma once
#include "batch/WatermarkLayout.h"
#include <string>
#include <vector>

namespace zp
{

/// "Watermarks" in the application-support folder.
std::string watermarkFolder();
/// Makes the application-support folder; makes the watermark folder with the default watermark in it unless it exists:
/// a default that the user deleted does not come back. A failed copy is passed over.
void prepareWatermarkFolder();
/// File names of all watermarks, in the folder's order.
std::vector<std::string> watermarkNames();

/// How the watermark of that name was last used: kept beside it in "NAME.layout", which is no watermark's name, so that
/// earlier versions pass it over. As given when nothing is kept.
WatermarkLayout keptWatermarkLayout(const std::string& name);
/// Keeps it; one that is as given leaves no file, and one that is kept already is not written again. A file that cannot
/// be written is passed over.
void keepWatermarkLayout(const std::string& name, const WatermarkLayout& layout);

} // namespace zp
