// SPDX-License-Identifier: GPL-3.0-or-later
/// The tolerance, asked for once a fill.
#include "document/Paint.h"
#include "tools/PixelCompare.h"

namespace zp
{

int Paint::refreshTolerance() { return mTolerance = toleranceForSlider(mToleranceSetting); }

} // namespace zp
