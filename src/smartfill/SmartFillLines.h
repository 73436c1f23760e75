// SPDX-License-Identifier: GPL-3.0-or-later
/// Lines and edges that enter a hole on one side and leave it on another, drawn through it before it is filled.
#pragma once
#include "smartfill/SmartFill.h"

namespace zp
{

/// Looks along the box of the hole for straight edges that run into it, and joins those that agree in direction and in
/// the colours on both sides. A band along each join takes the pixels from beyond the hole's box and is no hole any
/// more: the fill continues it, but takes nothing from it. Lines that do not meet another are left to the fill.
/// @return how many were drawn; with none @p picture is as it was
/// Time: O(the hole's outline * 121 + lines * the hole's box). Any thread.
int keepLines(SmartFillPicture& picture);

} // namespace zp
