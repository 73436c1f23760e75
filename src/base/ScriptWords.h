// SPDX-License-Identifier: GPL-3.0-or-later
/// A line of the automation language taken apart into words.
#pragma once
#include <optional>
#include <string>
#include <vector>

namespace zp
{

/// Words are separated by blanks; "…" holds blanks, with \" and \\ inside; an empty word is ""; # at the start of a
/// word begins a comment, unless the word is an item's number (#3) or a colour (#ff8000, #ff800080) behind another
/// word.
/// @return nothing when a quote is left open
std::optional<std::vector<std::string>> splitScriptLine(const std::string& line);

} // namespace zp
