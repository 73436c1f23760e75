// SPDX-License-Identifier: GPL-3.0-or-later
/// What the panels' files share among themselves.
#pragma once
#include <optional>
#include <string>

namespace zp
{

/// Whether file panels are answered by a script instead of a person.
bool panelsAutomated();
/// The next queued answer, or nothing: cancelled.
std::optional<std::string> nextPanelChoice();

} // namespace zp
