// SPDX-License-Identifier: GPL-3.0-or-later
/// What the kernels' dispatch chooses among.
#include "base/Simd.h"
#include <cstdint>
#include <hwy/highway.h>

namespace zp
{

std::vector<std::string> vectorTargets()
{
    std::vector<std::string> names;
    const std::int64_t compiled = HWY_TARGETS;
    // A better target is a lower bit.
    for (std::int64_t left = hwy::SupportedTargets() & compiled; left != 0; left &= left - 1)
        names.emplace_back(hwy::TargetName(left & -left));
    return names;
}

} // namespace zp
