// SPDX-License-Identifier: GPL-3.0-or-later
/// When the column-wise scan cannot run out of stack, whatever the picture shows.
#pragma once
#include "tools/FillStack.h"

namespace zp
{

/// The scan pushes once for the seed and once for each place where a vertical run touches one beside it: at most every
/// second row of two neighbouring columns begins such a place.
inline bool stackNeverFills(int width, int height, const FillStack& stack)
{
    const std::int64_t most = 1 + (std::int64_t{width} - 1) * ((std::int64_t{height} + 1) / 2);
    return most <= stack.capacity();
}

} // namespace zp
