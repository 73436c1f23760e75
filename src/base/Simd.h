// SPDX-License-Identifier: GPL-3.0-or-later
/// Which vector versions of the pixel loops there are.
#pragma once
#include <string>
#include <vector>

namespace zp
{

/// The instruction sets that pixel loops are compiled for and this machine has, best first: the first is the one in
/// use.
std::vector<std::string> vectorTargets();

} // namespace zp
