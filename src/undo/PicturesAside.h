// SPDX-License-Identifier: GPL-3.0-or-later
/// The steps of pictures that are not the current one, in the folder of the current one's.
///
/// Each lies in a folder ".picture-N", the newest with the highest number. Files change places one by one, and a note
/// of what is under way outlives a crash: whoever opens the folder next ends the move before looking at anything.
#pragma once
#include <optional>
#include <string>
#include <vector>

namespace zp::aside
{

std::string folderName(int number);
/// The number in such a name.
std::optional<int> numberOf(const std::string& name);
/// All that lie there, the oldest first.
std::vector<int> numbers(int folder);

/// The current picture's files go into a folder of their own. @return its number; nothing when that cannot be made:
/// then they are where they were
std::optional<int> putAside(int folder);
/// The files of @p number become the current picture's; there must be none of those. @return false when they are gone
bool bringBack(int folder, int number);
void drop(int folder, int number);
/// After a crash: what was being moved gets where it was going.
void finishMove(int folder);

} // namespace zp::aside
