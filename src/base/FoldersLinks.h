// SPDX-License-Identifier: GPL-3.0-or-later
/// Where links lead, and how one is led elsewhere.
#pragma once
#include <string>

namespace zp
{

/// Follows the links of the last component; the file at the end need not exist. @return 0 or the error's number
int finalTarget(std::string& path);

/// Puts a link to @p target (an absolute path) into the place of the link @p path, in one step: a failure leaves the
/// old one. @return success
bool replaceLink(const std::string& path, const std::string& target);

} // namespace zp
