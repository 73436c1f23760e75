// SPDX-License-Identifier: GPL-3.0-or-later
/// How the smart fill command and the remove brush reach the smart fill window, which stands above the operations.
#pragma once
#include "base/BitmapView.h"
#include "base/Geometry.h"
#include <functional>

namespace zp
{

class Document;

/// What is to be filled.
struct FillRequest {
    ConstMaskView mask;    ///< 255 inside; valid during the call only; 0 outside of it
    PixelPoint maskOrigin; ///< of its near corner, in image pixels
    Rect bounds;           ///< of the selection, in image pixels; may reach out of the picture
    bool atOnce = false;   ///< the remove brush: fills without asking and without a window, unless it takes long
};

/// May be called inside the gate when it only shows a window; what fills at once is asked for when the gate has closed.
/// It copies the mask and runs no events.
using SmartFillHook = std::function<void(Document&, const FillRequest&)>;

/// Registered once by the application; until then the command only beeps.
void setSmartFillHook(SmartFillHook hook);
/// The one that is registered; empty when there is none.
const SmartFillHook& smartFillHook();

} // namespace zp
