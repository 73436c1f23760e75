// SPDX-License-Identifier: GPL-3.0-or-later
/// What a decoder may not do, whatever the picture makes of it.
#pragma once

namespace zp::codec
{

/// From here on this process, and for good: no new files and no changes to any, no network, no other programs, a bound
/// to its memory and its time, no core files; when memory runs out, the system ends it before any other. What the
/// system does not offer is left out. Under an address or thread sanitizer memory stays unbounded: they need terabytes
/// of addresses.
void buildWalls();

} // namespace zp::codec
