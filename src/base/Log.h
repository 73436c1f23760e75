// SPDX-License-Identifier: GPL-3.0-or-later
/// The diagnostic log: lines without levels on standard error (the journal, when started from the desktop).
#pragma once
#include <string>
#include <vector>

namespace zp
{

/// One line, printf-style, without a line end. Any thread. Never throws; a line over 1,000 bytes is cut.
void logLine(const char* format, ...) __attribute__((format(printf, 1, 2)));
/// The lines since the last call, oldest first; at most the latest 200,000 are kept. Any thread.
std::vector<std::string> takeLogLines();

} // namespace zp
