// SPDX-License-Identifier: GPL-3.0-or-later
/// Pictures that other programs made, for tests that read files.
#pragma once
#include <string>

namespace zp::test
{

/// Where the picture of that name lies: its path below the folder of test pictures.
inline std::string sample(const std::string& name) { return std::string(ZP_TESTDATA) + "/images/" + name; }

} // namespace zp::test
