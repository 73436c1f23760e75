// SPDX-License-Identifier: GPL-3.0-or-later
/// One row a command; no other list of commands exists. Menus, keys, scripts and validation read it.
#pragma once
#include "document/Command.h"
#include <span>

namespace zp
{

/// Rows with a menu stand in the order of the menus.
std::span<const Command> commandTable();

/// A row that draws a line in its menu, and the one that holds the recent files.
inline constexpr const char* kSeparator = "";
inline constexpr const char* kRecentMenu = "|";

} // namespace zp
