// SPDX-License-Identifier: GPL-3.0-or-later
/// The folder of watermarks.
#pragma once
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

} // namespace zp
