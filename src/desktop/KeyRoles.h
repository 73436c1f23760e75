// SPDX-License-Identifier: GPL-3.0-or-later
/// Changing which key plays which role.
#pragma once
#include <cstdint>

namespace zp
{

/// The two roles exchange their keys, for good: kept in the settings. Posts "KeyRolesNotif" when all is changed, as
/// every change of roles does. Main thread.
void exchangeKeyRoles(std::uint32_t one, std::uint32_t other);

} // namespace zp
