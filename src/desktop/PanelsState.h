// SPDX-License-Identifier: GPL-3.0-or-later
/// What the panels' files share among themselves.
#pragma once

namespace zp
{

/// Whether file panels are answered by a script instead of a person.
bool panelsAutomated();

} // namespace zp
