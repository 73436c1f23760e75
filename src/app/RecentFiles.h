// SPDX-License-Identifier: GPL-3.0-or-later
/// The files opened last: the program's own list, and the one that all programs of the desktop share.
#pragma once
#include <string>
#include <vector>

namespace zp
{

/// The newest first, in the file system's own bytes. Main thread, as all of these.
std::vector<std::string> recentFiles();
/// The file stands first in both lists from now on.
void noteRecentFile(const std::string& path);
/// Both lists forget what this program opened; the desktop's keeps what other programs did.
void clearRecentFiles();

} // namespace zp
