// SPDX-License-Identifier: GPL-3.0-or-later
/// One row a command; no other list of commands exists. Menus, keys, scripts and validation read it.
#pragma once
#include "base/Translation.h"
#include "document/Command.h"
#include <span>

namespace zp
{

/// Rows with a menu stand in the order of the menus.
std::span<const Command> commandTable();

/// The menus that rows name, left to right.
inline constexpr const char* kMenus[] = {
    ZP_TEXT("Menu", "Zelpane"), ZP_TEXT("Menu", "File"),      ZP_TEXT("Menu", "Edit"),
    ZP_TEXT("Menu", "Image"),   ZP_TEXT("Menu", "Selection"), ZP_TEXT("Menu", "View"),
    ZP_TEXT("Menu", "Tools"),   ZP_TEXT("Menu", "Window"),    ZP_TEXT("Menu", "Help")};

/// A row that draws a line in its menu, and the one that holds the recent files.
inline constexpr const char* kSeparator = "";
inline constexpr const char* kRecentMenu = "|";

} // namespace zp
