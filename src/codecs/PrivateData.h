// SPDX-License-Identifier: GPL-3.0-or-later
/// What of a picture's metadata says where it was taken, with what, and by whom.
#pragma once
#include "base/BitmapRep.h"

namespace zp
{

/// Leaves place, device and names out: of EXIF only what describes the picture itself stays (how it was exposed, when,
/// its resolution and colour space), captions and packets, which may say anything, go whole. The colour profile stays:
/// without it the picture would look different.
void removePrivateData(ImageProperties& properties);

} // namespace zp
