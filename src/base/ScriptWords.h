// SPDX-License-Identifier: GPL-3.0-or-later
/// A line of the automation language taken apart into words.
#pragma once
#include "base/Color.h"
#include <optional>
#include <string>
#include <vector>

namespace zp
{

/// Words are separated by blanks; "…" holds blanks, with \" and \\ inside; an empty word is ""; # at the start of a
/// word begins a comment, unless the word is an item's number (#3) or a colour (#ff8000, #ff800080, or with four digits
/// a part) behind another word.
/// @return nothing when a quote is left open
std::optional<std::vector<std::string>> splitScriptLine(const std::string& line);

/// A word as a script has to write it: in quotes where it holds blanks, quotes or a beginning comment, or nothing. Line
/// breaks have no place in a script and stay as they are.
std::string scriptWord(const std::string& word);
/// The shortest decimal number that is read back as exactly this one; whole numbers without an exponent.
std::string scriptNumber(double number);
std::string scriptNumber(float number);
/// "#rrggbb", or "#rrggbbaa" where it is not opaque; with four digits a part where two do not say it exactly.
std::string scriptColor(const Color& color);
/// The colour of such a word; nothing when it is none.
std::optional<Color> colorOfScriptWord(const std::string& word);

} // namespace zp
