// SPDX-License-Identifier: GPL-3.0-or-later
/// How the canvas command opens the smart fill window, which stands above the canvas.
#pragma once
#include "base/BitmapRep.h"
#include "base/BitmapView.h"
#include <functional>
#include <memory>

class ZPCanvas;

namespace zp
{

/// Takes the canvas's bitmap, its selection mask (255 inside, one byte a pixel of the bitmap, valid during the call
/// only), the canvas and the selection's bounds in image pixels. Called on the main thread.
using SmartFillHook = std::function<void(std::shared_ptr<BitmapRep>, ConstMaskView, ZPCanvas*, Rect)>;

/// Registered once by the application; until then the command only beeps.
void setSmartFillHook(SmartFillHook hook);

} // namespace zp
