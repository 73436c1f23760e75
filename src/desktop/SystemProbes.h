// SPDX-License-Identifier: GPL-3.0-or-later
/// Questions to the running system, asked once and remembered.
#pragma once
#include <cstdint>
#include <functional>
#include <optional>

namespace zp
{

/// The system version as a number of binary coded decimals (0x1050, 0x1060, ...) that version tests compare with.
/// Linux kernels at or above the oldest one supported answer 0x1060; older ones 0x1040.
inline constexpr std::uint32_t kVersionLeopard = 0x1050;
inline constexpr std::uint32_t kVersionSnowLeopard = 0x1060;

bool isLeopardExactly();
bool isSnowLeopardOrLater();
bool isLeopardOrLater();
/// Little-endian pixel words.
bool isIntelProcessor();

/// Tests: answers for 'sysv' and 'sysa' (nothing: the question fails), and all remembered answers forgotten.
struct SystemQueries {
    std::function<std::optional<std::uint32_t>()> systemVersion, systemArchitecture;
};
void setSystemQueries(const std::optional<SystemQueries>& queries);

} // namespace zp
