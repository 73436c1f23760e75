// SPDX-License-Identifier: GPL-3.0-or-later
/// Small pictures for file managers.
#pragma once
#include <string>

namespace zp
{

/// Writes the picture as a PNG file of at most @p size pixels a side; a smaller one keeps its size. Any thread.
/// @return why not, in a sentence; empty when it was written
std::string writeThumbnail(const std::string& source, const std::string& destination, int size);

/// "zelpane --thumbnail SIZE SRC DST". @return 0, 1 when there is none to be made, 2 when the words make no sense
int runThumbnailCommandLine(int argc, char** argv);

} // namespace zp
