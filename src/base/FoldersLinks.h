// SPDX-License-Identifier: GPL-3.0-or-later
/// Where links lead; for the files of this room.
#pragma once
#include <string>

namespace zp
{

/// Follows the links of the last component; the file at the end need not exist. @return 0 or the error's number
int finalTarget(std::string& path);

} // namespace zp
